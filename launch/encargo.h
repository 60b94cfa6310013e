// What has to be started for a command line: the program itself, or what runs it where it is one for another
// system.
#pragma once

#include "launch/lineadeorden.h"
#include "launch/unidadesdos.h"

#include "core/modulo.h"
#include "core/palabras.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace launch {

enum class Corredor { Ninguno, DOSBox, Wine };

enum class Traba {
    Ninguna,
    SinHerramienta, // neither is installed
    Nombre, // one that the other system can't open
    Largo, // of the line
    Signo // that DOS's shell would take for something else, or that its code page lacks
};

struct Encargo {
    Corredor corredor = Corredor::Ninguno;
    QString herramienta; // the path of DOSBox or Wine
    Traba traba = Traba::Ninguna;
    QString trabadoEn; // the file, or the line
    QStringList
        argumentos; // to be started; there may be files to be made first: see CarpetaDOS and CarpetaDeWine

    std::vector<UnidadesDOS::Montaje> montajes;
    QByteArray programaDOS; // "C:\EMUS\NES.EXE"; empty, and so is the next, if DOS can't be told the line
    QByteArray colaDOS; // what stands behind it, blanks and all, in DOS's code page

    LineaDeOrden orden; // for Wine: the line itself, and its program in its true spelling
    QString programa;
    std::vector<UnidadesDOS::Montaje> apodos; // files of it that Wine can't open by their names
};

// Where an emulator may go to by its own configuration, besides what stands in the command line: as the
// catalogue has it.
struct Lugares {
    QString exe;
    QString rom; // the directory of its games
    QStringList parametros;
};
Lugares LugaresDe(const core::Modulo &M, int sistema, int fila);

// By what lies on the disk now; nothing is started or written. A program that isn't found is taken for one of
// this system's.
Encargo EncargoDe(const LineaDeOrden &orden, const Lugares &lugares = {});

// In the user's language; empty if nothing hinders it.
QString TextoDe(Traba traba, Corredor corredor, const core::Palabras &palabras);
QString TituloDe(Traba traba, Corredor corredor, const core::Palabras &palabras);

} // namespace launch
