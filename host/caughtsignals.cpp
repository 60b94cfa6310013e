#include "host/caughtsignals.h"

#include "host/retried.h"

#include <sys/signalfd.h>
#include <unistd.h>

namespace host {

CaughtSignals::CaughtSignals()
{
    sigset_t caught;
    sigemptyset(&caught);
    for (const int signal : { SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGUSR1, SIGUSR2 }) {
        struct sigaction action { };
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN)
            sigaddset(&caught, signal);
    }
    m_descriptor = Descriptor(signalfd(-1, &caught, SFD_NONBLOCK | SFD_CLOEXEC));
    // Without the descriptor nobody would ever hear of them.
    if (!m_descriptor.isOpen())
        sigemptyset(&caught);
    pthread_sigmask(SIG_BLOCK, &caught, &m_before);
}

CaughtSignals::~CaughtSignals()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

std::optional<int> CaughtSignals::take()
{
    signalfd_siginfo told {};
    const ssize_t count = retried([&] { return read(m_descriptor.number(), &told, sizeof told); });
    return count == ssize_t(sizeof told) ? std::optional(int(told.ssi_signo)) : std::nullopt;
}

void signalSession(pid_t leader, int signal)
{
    if (leader > 1)
        kill(-leader, signal);
}

} // namespace host
