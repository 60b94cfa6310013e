// Running a program for what it writes.
#pragma once

#include "host/process.h"

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <functional>

namespace host {

// Starts a program as Process::start does, but with these bytes as its standard input, hands on what it
// writes to its standard output piece by piece, and waits for its end. It leads a process group of its own,
// which outlives neither what `take` throws nor a signal that ends this process from a terminal or by
// request; where this process is killed, the program itself ends. One that writes nothing for as long as
// `patience` is ended with its group, and that fails with 57; a failed start fails as Process::start does.
ProcessEnd readProgram(const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take);

// The same in this directory, without anything to read, and of what it writes to its standard error too. It
// is ended where it isn't done after `limit`, however much it says.
ProcessEnd readAllThatIsSaid(const QString &directory, const QStringList &arguments,
    std::chrono::milliseconds limit, const std::function<void(const QByteArray &)> &take);

} // namespace host
