#include "companion/sesion.h"

#include "companion/imprimible.h"
#include "companion/otrosistema.h"

#include "host/paths.h"
#include "host/replacement.h"

#include <QJsonArray>

#include <utility>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace companion {

Sesion::Sesion(const Pedido &pedido, const Palabras &palabrasDelIdioma, core::Modulo &modulo, Consola consola)
    : palabras(palabrasDelIdioma)
    , M(modulo)
    , m_pedido(pedido)
    , m_consola(std::move(consola))
{
}

QString Sesion::Valor(const QString &opcion) const
{
    const QStringList valores = m_pedido.opciones.value(opcion);
    return valores.isEmpty() ? QString() : valores.last();
}

void Sesion::Escribe(const QString &linea) const
{
    m_consola.sale(Imprimible(linea).toUtf8() + '\n');
}

void Sesion::Escribe(const QStringList &lineas) const
{
    for (const QString &linea : lineas)
        Escribe(linea);
}

void Sesion::EscribeColumnas(const QStringList &columnas) const
{
    QStringList visibles;
    for (const QString &columna : columnas)
        visibles += Imprimible(columna);
    m_consola.sale(visibles.join(u'\t').toUtf8() + '\n');
}

void Sesion::EscribeDocumento(const QString &texto) const
{
    if (m_consola.esTerminal && m_consola.esTerminal())
        Escribe(texto.chopped(texto.isEmpty() ? 0 : 1).split(u'\n'));
    else
        m_consola.sale(texto.toUtf8());
}

void Sesion::Json(const QJsonObject &objeto) const
{
    m_consola.sale(ComoJson(objeto));
}

void Sesion::Avisa(const QString &linea) const
{
    m_consola.error("zembro: " + Imprimible(linea).toUtf8() + '\n');
}

int Sesion::Falla(const QString &motivo) const
{
    return Falla(QStringList { motivo });
}

int Sesion::Falla(const QStringList &lineas) const
{
    Avisa(lineas.value(0));
    for (const QString &linea : lineas.mid(1))
        m_consola.error("    " + Imprimible(linea).toUtf8() + '\n');
    QJsonObject objeto { { u"error"_s, lineas.value(0) } };
    if (lineas.size() > 1)
        objeto[u"candidates"_s] = QJsonArray::fromStringList(lineas.mid(1));
    if (EnJson())
        Json(objeto);
    return NoPudo;
}

namespace {

// With a closing separator only a directory is found.
bool esDirectorio(const QString &ruta)
{
    return host::exists(host::withClosingSeparator(ruta));
}

bool sePuedeEntrar(const QString &directorio)
{
    return faccessat(AT_FDCWD, host::findOnDisk(directorio).constData(), X_OK, AT_EACCESS) == 0;
}

// A directory that wasn't found, or that couldn't be listed: what is behind one that can't be entered isn't
// found either.
QString textoDeDirectorio(const QString &ruta, const Palabras &palabras)
{
    QString encima = ruta;
    while (encima.size() > 1 && host::withClosingSeparator(encima) == encima)
        encima.chop(1);
    if (host::exists(encima))
        return (esDirectorio(encima) ? palabras.Zbo_FalloLeerDir : palabras.Zbo_FalloNoDir) + u": "_s + ruta;
    for (qsizetype corte = 0; (corte = host::lastSeparator(encima)) > 0 && !host::exists(encima);)
        encima.truncate(corte);
    if (esDirectorio(encima) && !sePuedeEntrar(encima))
        return palabras.Zbo_FalloLeerDir + u": "_s + encima;
    return palabras.Zbo_FalloDir + u": "_s + ruta;
}

} // namespace

QString TextoDe(const host::Failure &fallo, const Palabras &palabras)
{
    static const QHash<int, QString Palabras::*> clases {
        { host::InvalidArgument, &Palabras::Zbo_FalloValor },
        { host::OutOfRange, &Palabras::Zbo_FalloMucho },
        { host::FileNotFound, &Palabras::Zbo_FalloFichero },
        { host::DeviceError, &Palabras::Zbo_FalloDisco },
        { host::DiskFull, &Palabras::Zbo_FalloLleno },
        { host::PastEndOfFile, &Palabras::Zbo_FalloFin },
        { host::PermissionDenied, &Palabras::Zbo_FalloDerecho },
        { host::PathAccess, &Palabras::Zbo_FalloAcceso },
        { host::PathNotFound, &Palabras::Zbo_FalloDir },
    };
    // What was being done is told where the number doesn't say it.
    if (fallo.operation() == host::ChangedMeanwhile)
        return palabras.Zbo_FalloCambio + u": "_s + fallo.about();
    if (fallo.operation().endsWith(host::KeptLocked))
        return palabras.Zbo_FalloLlave + u": "_s + fallo.about();
    const auto clase = clases.constFind(fallo.number());
    const QString unidad = FaltaDeUnidad(fallo.about(), palabras);
    if (!unidad.isEmpty())
        return unidad;
    if (fallo.number() == host::PathNotFound && !fallo.about().isEmpty())
        return textoDeDirectorio(fallo.about(), palabras);
    const QString &texto = clase == clases.constEnd() ? palabras.Zbo_Fallo : palabras.*clase.value();
    return fallo.about().isEmpty() ? texto + u'.' : texto + u": "_s + fallo.about();
}

} // namespace companion
