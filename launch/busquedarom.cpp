#include "launch/busquedarom.h"

#include "core/notas.h"

#include "host/letters.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

QString nombreDeNota(int tipo, const QString &clave)
{
    const bool faltaZip = tipo == 2 || (tipo == 3 && !clave.endsWith(u".ZIP"));
    return faltaZip ? clave + u".ZIP"_s : clave;
}

} // namespace

Busqueda BuscaROM(const core::Modulo &M, int tipo, const QString &entrada)
{
    const int nota = core::NotaConTexto(M, entrada);
    if (nota < 0)
        return { Via::Fichero, -1, {}, entrada };
    const QString clave = M.Nota_Clave(nota);
    return { Via::Nota, nota, clave, nombreDeNota(tipo, clave) };
}

QStringList Candidatos(const QStringList &enDirectorio, const QStringList &delArchivo)
{
    const QSet<QString> presentes(enDirectorio.begin(), enDirectorio.end());
    const QSet<QString> miembros(delArchivo.begin(), delArchivo.end());
    QStringList candidatos;
    for (const QString &nombre : enDirectorio) {
        if (!miembros.contains(nombre))
            candidatos << nombre;
    }
    for (const QString &nombre : delArchivo) {
        if (presentes.contains(nombre))
            candidatos << nombre;
    }
    candidatos.removeDuplicates();
    return candidatos.first(qMin<qsizetype>(candidatos.size(), MaxCandidatos));
}

std::optional<QString> EligeFichero(const QStringList &candidatos, const QStringList &extensiones)
{
    QString extension;
    for (int f = 0, k = 0;; ++k) {
        if (candidatos.value(f).endsWith(u"ZIP"))
            ++f;
        const QString nombre = candidatos.value(f);
        // A name without a point keeps the extension of the one before.
        if (const qsizetype punto = nombre.lastIndexOf(u'.'); punto >= 0)
            extension = host::upper(nombre.sliced(punto + 1));
        if (u"*."_s + extension == extensiones.value(k))
            return nombre;
        // The step of the loop follows: from the second file on the first extension is not tried again.
        // Catalogues rely on it.
        if (extensiones.value(k).isEmpty()) {
            ++f;
            k = 0;
        }
        if (candidatos.value(f).isEmpty())
            return std::nullopt;
    }
}

} // namespace launch
