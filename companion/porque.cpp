#include "companion/porque.h"

#include "companion/impedimento.h"
#include "companion/otrosistema.h"
#include "companion/sesion.h"

#include "host/aside.h"
#include "host/encoding.h"
#include "host/failure.h"

#include "launch/shell.h"

#include <QJsonArray>

#include <cstring>

using namespace Qt::StringLiterals;

namespace companion {

QByteArray FicheroDeLineas()
{
    QByteArray nombrado = qgetenv(host::AsideFileVariable);
    if (!nombrado.isEmpty())
        return nombrado;
    const QByteArray estado = qgetenv("XDG_STATE_HOME");
    const QByteArray base = estado.isEmpty() ? qgetenv("HOME") + "/.local/state" : estado;
    return base + "/zembrolix/log";
}

namespace {

// What loaders and shells end with where something is missing, or may not be run.
constexpr int EstadoSinCargar = 127;
constexpr int EstadoSinEjecutar = 126;

// A bare name is the executable's in its own directory.
QString programaDe(const launch::Partida &partida)
{
    const QString &nombre = partida.argumentos.first();
    return nombre.contains(u'/') ? nombre : partida.directorio + u'/' + nombre;
}

// What it lacks, where its loader or its interpreter ended it.
std::vector<Impedimento> faltasTras(const launch::Partida &partida, const Palabras &palabras)
{
    const int estado = partida.final.status.value_or(0);
    if (partida.argumentos.isEmpty() || (estado != EstadoSinCargar && estado != EstadoSinEjecutar))
        return {};
    return LoQueLeFalta(programaDe(partida), palabras);
}

// The lines of the last launch; else why there are none, in words.
struct Contada {
    std::optional<launch::Partida> partida;
    QString falta;
};

Contada ultimaContada(const Palabras &palabras)
{
    const QByteArray ruta = FicheroDeLineas();
    const QString fichero = host::nameFromDisk(ruta);
    try {
        const std::optional<QByteArray> lineas = host::readAside(ruta);
        if (!lineas)
            return { std::nullopt, palabras.Zbo_NoSuyas.arg(fichero) };
        return { launch::UltimaPartida(host::nameFromDisk(*lineas)), palabras.Zbo_SinPartida.arg(fichero) };
    } catch (const host::Failure &) {
        return { std::nullopt, palabras.Zbo_SinLineas.arg(fichero) };
    }
}

int porque(Sesion &sesion)
{
    Revision pendientes;
    const Rescatado rescatado = RescataLoGuardado(sesion, pendientes);
    QStringList quedan;
    for (const Hallazgo &hallazgo : pendientes)
        quedan += hallazgo.texto;
    const auto [partida, falta] = ultimaContada(sesion.palabras);
    if (!partida) {
        for (const QString &linea : rescatado.lineas + quedan)
            sesion.Avisa(linea);
        return sesion.Falla(falta);
    }
    QJsonObject objeto = PartidaEnJson(*partida, sesion.palabras);
    objeto[u"brought_back"_s] = QJsonArray::fromStringList(rescatado.vueltos);
    objeto[u"left_behind"_s] = QJsonArray::fromStringList(quedan);
    if (sesion.EnJson())
        sesion.Json(objeto);
    else
        sesion.Escribe(CuentaPartida(*partida, sesion.palabras) + rescatado.lineas + quedan);
    return AcaboBien(*partida) && quedan.isEmpty() ? Bien : Hallazgos;
}

} // namespace

bool AcaboBien(const launch::Partida &partida)
{
    return partida.fallo.isEmpty() && !partida.final.signal && partida.final.status.value_or(0) == 0;
}

QString NombreDeSenal(int senal)
{
    const char *nombre = sigabbrev_np(senal);
    return nombre ? u"SIG"_s + QString::fromLatin1(nombre) : QString::number(senal);
}

QStringList CuentaPartida(const launch::Partida &partida, const Palabras &palabras)
{
    QStringList lineas { palabras.Zbo_Partida.arg(
        partida.sistema, partida.emulador, partida.entrada, partida.momento) };
    if (!partida.argumentos.isEmpty())
        lineas << palabras.Zbo_LaOrden.arg(launch::EnShell(partida.argumentos))
               << palabras.Zbo_EnDir.arg(partida.directorio);
    if (!partida.aviso.isEmpty())
        lineas << partida.aviso;
    const QString segundos = QString::number(partida.segundos, 'f', 1);
    if (!partida.fallo.isEmpty())
        lineas << palabras.Zbo_NoArranca.arg(MotivoDe(partida, palabras));
    else if (partida.final.signal)
        lineas << palabras.Zbo_PorSenal.arg(NombreDeSenal(*partida.final.signal), segundos);
    else if (partida.final.status)
        lineas << palabras.Zbo_ConEstado.arg(QString::number(*partida.final.status), segundos);
    else
        lineas << (partida.acabada ? palabras.Zbo_FinSinSaber.arg(segundos) : palabras.Zbo_SinFinal);
    const QString otro = partida.fallo.startsWith(launch::SinEjecutable)
        ? ProgramaParecido(partida.fallo.sliced(launch::SinEjecutable.size()))
        : QString();
    if (!otro.isEmpty())
        lineas << palabras.Zbo_Parecido.arg(otro);
    for (const Impedimento &falta : faltasTras(partida, palabras))
        lineas << falta.texto;
    return lineas;
}

// The log says it in English, the language of who searches it.
QString MotivoDe(const launch::Partida &partida, const Palabras &palabras)
{
    if (partida.fallo.startsWith(launch::SinEjecutable))
        return NoHayPrograma(partida.fallo.sliced(launch::SinEjecutable.size()), palabras);
    if (!partida.fallo.startsWith(launch::NoArranco) || partida.argumentos.isEmpty())
        return partida.fallo;
    const QString programa = programaDe(partida);
    const std::optional<Impedimento> impedimento = ImpedimentoDe(programa, palabras);
    return impedimento ? impedimento->texto : palabras.Zbo_NoEsPrograma.arg(programa);
}

QJsonObject PartidaEnJson(const launch::Partida &partida, const Palabras &palabras)
{
    QJsonObject objeto { { u"time"_s, partida.momento }, { u"system"_s, partida.sistema },
        { u"emulator"_s, partida.emulador }, { u"entry"_s, partida.entrada },
        { u"arguments"_s, QJsonArray::fromStringList(partida.argumentos) },
        { u"directory"_s, partida.directorio } };
    if (!partida.aviso.isEmpty())
        objeto[u"notice"_s] = partida.aviso;
    if (!partida.fallo.isEmpty())
        objeto[u"problem"_s] = MotivoDe(partida, palabras);
    if (partida.final.status)
        objeto[u"status"_s] = *partida.final.status;
    if (partida.final.signal)
        objeto[u"signal"_s] = *partida.final.signal;
    QJsonArray faltas;
    for (const Impedimento &falta : faltasTras(partida, palabras))
        faltas += falta.texto;
    if (!faltas.isEmpty())
        objeto[u"missing"_s] = faltas;
    if (partida.acabada)
        objeto[u"seconds"_s] = partida.segundos;
    return objeto;
}

const Orden &OrdenPorque()
{
    static const Orden orden { u"why"_s, {}, &Palabras::Zbo_Why, {}, porque, true };
    return orden;
}

} // namespace companion
