// What MAME itself says of its ROMs: those of the machine that the parameters name, else of the games, where
// a launch hands on their names alone.
#include "companion/revision.h"

#include "companion/pantalla.h"
#include "companion/porque.h"

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
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Games whose ROMs are asked for where all pairs are checked; and in one call.
constexpr qsizetype JuegosSinPedir = 500;
constexpr qsizetype JuegosPorLlamada = 100;

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
        std::optional<std::chrono::seconds> sinAcabar; // when it was ended
        QString sinArrancar; // why
        std::optional<int> senal; // that ended it
        int estado = 0;
        bool deROMs = false; // it named a set of ROMs
        QString loUltimo; // that it said
        QSet<QString> buenas; // sets that it calls good

        // Whether it ended as it does where it answers.
        bool Acaba() const { return !sinAcabar && sinArrancar.isEmpty() && !senal; }
        bool TodoBien() const { return Acaba() && estado == 0; }
        // It says nothing of a set that isn't there.
        bool EsMudo() const { return Acaba() && estado != 0 && loUltimo.isEmpty(); }
    };
    Dicho Pregunta(const QStringList &nombres, const Palabras &palabras) const;

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

// What it says, line by line: one that says anything without end takes no memory.
class LoQueDice {
public:
    explicit LoQueDice(const QStringList &nombres)
        : m_pedidas(nombres.begin(), nombres.end())
    {
    }

    void Toma(const QByteArray &trozo)
    {
        m_resto += trozo;
        qsizetype desde = 0;
        for (qsizetype fin; (fin = m_resto.indexOf('\n', desde)) >= 0; desde = fin + 1)
            linea(m_resto.sliced(desde, fin - desde).simplified());
        m_resto = m_resto.sliced(desde).left(Bastante);
    }

    void En(PreguntasAMAME::Dicho &dicho)
    {
        linea(m_resto.simplified());
        dicho.deROMs = m_deROMs;
        dicho.loUltimo = QString::fromUtf8(m_ultima).left(Letras);
        dicho.buenas = m_buenas;
    }

private:
    static constexpr qsizetype Bastante = 4096;
    static constexpr qsizetype Letras = 200;

    // "romset pacman [puckman] is good"; of one that isn't there some say nothing.
    void linea(const QByteArray &entera)
    {
        if (!entera.isEmpty())
            m_ultima = entera;
        m_deROMs = m_deROMs || entera.contains("romset");
        if (!entera.startsWith("romset ")
            || !(entera.endsWith(" is good") || entera.endsWith(" is best available")))
            return;
        const QString cual = host::lower(QString::fromUtf8(entera.split(' ').value(1)));
        if (m_pedidas.contains(cual))
            m_buenas.insert(cual);
    }

    const QSet<QString> m_pedidas;
    QByteArray m_resto; // a line that isn't whole yet
    QByteArray m_ultima;
    bool m_deROMs = false;
    QSet<QString> m_buenas;
};

PreguntasAMAME::Dicho PreguntasAMAME::Pregunta(const QStringList &nombres, const Palabras &palabras) const
{
    const std::chrono::milliseconds limite = Paciencia.alPrincipio + nombres.size() * Paciencia.porJuego;
    QStringList enMinusculas;
    for (const QString &nombre : nombres)
        enMinusculas += host::lower(nombre);
    Dicho dicho;
    LoQueDice loQueDice(enMinusculas);
    try {
        const host::ProcessEnd final = host::readAllThatIsSaid(Directorio(), orden(nombres), limite,
            [&loQueDice](const QByteArray &trozo) { loQueDice.Toma(trozo); });
        dicho.senal = final.signal;
        dicho.estado = final.status.value_or(0);
    } catch (const host::Failure &fallo) {
        if (fallo.number() == host::DeviceError)
            dicho.sinAcabar = std::chrono::duration_cast<std::chrono::seconds>(limite);
        else
            dicho.sinArrancar = TextoDe(fallo, palabras);
    }
    loQueDice.En(dicho);
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
        const PreguntasAMAME::Dicho dicho = mame.Pregunta({ mame.maquina }, m_palabras);
        if (dicho.EsMudo())
            halla(u"machine-without-roms"_s, m_palabras.Zbo_SinROMs, mame.maquina, mame.maquina);
        else if (!diceOtraCosa(dicho, mame.maquina) && !dicho.TodoBien())
            halla(u"machine-without-roms"_s, m_palabras.Zbo_SinROMs, mame.maquina, mame.maquina);
    }

    // Of one first: a MAME that never answers is known by that.
    void Juegos(const std::vector<JuegoDeMAME> &juegos)
    {
        if (juegos.empty())
            return;
        const QString primero = juegos.front().nombre;
        const PreguntasAMAME::Dicho deUno = mame.Pregunta({ primero }, m_palabras);
        if (!deUno.EsMudo() && diceOtraCosa(deUno, primero))
            return;
        for (size_t desde = 0; desde < juegos.size(); desde += size_t(JuegosPorLlamada)) {
            const size_t cuantos = std::min(juegos.size() - desde, size_t(JuegosPorLlamada));
            if (!algunosJuegos(std::span(juegos).subspan(desde, cuantos), deUno))
                return;
        }
    }

private:
    void halla(const QString &clase, const QString &dicho, const QString &cual, const QString &romset,
        const QString &loUltimo = {})
    {
        const QString texto = dicho.arg(cual, mame.Directorio(), mame.Orden(romset));
        m_revision.push_back({ clase, u"Zembro.emu"_s, m_linea, m_nombre,
            loUltimo.isEmpty() ? texto : QString(texto).replace(u"%4"_s, loUltimo) });
    }

    bool diceOtraCosa(const PreguntasAMAME::Dicho &dicho, const QString &nombre);
    bool algunosJuegos(std::span<const JuegoDeMAME> juegos, const PreguntasAMAME::Dicho &deUno);

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
    const QString estado = QString::number(dicho.estado);
    if (dicho.sinAcabar)
        halla(u"mame-unfinished"_s, m_palabras.Zbo_MAMECalla, QString::number(dicho.sinAcabar->count()),
            nombre);
    else if (!dicho.sinArrancar.isEmpty())
        halla(u"mame-failed"_s, m_palabras.Zbo_MAMENoParte, dicho.sinArrancar, nombre);
    else if (dicho.senal)
        halla(u"mame-failed"_s, m_palabras.Zbo_MAMESenal, NombreDeSenal(*dicho.senal), nombre);
    else if (dicho.EsMudo())
        halla(u"mame-failed"_s, m_palabras.Zbo_MAMEMudo, estado, nombre);
    else if (!dicho.TodoBien() && !dicho.deROMs)
        halla(u"mame-failed"_s, m_palabras.Zbo_MAMEDice, estado, nombre, dicho.loUltimo);
    else
        return false;
    return true;
}

// An old one takes one name alone, and says nothing of others. False where it need not be asked again.
bool RevisorDeMAME::algunosJuegos(std::span<const JuegoDeMAME> juegos, const PreguntasAMAME::Dicho &deUno)
{
    const QStringList nombres = nombresDeSets(juegos);
    const PreguntasAMAME::Dicho dicho = mame.Pregunta(nombres, m_palabras);
    if (dicho.Acaba() && !dicho.TodoBien() && dicho.buenas.isEmpty() && nombres.size() > 1
        && !deUno.buenas.isEmpty())
        return true;
    if (diceOtraCosa(dicho, nombres.first()))
        return false;
    for (const JuegoDeMAME &juego : juegos) {
        if (!dicho.TodoBien() && !dicho.buenas.contains(host::lower(juego.nombre)))
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

PacienciaConMAME Paciencia;

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
    const qsizetype cuantos = pedida ? entradas.size() : std::min(entradas.size(), JuegosSinPedir);
    revisor.Juegos(juegosDeMAME(sesion, pareja, entradas, cuantos, revisor.mame.delante));
    return entradas.size() - cuantos;
}

} // namespace companion
