// Pictures into captures, by the program that does that.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace companion {

struct PorConvertir {
    QByteArray imagen; // paths as the disk has them
    QByteArray captura;
};

struct Convertida {
    QString problema; // the converter's code for what kept it; empty if it is made
    QString detalle; // more of it, in English; may be empty
};

// What became of each, in their order. The converter stands beside zembro, else in the program's directory.
// Fails as host::readProgram.
std::vector<Convertida> Convierte(const std::vector<PorConvertir> &pares);

} // namespace companion
