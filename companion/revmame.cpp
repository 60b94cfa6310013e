// What MAME itself says of its ROMs: those of the machine that the parameters name, else of the games, where
// a launch hands on their names alone.
#include "companion/revision.h"

#include "companion/pantalla.h"

#include "finder/eleccion.h"

#include "core/catalogo.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/letters.h"
#include "host/paths.h"
#include "host/process.h"

#include "launch/ensayo.h"
#include "launch/piezas.h"
#include "launch/shell.h"

#include <QProcess>
#include <QSet>

#include <optional>

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
        bool acabo = false;
        bool todoBien = false;
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

PreguntasAMAME::Dicho PreguntasAMAME::Pregunta(const QStringList &nombres) const
{
    constexpr int paciencia = 20'000; // milliseconds
    constexpr int pacienciaPorJuego = 100;
    QProcess mame;
    mame.setStandardInputFile(QProcess::nullDevice());
    mame.setProcessChannelMode(QProcess::MergedChannels);
    mame.setWorkingDirectory(Directorio());
    mame.start(m_programa.ExeCorto.enDisco, orden(nombres).mid(1));
    Dicho dicho;
    dicho.acabo = mame.waitForFinished(paciencia + pacienciaPorJuego * int(nombres.size()))
        && mame.exitStatus() == QProcess::NormalExit;
    if (mame.state() != QProcess::NotRunning) {
        mame.kill();
        mame.waitForFinished(paciencia);
    }
    dicho.todoBien = dicho.acabo && mame.exitCode() == 0;
    // "romset pacman [puckman] is good"; of one that isn't there some say nothing.
    for (const QByteArray &linea : mame.readAllStandardOutput().split('\n')) {
        const QByteArray entera = linea.simplified();
        if (entera.startsWith("romset ")
            && (entera.endsWith(" is good") || entera.endsWith(" is best available")))
            dicho.buenas.insert(host::lower(QString::fromUtf8(entera.split(' ').value(1))));
    }
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

// The games of which MAME doesn't find all ROMs. An old one takes one name alone, and says nothing of others.
std::vector<JuegoDeMAME> losQueFallan(const PreguntasAMAME &mame, const std::vector<JuegoDeMAME> &juegos)
{
    std::vector<JuegoDeMAME> fallan;
    for (size_t desde = 0; desde < juegos.size(); desde += size_t(JuegosPorLlamada)) {
        const size_t hasta = std::min(juegos.size(), desde + size_t(JuegosPorLlamada));
        QStringList nombres;
        for (size_t i = desde; i < hasta; ++i)
            nombres += juegos[i].nombre;
        nombres.removeDuplicates();
        const PreguntasAMAME::Dicho dicho = mame.Pregunta(nombres);
        const bool deVarios = !dicho.buenas.isEmpty() || nombres.size() == 1
            || mame.Pregunta({ nombres.first() }).buenas.isEmpty();
        if (!dicho.acabo || dicho.todoBien || !deVarios)
            continue;
        for (size_t i = desde; i < hasta; ++i) {
            if (!dicho.buenas.contains(host::lower(juegos[i].nombre)))
                fallan.push_back(juegos[i]);
        }
    }
    return fallan;
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
        if (dicho.acabo && !dicho.todoBien)
            halla(u"machine-without-roms"_s, m_palabras.Zbo_SinROMs, mame.maquina, mame.maquina);
    }
    void Juegos(const std::vector<JuegoDeMAME> &juegos)
    {
        for (const JuegoDeMAME &juego : losQueFallan(mame, juegos))
            halla(u"game-without-roms"_s, m_palabras.Zbo_JuegoSinROMs, juego.entrada, juego.nombre);
    }

private:
    void halla(const QString &clase, const QString &dicho, const QString &cual, const QString &romset)
    {
        m_revision.push_back({ clase, u"Zembro.emu"_s, m_linea, m_nombre,
            dicho.arg(cual, mame.Directorio(), mame.Orden(romset)) });
    }

    const Palabras &m_palabras;
    const QString m_nombre;
    const int m_linea;
    Revision &m_revision;

public:
    const PreguntasAMAME mame;
};

bool esDeMAME(const core::Modulo &M, const Pareja &pareja)
{
    const QString exe = core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila));
    return finder::EsMAME(launch::ProgramaDe(exe).ExeCorto.enDisco);
}

constexpr int UnDirectorio = 1; // types whose launches hand on the name of a game alone
constexpr int UnZip = 3;

} // namespace

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
