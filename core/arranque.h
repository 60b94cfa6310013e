// What the start tests for, and the words of a fatal end.
#pragma once

#include "host/failure.h"

#include <QString>

#include <functional>

namespace core {

// Fails with 53 for the first file of the program that isn't beside the executable, and for a directory LNG
// without a language file.
void CompruebaFicheros();

// Runs the reading of a file; a failure in it comes out as one about that file, with what it was about in
// brackets.
void LeeFichero(const QString &fichero, const std::function<void()> &lectura);

// The box of a failure that nothing catches: the files that the start needs, for one missing at the start,
// else the failure's number; and a line that says which operation failed on what.
inline const QString TituloDeFallo = QStringLiteral("ERROR");
QString TextoDeFallo(const host::Failure &fallo, bool arrancando);

} // namespace core
