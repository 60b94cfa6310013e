// Where the paths of the catalogue lead: the values of its EXE, ROM and IMG lines.
//
// One that begins with a separator of either kind or with a drive, a letter and a colon, stands as it is. Any
// other counts from the program's directory, whatever the working directory, so that a directory that is
// moved or copied plays its own games.
#pragma once

#include <QString>

namespace core {

// Whether a value counts from the program's directory. An empty one, or one of blanks alone, names nothing.
bool EsRutaRelativa(QStringView valor);

// The path that a value stands for; the value itself unless it is a relative one.
QString RutaDeValor(const QString &valor);
QString RutaDeValor(const QString &valor, const QString &directorio);

// The same of the line of a catalogue, empty where that holds nothing; the second one fails with 5 for a line
// that is shorter than its prefix.
QString RutaDeLinea(const QString &linea);
QString RutaExigida(const QString &linea);

// The value for a path: what leads from the program's directory to what lies below it, else the path itself.
QString ValorDeRuta(const QString &ruta);
QString ValorDeRuta(const QString &ruta, const QString &directorio);

// The letter of the drive that a path begins with, where there is no such drive or its place is missing; null
// for any other path.
QChar UnidadQueFalta(const QString &ruta);

} // namespace core
