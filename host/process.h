// Starting a program and watching it to its end, without a shell in between.
#pragma once

#include "host/descriptor.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <optional>

#include <sys/types.h>

namespace host {

// Keeps the environment as it is now for every child to come; called first thing in main, before a library
// changes it.
void rememberEnvironment();

// A variable as it was then; none for one that wasn't set.
std::optional<QByteArray> rememberedVariable(const QByteArray &name);

// Makes arguments from the pieces of a command line in their order. Pieces with no blank between them join.
class ArgumentSplitter {
public:
    void addText(QStringView text); // split at blanks; double quotes group, and go
    void addWhole(const QString &text); // never split; an empty one adds nothing
    QStringList arguments() const;

private:
    void endArgument();

    QStringList m_ended;
    QString m_current;
    bool m_begun = false; // tells an argument of two quotes alone from none
    bool m_quoted = false;
};

// Parameters of a command line split at blanks; double quotes group, and go.
QStringList splitArguments(QStringView text);

// How a process ended: its status, or the signal that ended it. Neither where nobody knows.
struct ProcessEnd {
    std::optional<int> status;
    std::optional<int> signal;
};

// The path of the program that start would run; fails as start does where there is none, or no right to run
// it.
QString findProgram(const QString &name);

// The path of a program of this name in PATH; empty if there is none that may be run.
QString findInPath(const QString &name);

// Whether a running process of this user's has one of these texts among its arguments. This one doesn't
// count.
bool isNamedByAProcess(const QByteArrayList &texts);

// A child process: running, or ended, however it ended. Going out of scope leaves it running, and its end
// leaves no zombie then either.
class Process {
public:
    Process() = default;
    Process(Process &&other) noexcept;
    Process &operator=(Process &&other) noexcept;
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process();

    // Starts arguments[0] in the working directory, with a session of its own, the remembered environment,
    // default signals and none of our open files. A name without a separator is looked for in the working
    // directory, then in PATH; one with a separator, and a name in the working directory, is found in any
    // case. Fails with 53 if it is empty or there is no such program, 70 without the right to run it, 5 if it
    // is of a format that doesn't run.
    static Process start(const QStringList &arguments);

    bool hasEnded(); // never waits; after the end it leaves no zombie
    // Becomes readable at the end of the process; -1 if the system offers none.
    int endDescriptor() const { return m_end.number(); }
    pid_t id() const { return m_id; }
    const ProcessEnd &end() const { return m_how; } // once it has ended

private:
    explicit Process(pid_t id);

    pid_t m_id = -1;
    bool m_ended = true;
    Descriptor m_end;
    ProcessEnd m_how;
};

// Ends the process at once, with the buffers of the standard streams written: no event loop can hold it.
[[noreturn]] void endProcess(int status);

} // namespace host
