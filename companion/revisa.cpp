#include "companion/revisa.h"

#include "companion/copias.h"
#include "companion/diferencia.h"
#include "companion/otrosistema.h"
#include "companion/revision.h"

#include "host/paths.h"

#include <QHash>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QJsonObject enJson(const Hallazgo &hallazgo)
{
    QJsonObject objeto { { u"kind"_s, hallazgo.clase }, { u"text"_s, hallazgo.texto },
        { u"mendable"_s, hallazgo.seRemienda } };
    if (!hallazgo.copia.isEmpty())
        objeto[u"copy"_s] = hallazgo.copia;
    if (hallazgo.primera > 0)
        objeto[u"first_line"_s] = hallazgo.primera;
    if (!hallazgo.fichero.isEmpty())
        objeto[u"file"_s] = hallazgo.fichero;
    if (hallazgo.linea > 0)
        objeto[u"line"_s] = hallazgo.linea;
    if (!hallazgo.pareja.isEmpty())
        objeto[u"pair"_s] = hallazgo.pareja;
    return objeto;
}

QJsonObject enJson(const Pareja &pareja, const Cuenta &cuenta)
{
    QJsonArray sinCaptura;
    for (const SinCaptura &una : cuenta.sinCaptura)
        sinCaptura += QJsonObject { { u"entry"_s, una.entrada }, { u"looked_for"_s, una.ruta } };
    return { { u"not_verified"_s, cuenta.sinVerificar }, { u"system"_s, pareja.nombreSistema },
        { u"emulator"_s, pareja.nombreEmulador }, { u"listed"_s, cuenta.listados },
        { u"other_extension"_s, cuenta.otraExtension }, { u"filtered"_s, cuenta.filtrados },
        { u"no_zip"_s, cuenta.otroTipo }, { u"other_things"_s, cuenta.otraCosa.size() },
        { u"hidden"_s, cuenta.ocultos.size() }, { u"without_capture"_s, sinCaptura.size() },
        { u"missing_captures"_s, sinCaptura } };
}

QJsonArray enJson(const Revision &revision)
{
    QJsonArray todos;
    for (const Hallazgo &hallazgo : revision)
        todos += enJson(hallazgo);
    return todos;
}

QJsonObject enJson(const QString &fichero, const QStringList &diferencia)
{
    return { { u"file"_s, fichero }, { u"diff"_s, QJsonArray::fromStringList(diferencia) } };
}

QString sitioDe(const QString &fichero, int linea)
{
    return fichero + (linea > 0 ? u':' + QString::number(linea) : QString());
}

// Behind a text that ends in a value, which it must not run into, in brackets.
QString pistaTras(const QString &texto, const QString &pista)
{
    return texto.endsWith(u'.') ? u' ' + pista : u" ["_s + pista + u']';
}

QString enLinea(const Hallazgo &hallazgo, const Palabras &palabras)
{
    QStringList partes;
    if (!hallazgo.fichero.isEmpty())
        partes += sitioDe(hallazgo.fichero, hallazgo.linea);
    if (!hallazgo.pareja.isEmpty())
        partes += hallazgo.pareja;
    QString texto = hallazgo.texto;
    if (hallazgo.primera > 0)
        texto += u" ("_s + sitioDe(hallazgo.fichero, hallazgo.primera) + u')';
    if (hallazgo.seRemienda)
        texto += pistaTras(texto, palabras.Zbo_LoRemienda);
    if (!hallazgo.copia.isEmpty())
        texto += pistaTras(texto, palabras.Zbo_EnCopia.arg(hallazgo.copia));
    return (partes + QStringList { texto }).join(u": "_s);
}

// How many of them there are, and their names; not all of many where all pairs are told of.
QString nombrados(const QString &dicho, const QStringList &nombres, bool todos)
{
    constexpr qsizetype unos = 3;
    const qsizetype dichos = todos ? nombres.size() : std::min(nombres.size(), unos);
    return u"    "_s
        + dicho.arg(QString::number(nombres.size()),
            nombres.first(dichos).join(u", "_s) + (dichos < nombres.size() ? u" ..."_s : QString()));
}

// The count of a pair, and which games lack a capture: all of them where the pair was asked for.
QStringList enLineas(const Sesion &sesion, const Pareja &pareja, const Cuenta &cuenta)
{
    constexpr qsizetype unas = 3;
    const Palabras &palabras = sesion.palabras;
    const bool todas = !sesion.Argumento(0).isEmpty();
    const qsizetype total = qsizetype(cuenta.sinCaptura.size());
    const qsizetype dichas = todas ? total : std::min(total, unas);
    QStringList lineas { palabras.Zbo_Cuenta.arg(pareja.nombreSistema, pareja.nombreEmulador,
        QString::number(cuenta.listados),
        QString::number(cuenta.otraExtension + cuenta.otroTipo + cuenta.otraCosa.size()),
        QString::number(cuenta.filtrados), QString::number(total)) };
    const bool directorios = core::UnDirectorioPorJuego(TipoDe(sesion.M, pareja));
    if (!cuenta.otraCosa.isEmpty())
        lineas +=
            nombrados(directorios ? palabras.Zbo_NoDirs : palabras.Zbo_NoFicheros, cuenta.otraCosa, todas);
    if (!cuenta.ocultos.isEmpty())
        lineas += nombrados(palabras.Zbo_Ocultos, cuenta.ocultos, todas);
    for (qsizetype i = 0; i < dichas; ++i) {
        const SinCaptura &una = cuenta.sinCaptura[size_t(i)];
        lineas += u"    "_s + palabras.Zbo_FaltaCaptura.arg(una.entrada, una.ruta);
    }
    if (cuenta.sinVerificar > 0)
        lineas += u"    "_s
            + palabras.Zbo_SinVerificar.arg(cuenta.listados - cuenta.sinVerificar).arg(cuenta.sinVerificar);
    if (dichas < total)
        lineas += u"    "_s + palabras.Zbo_FaltanMas.arg(total - dichas);
    return lineas;
}

// Of such a file its own finding tells.
bool hayFicheroVacio(const Sesion &sesion, const QString &fichero)
{
    return host::exists(host::programFile(fichero))
        && TextoDelPrograma(sesion.M, fichero).trimmed().isEmpty();
}

// The newest copy that has a file; empty where none has.
QString copiaCon(const QString &fichero)
{
    const QStringList copias = Copias();
    const auto suya = std::ranges::find_if(
        copias, [&](const QString &copia) { return host::exists(RutaDeCopia(copia, fichero)); });
    return suya == copias.end() ? QString() : *suya;
}

// Without a catalogue there is nothing to look at.
int faltaElCatalogo(const Sesion &sesion)
{
    const QString copia = copiaCon(u"Zembro.emu"_s);
    if (copia.isEmpty())
        return sesion.Falla(sesion.palabras.Zbo_NoDir.arg(host::programDirectory()));
    return sesion.Falla(sesion.palabras.Zbo_FalloFichero + u": "_s + host::programFile(u"Zembro.emu"_s)
        + u" ["_s + sesion.palabras.Zbo_EnCopia.arg(copia) + u']');
}

// False where the catalogue isn't read to its end. Of what doesn't fit its own findings tell.
bool leeCatalogo(Sesion &sesion, Revision &revision)
{
    try {
        LeeMundo(sesion);
        return true;
    } catch (const host::Failure &fallo) {
        if (fallo.number() != host::OutOfRange && !hayFicheroVacio(sesion, u"Zembro.emu"_s))
            revision.push_back({ u"unreadable"_s, u"Zembro.emu"_s, 0, {}, TextoDe(fallo, sesion.palabras) });
        return false;
    }
}

struct Respuesta {
    Revision revision;
    QJsonArray cuentas;
    QStringList lineas;
};

// The files, and these pairs.
Respuesta revisado(Sesion &sesion, const std::vector<Pareja> &parejas, Revision revision)
{
    Respuesta respuesta { std::move(revision), {}, {} };
    RevisaFicheros(sesion, respuesta.revision);
    const LineasDelCatalogo lineasDelCatalogo(
        parejas.empty() ? QString() : TextoDelPrograma(sesion.M, u"Zembro.emu"_s));
    for (const Pareja &pareja : parejas) {
        const Cuenta cuenta = RevisaPareja(sesion, pareja, lineasDelCatalogo, respuesta.revision);
        const launch::Encargo encargo = EncargoDe(sesion.M, pareja);
        QJsonObject contado = enJson(pareja, cuenta);
        AnadeCorredor(contado, encargo);
        respuesta.cuentas += contado;
        respuesta.lineas += enLineas(sesion, pareja, cuenta);
        respuesta.lineas += DichoDe(sesion, encargo);
    }
    RevisaCapturas(sesion, parejas, lineasDelCatalogo, respuesta.revision);
    RevisaUnidades(sesion, respuesta.revision);
    return respuesta;
}

// Lets the repaired texts be read in the place of the files. False where all of them are as they should be.
bool leeRemendados(Sesion &sesion)
{
    bool alguno = false;
    for (const Remiendo &remiendo : Remiendos(sesion.M)) {
        try {
            const QString antes = TextoDelPrograma(sesion.M, remiendo.fichero);
            const QString despues = remiendo.cambio(antes);
            alguno = alguno || antes != despues;
            sesion.M.Ficheros.readInstead(host::programFile(remiendo.fichero), despues);
        } catch (const host::Failure &) {
            continue; // a finding of its own
        }
    }
    return alguno;
}

// What --mend repairs is what is found no more behind it.
void marcaRemendables(Sesion &sesion, const std::vector<Pareja> &parejas, Revision &revision)
{
    if (revision.empty() || !leeRemendados(sesion))
        return;
    Revision despues;
    leeCatalogo(sesion, despues);
    QHash<QString, int> quedan;
    for (const Hallazgo &hallazgo : revisado(sesion, parejas, std::move(despues)).revision)
        ++quedan[SenaDe(hallazgo)];
    for (Hallazgo &hallazgo : revision)
        hallazgo.seRemienda = quedan[SenaDe(hallazgo)]-- <= 0;
}

int revisaTodo(Sesion &sesion)
{
    Revision revision;
    const bool hayCatalogo = leeCatalogo(sesion, revision);
    const QString sistema = sesion.Argumento(0);
    const bool todo = (sistema + sesion.Argumento(1)).isEmpty();
    if (!hayCatalogo && !host::exists(host::programFile(u"Zembro.emu"_s)))
        return faltaElCatalogo(sesion);
    if (!hayCatalogo && !todo)
        return sesion.Falla(sesion.palabras.Zbo_CatalogoMal);
    const std::vector<Pareja> parejas =
        hayCatalogo ? ParejasPedidas(sesion, sistema, sesion.Argumento(1)) : std::vector<Pareja>();
    if (parejas.empty() && !todo)
        return NoPudo;
    const Rescatado rescatado = RescataLoGuardado(sesion, revision);
    Respuesta respuesta = revisado(sesion, parejas, std::move(revision));
    marcaRemendables(sesion, parejas, respuesta.revision);
    MarcaCopias(sesion, respuesta.revision);
    if (sesion.EnJson()) {
        sesion.Json({ { u"findings"_s, enJson(respuesta.revision) }, { u"pairs"_s, respuesta.cuentas },
            { u"brought_back"_s, QJsonArray::fromStringList(rescatado.vueltos) } });
    } else {
        sesion.Escribe(rescatado.lineas);
        for (const Hallazgo &hallazgo : respuesta.revision)
            sesion.Escribe(enLinea(hallazgo, sesion.palabras));
        sesion.Escribe(respuesta.lineas);
    }
    return respuesta.revision.empty() ? Bien : Hallazgos;
}

// How many findings there are behind the repairs.
qsizetype losQueQuedan(Sesion &sesion)
{
    Revision revision;
    const bool hayCatalogo = leeCatalogo(sesion, revision);
    const std::vector<Pareja> parejas = hayCatalogo ? Parejas(sesion.M) : std::vector<Pareja>();
    return qsizetype(revisado(sesion, parejas, std::move(revision)).revision.size());
}

// What a repair changes, or would change, which is then read in the place of the file. It is decided by the
// text that the rewrite has just read.
QStringList remendado(Sesion &sesion, const Remiendo &remiendo)
{
    const QString ruta = host::programFile(remiendo.fichero);
    QString antes = TextoDelPrograma(sesion.M, remiendo.fichero);
    QString despues = remiendo.cambio(antes);
    if (!sesion.Tiene(u"write"_s)) {
        sesion.M.Ficheros.readInstead(ruta, despues);
    } else if (antes != despues) {
        sesion.M.Ficheros.closeAll();
        sesion.M.Ficheros.rewrite(ruta, u"Zembro.tmp"_s, [&](const QString &texto) {
            antes = texto;
            despues = remiendo.cambio(texto);
            return despues;
        });
    }
    return Diferencia(remiendo.fichero, antes, despues);
}

// Shows or makes the repairs, a file after the other. What can't be repaired is told behind what was.
int remienda(Sesion &sesion)
{
    if (!host::exists(host::programFile(u"Zembro.emu"_s)))
        return faltaElCatalogo(sesion);
    const bool escribe = sesion.Tiene(u"write"_s);
    QJsonArray cambios;
    QStringList lineas;
    Revision fallos;
    for (const Remiendo &remiendo : Remiendos(sesion.M)) {
        Revisa(fallos, remiendo.fichero, sesion.palabras, [&] {
            const QStringList diferencia = remendado(sesion, remiendo);
            if (!diferencia.isEmpty())
                cambios += enJson(remiendo.fichero, diferencia);
            lineas += diferencia;
        });
    }
    const qsizetype quedan = losQueQuedan(sesion);
    if (sesion.EnJson())
        sesion.Json({ { u"written"_s, escribe }, { u"changes"_s, cambios }, { u"findings"_s, enJson(fallos) },
            { u"remaining"_s, quedan } });
    else
        sesion.Escribe(lineas);
    if (quedan > 0 && fallos.empty())
        sesion.Avisa(sesion.palabras.Zbo_MendQuedan.arg(quedan));
    for (const Hallazgo &fallo : fallos)
        sesion.Avisa(enLinea(fallo, sesion.palabras));
    if (!fallos.empty())
        return NoPudo;
    return quedan == 0 && (cambios.isEmpty() || escribe) ? Bien : Hallazgos;
}

int hazRevision(Sesion &sesion)
{
    const bool remendando = sesion.Tiene(u"mend"_s);
    if (remendando && !sesion.Argumentos().isEmpty())
        return sesion.Falla(sesion.palabras.Zbo_MendTodo);
    if (!remendando && sesion.Tiene(u"write"_s))
        return sesion.Falla(sesion.palabras.Zbo_WriteMend);
    return remendando ? remienda(sesion) : revisaTodo(sesion);
}

} // namespace

const Orden &OrdenRevisa()
{
    static const Orden orden { u"check"_s, u"[SYSTEM [EMULATOR]]"_s, &Palabras::Zbo_Check,
        { { u"mend"_s, {}, &Palabras::Zbo_OpMend }, { u"write"_s, {}, &Palabras::Zbo_OpWrite } },
        hazRevision };
    return orden;
}

} // namespace companion
