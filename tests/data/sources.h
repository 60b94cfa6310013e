// The sources of what lies beside the executable: UTF-8 with LF ends, delivered in Windows-1252 with CR LF.
#pragma once

#include "tests/support/printing.h"

#include "core/modulo.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace sources {

// The lines of a file under data/, without their ends. Fails the test if it can't be read, or isn't UTF-8
// with LF ends, the last line's included.
QStringList lines(const QString &name);

// The same text with the ends that it is delivered with.
QString delivered(const QString &name);

// True if the text can be written in Windows-1252, and its bytes are read back as the same text.
bool survivesDelivery(const QString &text);

struct System {
    QString name;
    QString web;
    QStringList extensions; // without "*."
    QStringList emulators;
    QStringList emulatorWebs;
};

// What the program's own reader finds in a catalogue file.
std::vector<System> systems(const QString &name);

} // namespace sources
