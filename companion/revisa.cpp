#include "companion/revisa.h"

#include "companion/diferencia.h"
#include "companion/otrosistema.h"
#include "companion/revision.h"

#include "host/paths.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QJsonObject enJson(const Hallazgo &hallazgo)
{
    QJsonObject objeto { { u"kind"_s, hallazgo.clase }, { u"text"_s, hallazgo.texto } };
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
    return { { u"system"_s, pareja.nombreSistema }, { u"emulator"_s, pareja.nombreEmulador },
        { u"listed"_s, cuenta.listados }, { u"other_extension"_s, cuenta.otraExtension },
        { u"filtered"_s, cuenta.filtrados }, { u"no_zip"_s, cuenta.otroTipo },
        { u"without_capture"_s, cuenta.sinCaptura } };
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

QString enLinea(const Hallazgo &hallazgo)
{
    if (!hallazgo.pareja.isEmpty())
        return hallazgo.pareja + u": "_s + hallazgo.texto;
    const QString lugar = hallazgo.linea > 0 ? u':' + QString::number(hallazgo.linea) : QString();
    return hallazgo.fichero + lugar + u": "_s + hallazgo.texto;
}

// A file that can't be read is a finding, and the others are looked at all the same.
template <typename Parte> void revisa(Revision &revision, const QString &fichero, Parte &&parte)
{
    try {
        parte();
    } catch (const host::Failure &fallo) {
        revision.push_back({ u"unreadable"_s, fichero, 0, {}, TextoDe(fallo) });
    }
}

void revisaFicheros(Sesion &sesion, Revision &revision)
{
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s })
        revisa(revision, fichero, [&] { RevisaCatalogo(sesion, fichero, revision); });
    revisa(revision, u"Zembro.rom"_s, [&] { RevisaNotas(sesion, revision); });
    revisa(revision, u"Zembro.cfg"_s, [&] { RevisaAjustes(sesion, revision); });
    revisa(revision, u"LNG"_s, [&] { RevisaIdiomas(sesion, revision); });
}

int revisaTodo(Sesion &sesion)
{
    Revision revision;
    bool hayCatalogo = false;
    revisa(revision, u"Zembro.emu"_s, [&] {
        LeeMundo(sesion);
        hayCatalogo = true;
    });
    const QString sistema = sesion.Argumento(0);
    if (!hayCatalogo && !host::exists(host::programFile(u"Zembro.emu"_s)))
        return sesion.Falla(sesion.palabras.Zbo_NoDir.arg(host::programDirectory()));
    if (sistema.isEmpty())
        revisaFicheros(sesion, revision);
    const std::vector<Pareja> parejas =
        hayCatalogo ? ParejasPedidas(sesion, sistema, sesion.Argumento(1)) : std::vector<Pareja>();
    if (parejas.empty() && !(sistema + sesion.Argumento(1)).isEmpty())
        return NoPudo;
    QJsonArray cuentas;
    QStringList lineas;
    for (const Pareja &pareja : parejas) {
        const Cuenta cuenta = RevisaPareja(sesion, pareja, revision);
        const launch::Encargo encargo = EncargoDe(sesion.M, pareja);
        QJsonObject contado = enJson(pareja, cuenta);
        AnadeCorredor(contado, encargo);
        cuentas += contado;
        lineas += sesion.palabras.Zbo_Cuenta.arg(pareja.nombreSistema, pareja.nombreEmulador,
            QString::number(cuenta.listados), QString::number(cuenta.otraExtension + cuenta.otroTipo),
            QString::number(cuenta.filtrados), QString::number(cuenta.sinCaptura));
        lineas += DichoDe(sesion, encargo);
    }
    RevisaCapturas(sesion, parejas, revision);
    if (sesion.EnJson()) {
        sesion.Json({ { u"findings"_s, enJson(revision) }, { u"pairs"_s, cuentas } });
    } else {
        for (const Hallazgo &hallazgo : revision)
            sesion.Escribe(enLinea(hallazgo));
        sesion.Escribe(lineas);
    }
    return revision.empty() ? Bien : Hallazgos;
}

// What a repair changes, or would change. It is decided by the text that the rewrite has just read.
QStringList remendado(Sesion &sesion, const Remiendo &remiendo)
{
    QString antes = TextoDelPrograma(remiendo.fichero);
    QString despues = remiendo.cambio(antes);
    if (sesion.Tiene(u"write"_s) && !Diferencia(remiendo.fichero, antes, despues).isEmpty()) {
        sesion.M.Ficheros.closeAll();
        sesion.M.Ficheros.rewrite(
            host::programFile(remiendo.fichero), u"Zembro.tmp"_s, [&](const QString &texto) {
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
        return sesion.Falla(sesion.palabras.Zbo_NoDir.arg(host::programDirectory()));
    const bool escribe = sesion.Tiene(u"write"_s);
    QJsonArray cambios;
    QStringList lineas;
    Revision fallos;
    for (const Remiendo &remiendo : Remiendos()) {
        revisa(fallos, remiendo.fichero, [&] {
            const QStringList diferencia = remendado(sesion, remiendo);
            if (!diferencia.isEmpty())
                cambios += enJson(remiendo.fichero, diferencia);
            lineas += diferencia;
        });
    }
    if (sesion.EnJson())
        sesion.Json(
            { { u"written"_s, escribe }, { u"changes"_s, cambios }, { u"findings"_s, enJson(fallos) } });
    else
        sesion.Escribe(lineas);
    for (const Hallazgo &fallo : fallos)
        sesion.Avisa(enLinea(fallo));
    if (!fallos.empty())
        return NoPudo;
    return cambios.isEmpty() || escribe ? Bien : Hallazgos;
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
