// What stands twice in the notes on single ROMs, where the reader takes the first: a system's block, the
// parameters of a game.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace core {

// Indices of lines. A text that is read from the first one alone.
struct Repetido {
    size_t primero = 0;
    size_t otro = 0;
};

// The headings of blocks of these systems of which an earlier one has the same name.
std::vector<Repetido> BloquesRepetidos(const QString &texto, const QStringList &sistemas);

// The records of parameters of which an earlier one has the same key: a launch looks for nothing else. Not
// those of another pair with the same parameters, which come to the same.
std::vector<Repetido> ParametrosRepetidos(const QString &texto);

// Without the second ones that add nothing: a block's records move behind those of the first, unless both
// describe one game differently, or not each line of it is a record; records of parameters go that are equal.
QString SinRepetidos(const QString &texto, const QStringList &sistemas);

} // namespace core
