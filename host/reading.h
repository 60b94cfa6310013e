// Running a program for what it writes.
#pragma once

#include "host/process.h"

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <functional>

namespace host {

// Starts a program as Process::start does, but with these bytes as its standard input, hands on what it
// writes to its standard output piece by piece, and waits for its end. It doesn't outlive this process, nor
// what `take` throws. One that writes nothing for as long as `patience` is ended, and that fails with 57; a
// failed start fails as Process::start does.
ProcessEnd readProgram(const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take);

// The same in this directory, without anything to read, and of what it writes to its standard error too. It
// leads a process group of its own, all of which ends where its patience does.
ProcessEnd readAllThatIsSaid(const QString &directory, const QStringList &arguments,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take);

} // namespace host
