#include "companion/porque.h"

#include "companion/sesion.h"

#include "host/aside.h"
#include "host/encoding.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include "launch/shell.h"

#include <QJsonArray>

#include <cstring>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// The file that the variable names, else the one that the starters name.
QString ficheroDeLineas()
{
    const QByteArray nombrado = qgetenv(host::AsideFileVariable);
    if (!nombrado.isEmpty())
        return host::nameFromDisk(nombrado);
    const QByteArray estado = qgetenv("XDG_STATE_HOME");
    const QByteArray base = estado.isEmpty() ? qgetenv("HOME") + "/.local/state" : estado;
    return host::nameFromDisk(base + "/zembrolix/log");
}

QString nombreDeSenal(int senal)
{
    const char *nombre = sigabbrev_np(senal);
    return nombre ? u"SIG"_s + QString::fromLatin1(nombre) : QString::number(senal);
}

int porque(Sesion &sesion)
{
    const QString fichero = ficheroDeLineas();
    if (!host::exists(fichero))
        return sesion.Falla(sesion.palabras.Zbo_SinLineas.arg(fichero));
    constexpr qint64 mucho = 4 * host::MostOfAsideFile;
    const QString texto = host::nameFromDisk(host::readBytes(fichero, mucho));
    const std::optional<launch::Partida> partida = launch::UltimaPartida(texto);
    if (!partida)
        return sesion.Falla(sesion.palabras.Zbo_SinPartida.arg(fichero));
    if (sesion.EnJson())
        sesion.Json(PartidaEnJson(*partida));
    else
        sesion.Escribe(CuentaPartida(*partida, sesion.palabras));
    return AcaboBien(*partida) ? Bien : Hallazgos;
}

} // namespace

bool AcaboBien(const launch::Partida &partida)
{
    return partida.fallo.isEmpty() && !partida.final.signal && partida.final.status.value_or(0) == 0;
}

QStringList CuentaPartida(const launch::Partida &partida, const Palabras &palabras)
{
    QStringList lineas { palabras.Zbo_Partida.arg(
        partida.sistema, partida.emulador, partida.entrada, partida.momento) };
    if (!partida.argumentos.isEmpty())
        lineas << palabras.Zbo_LaOrden.arg(launch::EnShell(partida.argumentos))
               << palabras.Zbo_EnDir.arg(partida.directorio);
    const QString segundos = QString::number(partida.segundos, 'f', 1);
    if (!partida.fallo.isEmpty())
        lineas << palabras.Zbo_NoArranca.arg(partida.fallo);
    else if (partida.final.signal)
        lineas << palabras.Zbo_PorSenal.arg(nombreDeSenal(*partida.final.signal), segundos);
    else if (partida.final.status)
        lineas << palabras.Zbo_ConEstado.arg(QString::number(*partida.final.status), segundos);
    else
        lineas << palabras.Zbo_SinFinal;
    return lineas;
}

QJsonObject PartidaEnJson(const launch::Partida &partida)
{
    QJsonObject objeto { { u"time"_s, partida.momento }, { u"system"_s, partida.sistema },
        { u"emulator"_s, partida.emulador }, { u"entry"_s, partida.entrada },
        { u"arguments"_s, QJsonArray::fromStringList(partida.argumentos) },
        { u"directory"_s, partida.directorio } };
    if (!partida.fallo.isEmpty())
        objeto[u"problem"_s] = partida.fallo;
    if (partida.final.status)
        objeto[u"status"_s] = *partida.final.status;
    if (partida.final.signal)
        objeto[u"signal"_s] = *partida.final.signal;
    if (partida.final.status || partida.final.signal)
        objeto[u"seconds"_s] = partida.segundos;
    return objeto;
}

const Orden &OrdenPorque()
{
    static const Orden orden { u"why"_s, {}, &Palabras::Zbo_Why, {}, porque };
    return orden;
}

} // namespace companion
