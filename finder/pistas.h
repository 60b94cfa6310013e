// What is known of an emulator that is being configured by hand: what its form offers where nothing is typed
// yet.
#pragma once

#include "core/configuracion.h"

#include "finder/fichas.h"
#include "finder/lugares.h"

namespace finder {

// The table as it was delivered with the program.
QString TablaDelPrograma();

// An emulator, and what of it is there. What lies below the program's directory is named from there.
struct Conocido {
    Ficha ficha; // empty if the table doesn't have it
    QString programa; // its executable, empty if it isn't on this machine
    QString nucleo; // the core's path, if it loads one that is there
    QString enlace; // the link beside its games that it is started by, if that is there
    QString roms; // the directories that the finder gives its system
    QString capturas;
};
Conocido Reconoce(const QString &sistema, const QString &emulador, const std::vector<Ficha> &fichas,
    const Lugares &lugares, const QString &directorio);

// What each box of its form offers while its marks are these: a value that works as it stands there, empty
// for none.
core::Casillas PistasDe(const Conocido &conocido, const core::Marcas &marcas);

} // namespace finder
