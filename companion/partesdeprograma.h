// What the table of parts of a program for this system tells.
#pragma once

#include <QByteArray>
#include <QString>

namespace companion {

// The loader that a program of 64 bits names; empty for one that names none.
QString CargadorDe(const QByteArray &principio);

// Whether a file of that length that begins so lacks some of the bytes that its parts are read from. False
// for what is no such program, or one with the high byte first.
bool EstaCortado(const QByteArray &principio, qint64 largo);

} // namespace companion
