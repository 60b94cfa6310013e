#include "companion/dicho.h"

#include "companion/otrosistema.h"
#include "companion/impedimento.h"
#include "companion/pantalla.h"

#include "core/rutas.h"

#include "host/paths.h"

#include "launch/ensayo.h"
#include "launch/piezas.h"
#include "launch/shell.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Why it would not start; empty if it would. And the program that may be meant by one that isn't there.
struct MotivoDeParo {
    QString texto;
    QString parecido;
};

// The path that the catalogue has for the program that isn't there; none where it is.
std::optional<QString> programaQueFalta(const core::Modulo &M, const Pareja &pareja)
{
    const QString exe = core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila));
    return launch::ProgramaDe(exe).ExeCorto.enDisco.isEmpty() ? std::optional(exe) : std::nullopt;
}

QString impedimento(const Sesion &sesion, const launch::Ensayo &ensayo)
{
    if (!ensayo.orden)
        return ensayo.aviso.isEmpty() ? sesion.palabras.Zbo_NadaSeLanza : ensayo.aviso;
    const launch::Encargo &encargo = ensayo.encargo;
    if (encargo.corredor != launch::Corredor::Ninguno)
        return launch::TextoDe(encargo.traba, encargo.corredor, sesion.M.Palabras);
    // A bare name is the executable's in its own directory, where it will be started.
    const QString programa = ensayo.orden->Argumentos().first();
    const QString ruta = programa.contains(u'/') ? programa : ensayo.directorio + u'/' + programa;
    const std::optional<Impedimento> impedimento = ImpedimentoDe(ruta, sesion.palabras);
    return impedimento ? impedimento->texto : QString();
}

MotivoDeParo motivoDe(const Sesion &sesion, const Pareja &pareja, const launch::Ensayo &ensayo)
{
    const std::optional<QString> falta = programaQueFalta(sesion.M, pareja);
    const QString pegado = ProgramaPegado(sesion.M, pareja);
    if (!falta && !pegado.isEmpty())
        return { sesion.palabras.Zbo_ParPegado.arg(pegado), {} };
    if (!ensayo.orden || !ensayo.orden->Argumentos().isEmpty())
        return { impedimento(sesion, ensayo), {} };
    if (!falta)
        return { sesion.palabras.Zbo_SinPrograma, {} };
    return { NoHayPrograma(*falta, sesion.palabras), ProgramaParecido(*falta) };
}

QJsonObject enJson(const launch::Ensayo::Zip &zip)
{
    return { { u"archive"_s, zip.archivo }, { u"into"_s, zip.destino },
        { u"files"_s, QJsonArray::fromStringList(zip.miembros.ficheros + zip.miembros.masAbajo) },
        { u"unreadable"_s,
            QJsonArray::fromStringList(zip.miembros.ilegibles + zip.miembros.ilegiblesMasAbajo) },
        { u"replaced"_s, QJsonArray::fromStringList(zip.queEstan) },
        { u"stays"_s, QJsonArray::fromStringList(zip.seQuedan) },
        { u"removed"_s, zip.seVaEntero ? u"directory"_s : u"files"_s } };
}

// A line that the other system can't be told leaves nothing that could be taken for a command.
bool seNiega(const launch::Ensayo &ensayo)
{
    const launch::Encargo &encargo = ensayo.encargo;
    return !ensayo.orden || ensayo.orden->Argumentos().isEmpty()
        || (encargo.traba != launch::Traba::Ninguna && encargo.traba != launch::Traba::SinHerramienta)
        || (encargo.corredor == launch::Corredor::DOSBox && encargo.programaDOS.isEmpty());
}

bool hayOrden(const launch::Ensayo &ensayo)
{
    return !seNiega(ensayo) && ensayo.encargo.traba == launch::Traba::Ninguna;
}

QJsonObject enJson(const Pedida &pedida, const launch::Ensayo &ensayo, const MotivoDeParo &motivo)
{
    QJsonObject objeto { { u"system"_s, pedida.pareja.nombreSistema },
        { u"emulator"_s, pedida.pareja.nombreEmulador }, { u"entry"_s, pedida.entrada },
        { u"starts"_s, motivo.texto.isEmpty() } };
    if (!motivo.texto.isEmpty())
        objeto[u"problem"_s] = motivo.texto;
    if (!motivo.parecido.isEmpty())
        objeto[u"similar"_s] = motivo.parecido;
    AnadeCorredor(objeto, ensayo.encargo);
    if (!seNiega(ensayo)) {
        objeto[u"arguments"_s] = QJsonArray::fromStringList(ensayo.orden->Argumentos());
        objeto[u"text"_s] = ensayo.orden->EnTexto();
        objeto[u"directory"_s] = ensayo.directorio;
        objeto[u"debug"_s] = ensayo.enDepuracion;
    }
    if (ensayo.zip)
        objeto[u"unpacks"_s] = enJson(*ensayo.zip);
    return objeto;
}

void cuentaZip(const Sesion &sesion, const launch::Ensayo::Zip &zip)
{
    const Palabras &palabras = sesion.palabras;
    sesion.Escribe(palabras.Zbo_Desempaqueta.arg(zip.archivo, zip.destino));
    for (const QString &fichero : zip.miembros.ficheros + zip.miembros.masAbajo)
        sesion.Escribe(u"    "_s + fichero);
    for (const QString &fichero : zip.miembros.ilegibles + zip.miembros.ilegiblesMasAbajo)
        sesion.Escribe(palabras.Zbo_Ilegible.arg(fichero));
    for (const QString &fichero : zip.queEstan)
        sesion.Escribe(palabras.Zbo_YaEsta.arg(fichero));
    sesion.Escribe(zip.seVaEntero ? palabras.Zbo_SeBorraDir : palabras.Zbo_SeBorran);
    for (const QString &subdirectorio : zip.seQuedan)
        sesion.Escribe(palabras.Zbo_SeQueda.arg(zip.destino + u'/' + subdirectorio + u'/'));
}

QStringList enLineas(const MotivoDeParo &motivo, const Palabras &palabras)
{
    QStringList lineas;
    if (!motivo.texto.isEmpty())
        lineas += palabras.Zbo_NoArranca.arg(motivo.texto);
    if (!motivo.parecido.isEmpty())
        lineas += palabras.Zbo_Parecido.arg(motivo.parecido);
    return lineas;
}

void cuentaOrden(const Sesion &sesion, const launch::Ensayo &ensayo)
{
    const Palabras &palabras = sesion.palabras;
    if (hayOrden(ensayo))
        sesion.Escribe(palabras.Zbo_LaOrden.arg(launch::EnShell(ArgumentosParaLaConsola(ensayo.encargo))));
    if (!seNiega(ensayo))
        sesion.Escribe(QStringList {
            palabras.Zbo_EnDir.arg(ensayo.directorio), palabras.Zbo_ElTexto.arg(ensayo.orden->EnTexto()) });
    sesion.Escribe(DichoDe(sesion, ensayo.encargo));
}

// A script takes what stands on the standard output for a command.
void cuentaSoloOrden(const Sesion &sesion, const launch::Ensayo &ensayo, const QStringList &razones)
{
    if (!hayOrden(ensayo)) {
        for (const QString &razon : razones)
            sesion.Avisa(razon);
        return;
    }
    const QStringList argumentos = ArgumentosParaLaConsola(ensayo.encargo);
    sesion.Escribe(sesion.Tiene(u"lines"_s) ? argumentos : QStringList { launch::EnShell(argumentos) });
}

void cuenta(const Sesion &sesion, const launch::Ensayo &ensayo, const MotivoDeParo &motivo)
{
    const QStringList razones = enLineas(motivo, sesion.palabras);
    if (sesion.Tiene(u"lines"_s) || sesion.Tiene(u"shell"_s))
        return cuentaSoloOrden(sesion, ensayo, razones);
    const bool razonesPrimero = seNiega(ensayo);
    if (razonesPrimero)
        sesion.Escribe(razones);
    cuentaOrden(sesion, ensayo);
    if (ensayo.zip)
        cuentaZip(sesion, *ensayo.zip);
    if (!razonesPrimero)
        sesion.Escribe(razones);
}

int dice(Sesion &sesion)
{
    const std::optional<Pedida> pedida = JuegoPedido(sesion);
    if (!pedida)
        return NoPudo;
    PantallaDeTexto pantalla(sesion, pedida->pareja, pedida->entradas, pedida->entrada);
    const launch::Ensayo ensayo = launch::Ensaya(sesion.M, pantalla);
    const MotivoDeParo motivo = motivoDe(sesion, pedida->pareja, ensayo);
    if (sesion.EnJson())
        sesion.Json(enJson(*pedida, ensayo, motivo));
    else
        cuenta(sesion, ensayo, motivo);
    return motivo.texto.isEmpty() ? Bien : Hallazgos;
}

} // namespace

const Orden &OrdenDicha()
{
    static const Orden orden { u"command"_s, u"SYSTEM EMULATOR [ENTRY]"_s, &Palabras::Zbo_Command,
        { { u"lines"_s, {}, &Palabras::Zbo_OpLines }, { u"shell"_s, {}, &Palabras::Zbo_OpShell } }, dice };
    return orden;
}

} // namespace companion
