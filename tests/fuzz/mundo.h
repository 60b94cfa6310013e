// A program directory in memory, for what reads files, and the failures that an operation may end with.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <initializer_list>

namespace pelusa {

// A directory of this process alone, in memory where the system has such a place; gone at its end. Closed by
// a slash.
QByteArray Rincon();

// A file of the program, whose directory is "program" in there.
void PonFichero(const char *nombre, const QByteArray &bytes);

// The number of the failure that the operation ended with, which has to be one of these; 0 if it ended well.
int Fallo(std::initializer_list<int> posibles, const char *operacion, const std::function<void()> &paso);

} // namespace pelusa
