// Where programs lie on this machine, and the cores that one of them loads.
#pragma once

#include <QString>
#include <QStringList>

namespace finder {

struct Lugares {
    QStringList programas; // absolute directories, in the order in which they are searched
    QStringList nucleos;
};

// PATH, the games directories, and what Flatpak exports for this user and for all; the directories of cores
// under /usr/lib.
Lugares LugaresDeLaMaquina();

// The path of the first of these names that stands as an executable file in one of the directories; empty if
// none does.
QString RutaDePrograma(const QStringList &nombres, const Lugares &lugares);

// The path of a core, told by the name ahead of "_libretro.so"; empty if there is none.
QString RutaDeNucleo(const QString &nombre, const Lugares &lugares);

} // namespace finder
