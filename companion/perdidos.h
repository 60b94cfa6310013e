// Places that lines of the catalogue lead to and that went elsewhere: the program's directory, or a disk of
// games.
#pragma once

#include "companion/mudanza.h"
#include "companion/palabras.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace companion {

struct Perdido {
    QString viejo; // the leading part of paths where nothing is
    QString nuevo; // where all that they end in lies; empty where that can't be told
    int lineas = 0;
    int primera = 0; // counted from 1
};

// The first component of a path that isn't there is what is lost: of these the ones that several EXE, ROM and
// IMG lines lead through, the most of them first. Of an EXE line its directory counts. The new place is the
// one directory beside the lost one in which all of their ends lie.
using DirectoriosDe = std::function<QStringList(const QString &directorio)>;
std::vector<Perdido> LugaresPerdidos(
    const QString &texto, const HayAlgo &hay, const DirectoriosDe &directorios);

// Those of the program's catalogue; where its directory was itself ahead of all, with one line too.
std::vector<Perdido> LugaresPerdidos(const QString &texto);

// What to say of one, with that command.
QString TextoDe(const Perdido &perdido, const Palabras &palabras);

// What a shell takes to change the lines.
QString OrdenDeMudanza(const Perdido &perdido);

} // namespace companion
