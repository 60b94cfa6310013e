// What MAME itself says of its ROMs: those of the machine that the parameters name, else of the games, where
// a launch hands on their names alone.
#include "companion/revision.h"

#include "companion/pantalla.h"

#include "finder/eleccion.h"

#include "core/catalogo.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/process.h"
#include "host/reading.h"

#include "launch/ensayo.h"
#include "launch/piezas.h"
#include "launch/shell.h"

#include <QSet>

#include <algorithm>
#include <chrono>
#include <span>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Games whose ROMs are asked for where all pairs are checked, and in one call.
constexpr qsizetype JuegosPorLlamada = 500;

// Takes the options that tell MAME where its ROMs are out of the parameters.
QStringList dondeHayROMs(QStringList &parametros)
{
    QStringList opciones;
    for (qsizetype i = 0; i + 1 < parametros.size();) {
        if (parametros[i] == u"-rompath" || parametros[i] == u"-rp")
            opciones += { parametros.takeAt(i), parametros.takeAt(i) };
        else
            ++i;
    }
    return opciones;
}

class PreguntasAMAME {
public:
    PreguntasAMAME(const core::Modulo &M, const Pareja &pareja)
        : m_programa(launch::ProgramaDe(core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila))))
    {
        const auto parametrosDe = [&](const auto &tabla) {
            return host::splitArguments(
                host::lower(core::Valor(tabla(pareja.sistema, pareja.fila), core::PrefijoParametro)));
        };
        QStringList parametros = parametrosDe(M.Cat_PAR1);
        QStringList detras = parametrosDe(M.Cat_PAR2);
        delante = parametros.size();
        m_opciones = dondeHayROMs(parametros) + dondeHayROMs(detras);
        if (!parametros.isEmpty() && !parametros.first().startsWith(u'-'))
            maquina = parametros.first();
    }

    // Started where a launch starts it.
    QString Directorio() const { return m_programa.ExeDir.enDisco; }
    QString Orden(const QString &nombre) const { return launch::EnShell(orden({ nombre })); }

    struct Dicho {
        bool callado = false; // until it was ended
        bool todoBien = false;
        QString otraCosa; // how it ended, and what it said last, where no set of ROMs is named
        bool mudo = false; // ended by itself, and said nothing at all
        QSet<QString> buenas; // sets that it calls good
    };
    Dicho Pregunta(const QStringList &nombres) const;

    QString maquina; // that the parameters name, the first of them that is no option
    qsizetype delante = 0; // how many parameters stand ahead of the game

private:
    QStringList orden(const QStringList &nombres) const
    {
        return QStringList { m_programa.ExeCorto.enDisco, u"-verifyroms"_s } + nombres + m_opciones;
    }

    const launch::Programa m_programa;
    QStringList m_opciones;
};

// "romset pacman [puckman] is good"; of one that isn't there some say nothing.
QSet<QString> lasBuenas(const QByteArray &salida)
{
    QSet<QString> buenas;
    for (const QByteArray &linea : salida.split('\n')) {
        const QByteArray entera = linea.simplified();
        if (entera.startsWith("romset ")
            && (entera.endsWith(" is good") || entera.endsWith(" is best available")))
            buenas.insert(host::lower(QString::fromUtf8(entera.split(' ').value(1))));
    }
    return buenas;
}

QString otraCosaQueROMs(const host::ProcessEnd &final, const QByteArray &salida)
{
    constexpr qsizetype bastante = 200; // letters
    if (!final.signal && salida.contains("romset"))
        return {};
    const QString acaba =
        final.signal ? u"signal %1"_s.arg(*final.signal) : u"status %1"_s.arg(final.status.value_or(-1));
    const QByteArray ultima = salida.trimmed().split('\n').last().simplified();
    return ultima.isEmpty() ? acaba : acaba + u": "_s + QString::fromUtf8(ultima).left(bastante);
}

PreguntasAMAME::Dicho PreguntasAMAME::Pregunta(const QStringList &nombres) const
{
    Dicho dicho;
    QByteArray salida;
    try {
        const host::ProcessEnd final = host::readAllThatIsSaid(Directorio(), orden(nombres), PacienciaConMAME,
            [&salida](const QByteArray &trozo) { salida += trozo; });
        dicho.todoBien = final.status == 0;
        dicho.otraCosa = otraCosaQueROMs(final, salida);
        dicho.mudo = !final.signal && salida.trimmed().isEmpty();
    } catch (const host::Failure &fallo) {
        dicho.callado = fallo.number() == host::DeviceError;
        dicho.todoBien = !dicho.callado; // that it doesn't start is a finding of its own
    }
    dicho.buenas = lasBuenas(salida);
    return dicho;
}

// The name that a launch of the game hands on to MAME; empty where it hands on a path, or nothing is started.
QString nombreQueSePasa(
    Sesion &sesion, const Pareja &pareja, int entradas, const QString &entrada, qsizetype delante)
{
    PantallaDeTexto pantalla(sesion, pareja, entradas, entrada);
    const launch::Ensayo ensayo = launch::Ensaya(sesion.M, pantalla);
    const QString nombre = ensayo.orden ? ensayo.orden->Argumentos().value(delante + 1) : QString();
    return nombre.startsWith(u'-') || nombre.contains(u'/') ? QString() : nombre;
}

struct JuegoDeMAME {
    QString entrada;
    QString nombre;
};

// A rehearsal moves the working directory.
std::vector<JuegoDeMAME> juegosDeMAME(
    Sesion &sesion, const Pareja &pareja, const QStringList &entradas, qsizetype cuantos, qsizetype delante)
{
    const QString antes = host::currentDirectory();
    std::vector<JuegoDeMAME> juegos;
    for (const QString &entrada : entradas.first(cuantos)) {
        const QString nombre = nombreQueSePasa(sesion, pareja, int(entradas.size()), entrada, delante);
        if (!nombre.isEmpty())
            juegos.push_back({ entrada, nombre });
    }
    if (!antes.isEmpty())
        host::changeDirectory(antes);
    return juegos;
}

// The names of the sets of some games.
QStringList nombresDeSets(std::span<const JuegoDeMAME> juegos)
{
    QStringList nombres;
    for (const JuegoDeMAME &juego : juegos)
        nombres += juego.nombre;
    nombres.removeDuplicates();
    return nombres;
}

// Of a pair whose emulator is MAME, and starts.
class RevisorDeMAME {
public:
    RevisorDeMAME(const Sesion &sesion, const Pareja &pareja, int linea, Revision &revision)
        : m_palabras(sesion.palabras)
        , m_nombre(pareja.nombreSistema + u" / "_s + pareja.nombreEmulador)
        , m_linea(linea)
        , m_revision(revision)
        , mame(sesion.M, pareja)
    {
    }

    void Maquina()
    {
        const PreguntasAMAME::Dicho dicho = mame.Pregunta({ mame.maquina });
        if (!dicho.callado && !dicho.todoBien && (dicho.otraCosa.isEmpty() || dicho.mudo))
            halla(u"machine-without-roms"_s, m_palabras.Zbo_SinROMs, mame.maquina, mame.maquina);
        else
            diceOtraCosa(dicho, mame.maquina);
    }

    void Juegos(const std::vector<JuegoDeMAME> &juegos)
    {
        for (size_t desde = 0; desde < juegos.size(); desde += size_t(JuegosPorLlamada)) {
            const size_t cuantos = std::min(juegos.size() - desde, size_t(JuegosPorLlamada));
            if (!algunosJuegos(std::span(juegos).subspan(desde, cuantos)))
                return;
        }
    }

private:
    void halla(const QString &clase, const QString &dicho, const QString &cual, const QString &romset)
    {
        m_revision.push_back({ clase, u"Zembro.emu"_s, m_linea, m_nombre,
            dicho.arg(cual, mame.Directorio(), mame.Orden(romset)) });
    }

    bool diceOtraCosa(const PreguntasAMAME::Dicho &dicho, const QString &nombre);
    bool algunosJuegos(std::span<const JuegoDeMAME> juegos);

    const Palabras &m_palabras;
    const QString m_nombre;
    const int m_linea;
    Revision &m_revision;

public:
    const PreguntasAMAME mame;
};

// Told once, of all games: nothing is known of them.
bool RevisorDeMAME::diceOtraCosa(const PreguntasAMAME::Dicho &dicho, const QString &nombre)
{
    const auto segundos = std::chrono::duration_cast<std::chrono::seconds>(PacienciaConMAME);
    if (dicho.callado)
        halla(u"mame-silent"_s, m_palabras.Zbo_MAMECalla, QString::number(segundos.count()), nombre);
    else if (!dicho.todoBien && !dicho.otraCosa.isEmpty())
        halla(u"mame-failed"_s, m_palabras.Zbo_MAMEDice, dicho.otraCosa, nombre);
    else
        return false;
    return true;
}

// An old one takes one name alone, and says nothing of others. False where it need not be asked again.
bool RevisorDeMAME::algunosJuegos(std::span<const JuegoDeMAME> juegos)
{
    const QStringList nombres = nombresDeSets(juegos);
    const PreguntasAMAME::Dicho dicho = mame.Pregunta(nombres);
    if (!dicho.callado && !dicho.todoBien && dicho.buenas.isEmpty() && nombres.size() > 1) {
        const PreguntasAMAME::Dicho deUno = mame.Pregunta({ nombres.first() });
        if (deUno.callado)
            return !diceOtraCosa(deUno, nombres.first());
        if (!deUno.buenas.isEmpty())
            return true;
    }
    if (diceOtraCosa(dicho, nombres.first()))
        return false;
    for (const JuegoDeMAME &juego : juegos) {
        if (!dicho.todoBien && !dicho.buenas.contains(host::lower(juego.nombre)))
            halla(u"game-without-roms"_s, m_palabras.Zbo_JuegoSinROMs, juego.entrada, juego.nombre);
    }
    return true;
}

bool esDeMAME(const core::Modulo &M, const Pareja &pareja)
{
    const QString exe = core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila));
    return finder::EsMAME(launch::ProgramaDe(exe).ExeCorto.enDisco);
}

constexpr int UnDirectorio = 1; // types whose launches hand on the name of a game alone
constexpr int UnZip = 3;

} // namespace

std::chrono::milliseconds PacienciaConMAME = std::chrono::seconds(20);

void RevisaMaquinaDeMAME(
    const Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision)
{
    if (!esDeMAME(sesion.M, pareja))
        return;
    RevisorDeMAME revisor(sesion, pareja, lineas.EXE, revision);
    if (!revisor.mame.maquina.isEmpty())
        revisor.Maquina();
}

qsizetype RevisaJuegosDeMAME(Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas,
    const QStringList &entradas, Revision &revision)
{
    const int tipo = TipoDe(sesion.M, pareja);
    if (!esDeMAME(sesion.M, pareja) || (tipo != UnDirectorio && tipo != UnZip))
        return 0;
    RevisorDeMAME revisor(sesion, pareja, lineas.EXE, revision);
    if (!revisor.mame.maquina.isEmpty())
        return 0;
    const bool pedida = !sesion.Argumento(0).isEmpty();
    const qsizetype cuantos = pedida ? entradas.size() : std::min(entradas.size(), JuegosPorLlamada);
    revisor.Juegos(juegosDeMAME(sesion, pareja, entradas, cuantos, revisor.mame.delante));
    return entradas.size() - cuantos;
}

} // namespace companion
