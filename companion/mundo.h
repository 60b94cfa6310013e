// What the program directory holds, as the main screen shows it: systems, emulators, games.
#pragma once

#include "companion/sesion.h"

#include "core/info.h"
#include "core/lista.h"

#include "host/lengths.h"
#include "host/namesin.h"

#include <optional>
#include <vector>

namespace companion {

// An emulator of a system.
struct Pareja {
    int sistema = 0; // of the tables
    int fila = 1; // of the system's emulators, the first is 1
    QString nombreSistema;
    QString nombreEmulador;
};

// Reads the catalogue into sesion.M; the settings are read already. Fails where it can't be read.
void LeeMundo(Sesion &sesion);

// All pairs, in the order of the screen's lists.
std::vector<Pareja> Parejas(const core::Modulo &M);

// The pairs that these names mean, in other case or cut; all of them for empty names. None, told already,
// where no name fits, or several do.
std::vector<Pareja> ParejasPedidas(Sesion &sesion, const QString &sistema, const QString &emulador);

// The same of one system: where its name is empty there has to be no other.
std::vector<Pareja> ParejasDelSistema(Sesion &sesion, const QString &sistema, const QString &emulador);

// The one pair that these names mean; where a name is empty there has to be no other. None, told already,
// where several are meant, or no one.
std::optional<Pareja> ParejaPedida(Sesion &sesion, const QString &sistema, const QString &emulador);

// The directory that a line of the catalogue names, as it stands there.
QString DirectorioDeJuegos(const core::Modulo &M, const Pareja &pareja);
QString DirectorioDeCapturas(const core::Modulo &M, const Pareja &pareja);
int TipoDe(const core::Modulo &M, const Pareja &pareja);

// What would be started instead of the program in types 5 to 8, whose parameters stand right behind its name;
// empty where a blank stands between them.
QString ProgramaPegado(const core::Modulo &M, const Pareja &pareja);

struct Listado {
    core::Recuento recuento;
    QString resumen; // the line over the list
};

// Lists the games of a pair, as the screen does. Fails as core::ListaDe.
Listado Lista(Sesion &sesion, const Pareja &pareja);

// A game of the list, as the tables have it that listed it.
struct Juego {
    QString entrada;
    bool descrito = false;
    QString fichero; // the name of the one that a launch takes, as the disk spells it
    std::optional<qint64> bytes; // of a file
    QString datos; // the line of facts
    QString captura; // the path of the one that shows; empty if there is none
};

// Tells of the games of a pair that has just been listed. For one pass: what changes on the disk meanwhile
// isn't seen.
class LectorDeJuegos {
public:
    LectorDeJuegos(const core::Modulo &M, const Pareja &pareja);

    Juego De(const QString &entrada) const;
    // The name of the file that a launch takes, as the disk spells it; empty where there is none.
    QString FicheroDe(const QString &entrada) const;
    // The path where its capture is looked for; empty where none is.
    QString CapturaBuscada(const QString &entrada) const;

private:
    QString RutaDe(const QString &entrada) const;
    QString capturaDe(const QString &entrada) const;

    const core::Modulo &M;
    const int m_tipo;
    const QString m_directorio;
    const core::NotasPorTexto m_notas;
    const host::LengthsIn m_largos;
    const host::NamesIn m_nombres;
    std::optional<QString> m_deCapturas; // none where the pair names none
    std::optional<host::NamesIn> m_capturas;
};

// The entry of a listed pair that a text means, in other case or cut, or by its file's name. None, told
// already, where no one fits, or several do.
std::optional<QString> EntradaPedida(
    const Sesion &sesion, const Pareja &pareja, const Listado &listado, const QString &texto);

} // namespace companion
