// What has to be started for a command line: the program itself, or what runs it where it is one for another
// system.
#pragma once

#include "launch/lineadeorden.h"
#include "launch/unidadesdos.h"

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
    Nombre, // one that DOS can't open
    Largo, // of the line
    Signo // that DOS's shell would take for something else, or that its code page lacks
};

struct Encargo {
    Corredor corredor = Corredor::Ninguno;
    QString herramienta; // the path of DOSBox or Wine
    Traba traba = Traba::Ninguna;
    QString trabadoEn; // the file, or the line
    QStringList argumentos; // to be started; for DOSBox there is a configuration to be made first

    std::vector<UnidadesDOS::Montaje> montajes;
    QByteArray programaDOS; // "C:\EMUS\NES.EXE"
    QByteArray colaDOS; // what stands behind it, blanks and all, in DOS's code page
};

// By what lies on the disk now; nothing is started or written. A program that isn't found is taken for one of
// this system's.
Encargo EncargoDe(const LineaDeOrden &orden);

// In the user's language; empty if nothing hinders it.
QString TextoDe(Traba traba, Corredor corredor, const core::Palabras &palabras);
QString TituloDe(Traba traba, const core::Palabras &palabras);

} // namespace launch
