// The notes on single ROMs as the main screen's readers take them, whichever lines they stand on.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace core {

// Whether a system has a game of this key, which is in upper case; no where its directories can't be listed.
using HayJuego = std::function<bool(const QString &sistema, const QString &clave)>;

// Whether every game that a text gives a description or parameters gets the same from the other, or its own
// where that was another one's. Of the notes of these systems those count that are a game's, and the whole
// lines of a system's own block in any case: what a reader takes for a note where it fell out of step, or ran
// into another block, is none.
bool DicenLoMismo(
    const QString &texto, const QString &otro, const QStringList &sistemas, const HayJuego &hay);

} // namespace core
