// A text as lines that keep their ends, and the copy of one with some lines changed.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace core {

struct LineaConFin {
    QStringView linea; // without its end
    QStringView fin; // CR LF, LF, or nothing at the end of the text
};

// Views into the text, which must live on.
std::vector<LineaConFin> EnLineas(QStringView texto);

// The destination of a rewrite. Lines copied come out with the ends that they had, new ones end in CR LF.
class Copia {
public:
    void Copiar(const LineaConFin &linea);
    void Copiar(const std::vector<LineaConFin> &lineas, size_t desde, size_t hasta); // `hasta` not included
    void Nueva(const QString &linea);

    const QString &Texto() const { return m_texto; }

private:
    void cierraLinea();
    QString m_texto;
};

} // namespace core
