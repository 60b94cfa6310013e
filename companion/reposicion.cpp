#include "companion/reposicion.h"

#include "companion/cambio.h"
#include "companion/copias.h"
#include "companion/diferencia.h"
#include "companion/eleccion.h"

#include "host/failure.h"
#include "host/paths.h"

#include <QJsonArray>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

int guarda(Sesion &sesion)
{
    const Guardado guardado = Guarda();
    if (sesion.EnJson())
        sesion.Json({ { u"copy"_s, guardado.copia }, { u"saved"_s, guardado.nueva },
            { u"files"_s, QJsonArray::fromStringList(guardado.ficheros.keys()) } });
    else
        sesion.Escribe((guardado.nueva ? sesion.palabras.Zbo_Guardado : sesion.palabras.Zbo_YaGuardado)
                           .arg(guardado.copia));
    return Bien;
}

// Files of a copy that aren't as the program's.
QStringList distintos(const Ficheros &deCopia, const Ficheros &actuales)
{
    QStringList nombres;
    for (auto fichero = deCopia.begin(); fichero != deCopia.end(); ++fichero) {
        if (!actuales.contains(fichero.key()) || actuales[fichero.key()] != fichero.value())
            nombres += fichero.key();
    }
    return nombres;
}

int enumera(const Sesion &sesion)
{
    const Ficheros actuales = FicherosDePrograma();
    QJsonArray copias;
    for (const QString &copia : Copias()) {
        const Ficheros ficheros = FicherosDeCopia(copia);
        const QStringList otros = distintos(ficheros, actuales);
        copias +=
            QJsonObject { { u"copy"_s, copia }, { u"files"_s, QJsonArray::fromStringList(ficheros.keys()) },
                { u"different"_s, QJsonArray::fromStringList(otros) } };
        if (!sesion.EnJson())
            sesion.EscribeColumnas({ copia, otros.join(u' ') });
    }
    if (sesion.EnJson())
        sesion.Json({ { u"copies"_s, copias } });
    return Bien;
}

// The copy that is asked for, or the newest that isn't as the program's files; empty where all of them are.
// None, told already.
std::optional<QString> copiaPedida(const Sesion &sesion, const Ficheros &actuales)
{
    const QStringList copias = Copias();
    const QString texto = sesion.Argumento(0);
    if (texto.isEmpty()) {
        for (const QString &copia : copias) {
            const Ficheros ficheros = FicherosDeCopia(copia);
            if (!SonIguales(ficheros, actuales) && !distintos(ficheros, actuales).isEmpty())
                return copia;
        }
        if (!copias.isEmpty())
            return QString();
        sesion.Falla(sesion.palabras.Zbo_SinCopias);
        return std::nullopt;
    }
    QStringList suyas;
    for (const qsizetype i : Candidatos(copias, texto))
        suyas += copias[i];
    if (suyas.size() == 1)
        return suyas.first();
    sesion.Falla(suyas.isEmpty() ? QStringList { sesion.palabras.Zbo_NoCopia.arg(texto) }
                                 : QStringList { sesion.palabras.Zbo_Varios.arg(texto) } + suyas);
    return std::nullopt;
}

// Says what came of it, where it isn't all; none where it is.
std::optional<int> fallida(
    const Sesion &sesion, const QString &copia, const QString &guardada, const Reposicion &reposicion)
{
    if (!reposicion.fallo)
        return std::nullopt;
    const QString motivo = TextoDe(*reposicion.fallo, sesion.palabras);
    if (reposicion.repuestos.isEmpty())
        return sesion.Falla(sesion.palabras.Zbo_NadaRepuesto.arg(motivo));
    return sesion.Falla(
        sesion.palabras.Zbo_MedioRepuesto.arg(copia, reposicion.repuestos.join(u", "_s), guardada, motivo));
}

// The former ones are kept first.
Reposicion guardaYRepon(const QStringList &nombres, const Ficheros &deCopia, QString &guardada)
{
    try {
        const Guardado guardado = Guarda();
        guardada = guardado.copia;
        return Repon(nombres, deCopia, guardado.ficheros);
    } catch (const host::Failure &fallo) {
        return { {}, fallo };
    }
}

int repone(Sesion &sesion)
{
    if (sesion.Tiene(u"list"_s))
        return enumera(sesion);
    Ficheros actuales = FicherosDePrograma();
    const std::optional<QString> copia = copiaPedida(sesion, actuales);
    if (!copia)
        return NoPudo;
    // Read ahead of a new copy, which may push this one out.
    const Ficheros deCopia = copia->isEmpty() ? Ficheros() : FicherosDeCopia(*copia);
    const QStringList nombres = distintos(deCopia, actuales);
    const bool escribe = sesion.Tiene(u"write"_s) && !nombres.isEmpty();
    QJsonObject objeto { { u"copy"_s, *copia }, { u"changed"_s, !nombres.isEmpty() },
        { u"written"_s, escribe } };
    QJsonArray ficheros;
    for (const QString &nombre : nombres) {
        QStringList diferencia = Diferencia(
            nombre, host::decodeText(actuales[nombre]).text, host::decodeText(deCopia[nombre]).text);
        if (diferencia.isEmpty())
            diferencia += nombre + u": "_s + sesion.palabras.Zbo_SoloBytes;
        ficheros +=
            QJsonObject { { u"file"_s, nombre }, { u"diff"_s, QJsonArray::fromStringList(diferencia) } };
        if (!sesion.EnJson() && !escribe)
            sesion.Escribe(diferencia);
    }
    objeto[u"files"_s] = ficheros;
    QString dicho = copia->isEmpty() ? sesion.palabras.Zbo_NoCopias
        : nombres.isEmpty()          ? sesion.palabras.Zbo_NadaCambia
                                     : sesion.palabras.Zbo_Repondria.arg(*copia);
    if (escribe) {
        QString guardada;
        const Reposicion reposicion = guardaYRepon(nombres, deCopia, guardada);
        if (const std::optional<int> estado = fallida(sesion, *copia, guardada, reposicion))
            return *estado;
        objeto[u"kept"_s] = guardada;
        dicho = sesion.palabras.Zbo_Repuesto.arg(*copia, guardada);
    }
    if (sesion.EnJson())
        sesion.Json(objeto);
    else
        sesion.Escribe(dicho);
    return nombres.isEmpty() || escribe ? Bien : Hallazgos;
}

} // namespace

const Orden &OrdenGuardar()
{
    static const Orden orden { u"save"_s, {}, &Palabras::Zbo_Save, {}, guarda };
    return orden;
}

const Orden &OrdenReponer()
{
    static const Orden orden { u"restore"_s, u"[COPY]"_s, &Palabras::Zbo_Restore,
        { { u"list"_s, {}, &Palabras::Zbo_OpList }, OpcionWrite() }, repone };
    return orden;
}

} // namespace companion
