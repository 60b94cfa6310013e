// Why a program doesn't start, or ends at once for want of something.
#pragma once

#include "companion/palabras.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace companion {

struct Impedimento {
    QString clase; // a word of English, the same in every language
    QString texto;
};

// What a program that is there and may be run lacks: the interpreter of a script, the program that a script
// stands for by a line "# Stands for NAME: PROGRAM...", the loader, libraries. By its path as the disk spells
// it. The program itself isn't started.
std::vector<Impedimento> LoQueLeFalta(const QString &programa, const Palabras &palabras);

// That there is no such program, or that its path is empty.
QString NoHayPrograma(const QString &programa, const Palabras &palabras);

// The path of a program that may be meant by one that isn't there: of the same name in PATH, or of a name
// that differs in a letter or two, beside it or in PATH. Empty if there is none.
QString ProgramaParecido(const QString &programa);

// The processor that a program's first bytes are for, in its usual name; its number for a rare one.
QString ProcesadorDe(const QByteArray &principio);

// The first of what keeps the executable of this path from starting; none where nothing is known.
std::optional<Impedimento> ImpedimentoDe(const QString &programa, const Palabras &palabras);

} // namespace companion
