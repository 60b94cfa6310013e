// What the form of an emulator means: marks and type, the fields as they are saved, what the catalogue held
// before.
#pragma once

#include "core/modulo.h"

namespace core {

// The check boxes of the form.
struct Marcas {
    bool check1 = false; // each game in a directory of its own
    bool check2 = false; // all games compressed in one directory
    bool check3 = false; // the emulator reads archives itself
    bool check4 = false; // the emulator is started without a game

    bool operator==(const Marcas &) const = default;
};

// The type digit; empty for marks that stand for none.
QString MarcasATipo(const Marcas &marcas);

// The marks that a stored digit comes back as. From 5 on they are not those that stored it: a 5, 6 or 7 comes
// back one step on, an 8 without marks. Any other text than a digit gives none.
Marcas TipoAMarcas(const QString &tipo);

// What the marks leave enabled. A label is bright where its box is enabled. A check3 that is disabled is off.
struct Cerrojos {
    bool check1 = true;
    bool check2 = true;
    bool check3 = false;
    bool casilla5 = true;

    bool operator==(const Cerrojos &) const = default;
};
Cerrojos CerrojosDe(const Marcas &marcas);

// The text boxes of the form, from the first to the fifth.
struct Casillas {
    QString exe;
    QString rom;
    QString img;
    QString par1;
    QString par2;
};

// Whether what a box names isn't there: no file for the executable, no directory for the others. An empty box
// names nothing.
bool FaltaEjecutable(const QString &exe);
bool FaltaDirectorio(const QString &ruta);

// Why a form can't be saved; the first reason that applies.
enum class Rechazo { Ninguno, SinEXE, SinDirectorio, SinMarcas };
Rechazo RechazoDe(const QString &sistema, int origen, const Casillas &casillas, const Marcas &marcas);

// The ROM directory that a form is saved with: an empty one of a system that runs from discs becomes a
// directory that isn't meant to exist.
QString DirectorioDeROMs(const QString &sistema, const QString &casilla2);

// True if nothing differs from EXE_Previo and its like, the types compared as numbers, an empty one as 0.
bool SinCambios(const Modulo &M, const Casillas &casillas, const QString &tipo);

// What the main screen shows anew once a changed emulator has been saved, by what differs from EXE_Previo and
// its like and by whether the two slots of the ROM lines differ.
enum class Renovacion { Nada, Captura, CapturaYLista, Lista };
Renovacion RenovacionTras(const Modulo &M, const Casillas &casillas, const QString &tipo);

// The "WEB1" and "WEB2" lines of a pair in the database, whole; empty where they aren't found. Without the
// emulator under the system, the last "WEB1" line of the file counts.
struct Webs {
    QString sistema;
    QString emulador;
};

// Reads Zembro.sye under this number. Fails with 62 for an empty file.
Webs LeeWebs(Modulo &M, const QString &sistema, const QString &emulador, int numero = 1);

// Config2_Cambios: what the catalogue's tables hold of a pair.
enum Situacion : int { SinSistemaConfigurado = 0, SinEmuladorConfigurado = 1, EmuladorYaConfigurado = 2 };

// Looks at the first 150 systems. Leaves Indice_Sistema and Indice_Emulador where the search ended.
Situacion SituacionDe(Modulo &M, const QString &sistema, const QString &emulador);

// Reads EXE_Previo and its like from the first block of that name in Zembro.emu, under number 1, up to its
// "PAR2" line; a line that isn't there leaves the variable as it was. Fails with 62 for an empty file.
void LeePrevios(Modulo &M, const QString &emulador);

} // namespace core
