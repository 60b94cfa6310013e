// A drive for files that DOS can't open by their names: a directory of links to them, for one run.
#pragma once

#include "launch/unidadesdos.h"

#include <QByteArray>
#include <QSet>

namespace launch {

// Besides the file it shows those of its directory that have the new name with another ending: what an
// earlier run has saved. What this one saves goes to the file's directory when the object goes, under another
// name where one stands that it didn't show; what can't go there stays where it is.
class CarpetaDeApodos {
public:
    // In a directory of the run.
    CarpetaDeApodos(const QByteArray &dentroDe, const UnidadesDOS::Montaje &montaje);
    ~CarpetaDeApodos();
    CarpetaDeApodos(const CarpetaDeApodos &) = delete;
    CarpetaDeApodos &operator=(const CarpetaDeApodos &) = delete;

    const QByteArray &Lugar() const { return m_lugar; }

private:
    void enlazaLoGuardado(const UnidadesDOS::Apodo &apodo);
    QString destinoDe(const QString &nombre) const;

    QByteArray m_lugar;
    QByteArray m_original; // the directory of the files
    QSet<QByteArray> m_mostrados; // what earlier runs have saved, by names in upper case
};

} // namespace launch
