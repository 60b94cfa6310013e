// A command of zembro, as the table of commands holds it.
#pragma once

#include "companion/palabras.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace companion {

class Sesion;

// What zembro ends with; `play` ends with the emulator's status.
enum Estado : int {
    Bien = 0,
    Hallazgos = 1, // something was found that should be looked at, or changed
    NoPudo = 2, // it could not run
};

struct Opcion {
    QString nombre; // without its dashes
    QString valor; // what stands for its value in the help: FILE and DIR are completed; empty for none
    QString Palabras::*ayuda;
};

struct Orden {
    QString nombre;
    QString argumentos; // as the help shows them: those in brackets may be left out
    QString Palabras::*ayuda; // one line, without a point
    std::vector<Opcion> opciones; // beside those of all commands
    int (*haz)(Sesion &sesion); // yields an Estado, or fails
    bool sinDirectorio = false; // works also where there is no directory of the program
};

// Options of all commands.
const std::vector<Opcion> &OpcionesComunes();

// How many arguments a command takes at least and at most, by what the help shows of them.
struct Cabida {
    qsizetype minimo = 0;
    qsizetype maximo = 0;
};
Cabida CabidaDe(const QString &argumentos);

// "zembro list [SYSTEM [EMULATOR]] [--directory DIR]".
QString Sinopsis(const Orden &orden);

// The whole help of a command, and that of zembro.
QStringList AyudaDe(const Orden &orden, const Palabras &palabras);
QStringList AyudaDeTodo(const Palabras &palabras);

} // namespace companion
