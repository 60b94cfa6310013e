// Signals that ask the program to end, kept for whoever has something to see to first.
#pragma once

#include "host/descriptor.h"

#include <optional>

#include <signal.h>
#include <sys/types.h>

namespace host {

// While it stands TERM, INT, HUP, QUIT, USR1 and USR2 don't end the program, but for those that it was
// started to ignore.
// At the end one that nobody took acts as it always does. For the thread that started the others.
class CaughtSignals {
public:
    CaughtSignals();
    CaughtSignals(const CaughtSignals &) = delete;
    CaughtSignals &operator=(const CaughtSignals &) = delete;
    ~CaughtSignals();

    // Readable while one waits to be taken.
    int descriptor() const { return m_descriptor.number(); }
    // The next one; none if none waits.
    std::optional<int> take();

private:
    sigset_t m_before;
    Descriptor m_descriptor;
};

// Sends a signal to a child that leads a session of its own, and to all that it has started in it.
void signalSession(pid_t leader, int signal);

} // namespace host
