// zembro why: the last launch of the main program.
#pragma once

#include "companion/orden.h"

#include "launch/cronica.h"

#include <QJsonObject>

namespace companion {

const Orden &OrdenPorque();

// The file of the lines about launches: the one that the variable names, else the one that the starters name.
QByteArray FicheroDeLineas();

// What became of a launch, in lines and as JSON; and whether it came to a good end, or still runs.
QStringList CuentaPartida(const launch::Partida &partida, const Palabras &palabras);
QJsonObject PartidaEnJson(const launch::Partida &partida, const Palabras &palabras);
// Why it didn't start, in the words of the language.
QString MotivoDe(const launch::Partida &partida, const Palabras &palabras);
// "SIGSEGV"; the number of one without a name.
QString NombreDeSenal(int senal);
bool AcaboBien(const launch::Partida &partida);

} // namespace companion
