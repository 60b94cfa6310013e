#include "companion/dicho.h"

#include "companion/otrosistema.h"
#include "companion/impedimento.h"
#include "companion/pantalla.h"

#include "host/paths.h"

#include "launch/ensayo.h"
#include "launch/shell.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Why it would not start; empty if it would.
QString impedimento(const Sesion &sesion, const launch::Ensayo &ensayo)
{
    if (!ensayo.orden)
        return ensayo.aviso.isEmpty() ? sesion.palabras.Zbo_NadaSeLanza : ensayo.aviso;
    const QStringList argumentos = ensayo.orden->Argumentos();
    if (argumentos.isEmpty())
        return sesion.palabras.Zbo_SinPrograma;
    const launch::Encargo &encargo = ensayo.encargo;
    if (encargo.corredor != launch::Corredor::Ninguno)
        return launch::TextoDe(encargo.traba, encargo.corredor, sesion.M.Palabras);
    // A bare name is the executable's in its own directory, where it will be started.
    const QString &programa = argumentos.first();
    const QString ruta = programa.contains(u'/') ? programa : ensayo.directorio + u'/' + programa;
    const std::optional<Impedimento> impedimento = ImpedimentoDe(ruta, sesion.palabras);
    return impedimento ? impedimento->texto : QString();
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

QJsonObject enJson(const Pedida &pedida, const launch::Ensayo &ensayo, const QString &motivo)
{
    QJsonObject objeto { { u"system"_s, pedida.pareja.nombreSistema },
        { u"emulator"_s, pedida.pareja.nombreEmulador }, { u"entry"_s, pedida.entrada },
        { u"starts"_s, motivo.isEmpty() } };
    if (!motivo.isEmpty())
        objeto[u"problem"_s] = motivo;
    if (ensayo.orden) {
        objeto[u"arguments"_s] = QJsonArray::fromStringList(ensayo.orden->Argumentos());
        AnadeCorredor(objeto, ensayo.encargo);
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

void cuenta(const Sesion &sesion, const launch::Ensayo &ensayo, const QString &motivo)
{
    const Palabras &palabras = sesion.palabras;
    if (ensayo.orden) {
        const bool sinHerramienta = ensayo.encargo.traba == launch::Traba::SinHerramienta;
        const QStringList argumentos = ArgumentosParaLaConsola(ensayo.encargo);
        if (sinHerramienta && (sesion.Tiene(u"lines"_s) || sesion.Tiene(u"shell"_s)))
            return sesion.Avisa(palabras.Zbo_NoArranca.arg(motivo));
        if (sesion.Tiene(u"lines"_s))
            return sesion.Escribe(argumentos);
        if (sesion.Tiene(u"shell"_s))
            return sesion.Escribe(launch::EnShell(argumentos));
        if (!sinHerramienta)
            sesion.Escribe(palabras.Zbo_LaOrden.arg(launch::EnShell(argumentos)));
        sesion.Escribe(palabras.Zbo_EnDir.arg(ensayo.directorio));
        sesion.Escribe(palabras.Zbo_ElTexto.arg(ensayo.orden->EnTexto()));
        sesion.Escribe(DichoDe(sesion, ensayo.encargo));
    }
    if (ensayo.zip)
        cuentaZip(sesion, *ensayo.zip);
    if (!motivo.isEmpty())
        sesion.Escribe(palabras.Zbo_NoArranca.arg(motivo));
}

int dice(Sesion &sesion)
{
    const std::optional<Pedida> pedida = JuegoPedido(sesion);
    if (!pedida)
        return NoPudo;
    PantallaDeTexto pantalla(sesion, pedida->pareja, pedida->entradas, pedida->entrada);
    const launch::Ensayo ensayo = launch::Ensaya(sesion.M, pantalla);
    const QString motivo = impedimento(sesion, ensayo);
    if (sesion.EnJson())
        sesion.Json(enJson(*pedida, ensayo, motivo));
    else
        cuenta(sesion, ensayo, motivo);
    return motivo.isEmpty() ? Bien : Hallazgos;
}

} // namespace

const Orden &OrdenDicha()
{
    static const Orden orden { u"command"_s, u"SYSTEM EMULATOR [ENTRY]"_s, &Palabras::Zbo_Command,
        { { u"lines"_s, {}, &Palabras::Zbo_OpLines }, { u"shell"_s, {}, &Palabras::Zbo_OpShell } }, dice };
    return orden;
}

} // namespace companion
