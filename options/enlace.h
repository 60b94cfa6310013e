// A link: a label that opens an address of the web or of mail.
#pragma once

#include "forms/label.h"

namespace options {

// Red, yellow while pressed; the release, of any button and wherever it falls, opens the address. It takes
// the focus by Tab and shows it; Space and Enter are press and release.
class Enlace : public forms::Label {
public:
    // Its text begins at this point, in twips.
    Enlace(QWidget *padre, const QString &nombre, int izquierda, int arriba, const QString &texto,
        const QString &destino);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Pulsa();
    void Suelta();

    QString m_destino;
};

} // namespace options
