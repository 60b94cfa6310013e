// The pieces of a command line, built from the catalogue and what lies on the disk, and the table of the
// command lines.
#pragma once

#include "launch/lineadeorden.h"
#include "launch/unidadesdos.h"

#include <QSet>
#include <QString>

namespace launch {

// A path, or the last part of one: as the command's text shows it (short, in lower case) and as the disk
// spells it.
struct Ruta {
    QString texto;
    QString enDisco;
};

Ruta operator+(const Ruta &directorio, const Ruta &nombre);

// The emulator's executable. All empty if there is no such file.
struct Programa {
    Ruta ExeCorto;
    Ruta ExeNombre;
    Ruta ExeDir; // with its closing separator
};

// With drives of DOS the text is the path as DOS knows it, "c:\emus\nes.exe", wherever it can be said there.
Programa ProgramaDe(const QString &exe, UnidadesDOS *dos = nullptr);

// What becomes the title of the emulator's console: the executable's name up to its first point.
QString TituloDe(const QString &ExeNombre);

// The ROM directory, with the closing separator of its setting; empty if there is no such directory.
Ruta RomDirDe(const QString &rom);

// The short name of a file of the ROM directory, which is looked for in lower case; empty if there is no such
// file.
// With drives of DOS the name that DOS knows it by; where it knows none, one of a drive of its own making,
// unless that is of no use.
Ruta RomCortoDe(const Ruta &RomDir, const QString &nombre, UnidadesDOS *dos = nullptr, bool conApodos = true);

// The name in capitals that a launch looks a game's parameters up by where it has no description and its
// emulator is a program for DOS; empty where it is none, or there is no such file.
QString ClaveEnDOS(const QString &exe, const QString &rom, const QString &nombre);

// All such names of a directory of games.
QSet<QString> ClavesEnDOS(const QString &exe, const QString &rom);

// The name up to its first point; a name without a point gives nothing.
QString RomBaseDe(const QString &RomCorto);

// Whether the selected entry is the description of a note or the name of a file. The two give different
// commands.
enum class Via { Nota, Fichero };

enum class Caso {
    SoloExe, // types 5 to 8
    Suelto, // type 0, a file as it lies in the ROM directory
    Desempaquetado, // type 0, a file out of a ZIP
    Directorio, // type 1
    Comprimido, // type 2
    AutoComprimido, // type 3
    NeoRage // type 3, the one emulator that wants the whole path
};

struct Piezas {
    Programa programa;
    QString Par1;
    QString Par2;
    QString ParRom;
    Ruta RomDir;
    Ruta RomCorto; // by note, types 2 and 3: the text without its last four characters, the disk's name whole
    QString RomBase;
    Ruta Desempaquetada; // the path of the file out of a ZIP
};

// The archive of a game of type 2; by file name a blank closes its name.
Ruta ArchivoZipDe(Via via, const Piezas &piezas);

// The uneven blanks, the bare program name and the missing ones are meant: catalogues were written against
// them.
LineaDeOrden Compone(Caso caso, Via via, const Piezas &piezas);

} // namespace launch
