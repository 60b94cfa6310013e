// What is done to the selected ROM: which file it is, and under which key it is kept. `entrada` is the list's
// text throughout.
#pragma once

#include "core/modulo.h"

#include "host/textsource.h"

#include <QString>

namespace core {

// The file's name in the ROM directory: the key of the first note with this text, with the ending of the
// types that list ZIPs, or the entry as it stands.
QString FicheroDeEntrada(const Modulo &M, int tipo, const QString &entrada);

// The same where the first note with this text is known; -1 is none.
QString FicheroDeEntrada(const Modulo &M, int tipo, const QString &entrada, int nota);

// The key of a first description: the upper-cased name, of the types that list ZIPs without its last four
// characters, also where these are no ending.
QString ClaveNueva(int tipo, const QString &entrada);

// The key under which parameters are kept: that of the first note with this text, or the entry itself.
QString ClaveDeParametros(const Modulo &M, const QString &entrada);

// Whether the launch finds parameters that are kept under that key: it looks for a game without a description
// by its name in short form, which a name with blanks or several points isn't.
bool SeEncuentranSusParametros(const Modulo &M, const QString &entrada);

// The parameters of the first record with this key, system and emulator, case apart; empty if there is none.
// Fails with 62 where the section or its closing record is missing.
QString ParametrosEscritos(
    host::TextSource &fuente, const QString &clave, const QString &sistema, const QString &emulador);

} // namespace core
