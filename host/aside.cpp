#include "host/aside.h"

#include "host/descriptor.h"
#include "host/retried.h"

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

// While it lasts, a pipe that nobody reads any more ends nobody.
class WithoutPipeSignal {
public:
    WithoutPipeSignal()
    {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        sigset_t waiting;
        sigpending(&waiting);
        m_wasWaiting = sigismember(&waiting, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~WithoutPipeSignal()
    {
        const timespec atOnce {};
        if (!m_wasWaiting)
            retried([&] { return sigtimedwait(&m_pipe, nullptr, &atOnce); });
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    WithoutPipeSignal(const WithoutPipeSignal &) = delete;
    WithoutPipeSignal &operator=(const WithoutPipeSignal &) = delete;

private:
    sigset_t m_pipe;
    sigset_t m_before;
    bool m_wasWaiting = false;
};

// A pipe takes so many bytes at once where it takes any.
constexpr qsizetype Piece = 512;

void writeWithoutWaiting(int descriptor, const QByteArray &bytes)
{
    const WithoutPipeSignal quiet;
    for (qsizetype at = 0; at < bytes.size(); at += Piece) {
        pollfd ready { descriptor, POLLOUT, 0 };
        if (poll(&ready, 1, 0) != 1 || (ready.revents & POLLOUT) == 0)
            return;
        const QByteArray piece = bytes.mid(at, Piece);
        if (write(descriptor, piece.constData(), static_cast<size_t>(piece.size())) != piece.size())
            return;
    }
}

void addToFile(const QByteArray &path, const QByteArray &bytes)
{
    if (!path.startsWith('/'))
        return;
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Descriptor file(retried([&] { return open(path.constData(), flags, 0600); }));
    struct stat status { };
    if (!file.isOpen() || fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_uid != geteuid() || status.st_nlink != 1)
        return;
    if (status.st_size > MostOfAsideFile && ftruncate(file.number(), 0) != 0)
        return;
    // What doesn't go in at once would be half a line.
    if (write(file.number(), bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
        return;
}

} // namespace

void tellAside(const QByteArray &line)
{
    const QByteArray bytes = line + '\n';
    writeWithoutWaiting(STDERR_FILENO, bytes);
    addToFile(qgetenv(AsideFileVariable), bytes);
}

} // namespace host
