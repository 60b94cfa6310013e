// What the installed MAME says of its machines.
#pragma once

#include "companion/mundo.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace companion {

// The path of the MAME that one of these pairs starts, else of one on this machine; empty if there is none.
QString MAMEDe(const core::Modulo &M, const std::vector<Pareja> &parejas);

// Hands on its whole list, which has hundreds of megabytes, piece by piece. Yields why it came to no good
// end, in words that follow its name; empty if it did. Fails as host::readProgram.
QString LeeListaDeMAME(
    const QString &mame, const Palabras &palabras, const std::function<void(const QByteArray &)> &toma);

} // namespace companion
