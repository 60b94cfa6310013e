// Which emulators of the database are on the machine and not yet in the catalogue.
#pragma once

#include "core/altas.h"
#include "core/modulo.h"

#include "finder/fichas.h"
#include "finder/lugares.h"

#include <QSet>
#include <QString>

#include <vector>

namespace finder {

struct Hallazgo {
    QString sistema;
    core::EmuladorNuevo emulador; // as it is configured, by whole paths
    QString programa; // the executable that was found
    // The directory that an emulator is started in which gets the bare name of a game: a link to the
    // executable lies there, so that its working directory is this one, and a link named "roms". Empty for
    // all others.
    QString arranque;
    bool deMAME = false;
    bool pideROMs = false; // its machine doesn't run without ROMs of its own
};

// The catalogue tables of a file's text, read by the program's own reader; fails as that does.
void LeeTablas(core::Modulo &M, const QString &texto);

// The emulators of a catalogue, "+" ahead of each.
QSet<QString> NombresConfigurados(const core::Modulo &catalogo);

// A system's name as that of a directory.
QString NombreDeDirectorio(QString sistema);

// Where they go that belong to a system, or are started beside their games; below the program's directory.
QString RutaDeROMs(const QString &directorio, const QString &sistema); // closed by a separator
QString RutaDeCapturas(const QString &directorio, const QString &sistema); // closed by a separator
QString RutaDeArranque(const QString &directorio, const QString &emulador);

// In the order of the database. An emulator whose name stands in the catalogue, under whichever system, is
// left out, and so is one whose executable or core isn't there.
std::vector<Hallazgo> Busca(const core::Modulo &base, const core::Modulo &catalogo,
    const std::vector<Ficha> &fichas, const Lugares &lugares, const QString &directorio);

} // namespace finder
