#include "launch/cronica.h"

#include "launch/shell.h"

#include <QDateTime>

#include <utility>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

const QString NombreDelPrograma = u"zembrolix"_s;
constexpr qsizetype Cabecera = 4; // program, time, number, what happened

QString ahora()
{
    return QDateTime::currentDateTime().toString(Qt::ISODate);
}

QString siguienteNumero()
{
    static int lanzamientos = 0;
    return QString::number(getpid()) + u'.' + QString::number(++lanzamientos);
}

} // namespace

Cronica::Cronica(Voz voz)
    : m_voz(std::move(voz))
    , m_numero(siguienteNumero())
{
    m_partida.momento = ahora();
}

void Cronica::Di(const QStringList &partes)
{
    m_voz(EnShell(QStringList { NombreDelPrograma, ahora(), m_numero } + partes));
}

void Cronica::Juego(const QString &sistema, const QString &emulador, const QString &entrada)
{
    m_partida.sistema = sistema;
    m_partida.emulador = emulador;
    m_partida.entrada = entrada;
    Di({ u"game"_s, sistema, emulador, entrada });
}

void Cronica::Orden(const QStringList &argumentos, const QString &directorio)
{
    m_partida.argumentos = argumentos;
    m_partida.directorio = directorio;
    Di(QStringList { u"start"_s } + argumentos);
    Di({ u"directory"_s, directorio });
}

void Cronica::Aviso(const QString &texto)
{
    m_partida.aviso = texto;
    Di({ u"notice"_s, texto });
}

void Cronica::Fallo(const QString &motivo)
{
    m_partida.fallo = motivo;
    Di({ u"failed"_s, motivo });
}

void Cronica::Final(const host::ProcessEnd &final, double segundos)
{
    m_partida.acabada = true;
    m_partida.final = final;
    m_partida.segundos = segundos;
    const QString duracion = QString::number(segundos, 'f', 1);
    if (final.signal)
        Di({ u"signal"_s, QString::number(*final.signal), u"after"_s, duracion });
    else
        Di({ u"status"_s, final.status ? QString::number(*final.status) : u"unknown"_s, u"after"_s,
            duracion });
}

namespace {

std::optional<int> numero(const QString &texto)
{
    bool bien = false;
    const int valor = texto.toInt(&bien);
    return bien ? std::optional(valor) : std::nullopt;
}

void apunta(Partida &partida, const QString &suceso, const QStringList &resto)
{
    if (suceso == u"game") {
        partida.sistema = resto.value(0);
        partida.emulador = resto.value(1);
        partida.entrada = resto.value(2);
    } else if (suceso == u"start") {
        partida.argumentos = resto;
    } else if (suceso == u"directory") {
        partida.directorio = resto.value(0);
    } else if (suceso == u"notice") {
        partida.aviso = resto.value(0);
    } else if (suceso == u"failed") {
        partida.fallo = resto.value(0);
    } else if (suceso == u"status" || suceso == u"signal") {
        partida.acabada = true;
        (suceso == u"signal" ? partida.final.signal : partida.final.status) = numero(resto.value(0));
        partida.segundos = resto.value(2).toDouble();
    }
}

} // namespace

std::optional<Partida> UltimaPartida(const QString &texto)
{
    QList<QStringList> lineas;
    for (const QString &linea : texto.split(u'\n')) {
        const QStringList partes = DeShell(linea);
        if (partes.size() >= Cabecera && partes[0] == NombreDelPrograma)
            lineas += partes;
    }
    // The last one that began, whatever has ended since.
    QString ultima;
    for (const QStringList &partes : std::as_const(lineas)) {
        if (partes[3] == u"game")
            ultima = partes[2];
    }
    std::optional<Partida> partida;
    for (const QStringList &partes : std::as_const(lineas)) {
        if (partes[2] != ultima)
            continue;
        if (!partida || partes[3] == u"game") {
            partida.emplace();
            partida->momento = partes[1];
        }
        apunta(*partida, partes[3], partes.mid(Cabecera));
    }
    return partida;
}

} // namespace launch
