// The words of what to do, as companion/palabras.h has the others.
#pragma once

#include <QString>

namespace companion {

struct PalabrasDeAuxilio {
    // What stands twice, and what --mend repairs.
    QString Zbo_LoRemienda = QStringLiteral("It has one answer only: check --mend --write.");
    QString Zbo_BloqueDoble =
        QStringLiteral("A second block of notes of %1, of which nothing is read; the first one counts. Put "
                       "into that what you need of this one, and remove this one.");
    QString Zbo_ParDobles =
        QStringLiteral("Parameters of a game that has some already; at a launch, by whichever emulator, the "
                       "first ones count. Keep those that you want: %1");
    QString Zbo_EOFFiltro = QStringLiteral("The empty line behind the filters is missing, so that [EOF] is "
                                           "one of them; put an empty line ahead of it.");

    // Where a collection went.
    QString Zbo_LugarPerdido =
        QStringLiteral("Lines that lead to %1, which isn't there: %2. If that went elsewhere: %3");
    QString Zbo_MueveVacio = QStringLiteral("The name behind %1 is empty.");
};

} // namespace companion
