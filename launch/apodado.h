// A game that another system can't open by its name: the one that is made up for it, and what its files are
// called where it lies.
#pragma once

#include <QByteArray>

namespace launch {

// Two names of entries, in any case.
bool MismoNombre(const QByteArray &uno, const QByteArray &otro);

// "NIA0B1C2.NES" for "niño.nes": eight characters, of which six are a checksum of the whole name. It depends
// on nothing else, and two games have the same one once in two thousand million: so also an emulator that
// keeps what they save in a directory of its own tells them apart.
QByteArray ApodoEnDOS(const QByteArray &fichero);

// "what_-0A1B2C3D.nes" for "what?.nes".
QByteArray ApodoEnWindows(const QByteArray &fichero);

// What stands ahead of the names at home of all that a game saves: others there may save under the same ones.
QByteArray PrefijoEnCasa(const QByteArray &fichero);

// Of what a game saves, at home: "niño.nes - HISCORE.DAT"; "niño.nes - .SAV" where it has the game's made-up
// name. What is new in the place of the game itself is "niño.nes - .NEW": no game, for a list.
QByteArray NombreEnCasa(const QByteArray &fichero, const QByteArray &apodo, const QByteArray &nombre);

// The way back; empty for what is none of its own.
QByteArray NombreMostrado(const QByteArray &fichero, const QByteArray &apodo, const QByteArray &enCasa);

} // namespace launch
