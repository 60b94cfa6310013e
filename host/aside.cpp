#include "host/aside.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/retried.h"

#include <algorithm>
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

// Only a plain file of the user's own, not a link nor one of several names.
bool isOurs(const Descriptor &file, struct stat &status)
{
    return file.isOpen() && fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == geteuid() && status.st_nlink == 1;
}

Descriptor openAside(const QByteArray &path, int flags)
{
    return Descriptor(retried([&] {
        return open(path.constData(), flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0600);
    }));
}

void addToFile(const QByteArray &path, const QByteArray &bytes)
{
    if (!path.startsWith('/'))
        return;
    const Descriptor file = openAside(path, O_WRONLY | O_APPEND | O_CREAT);
    struct stat status { };
    if (!isOurs(file, status))
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

std::optional<QByteArray> readAside(const QByteArray &path)
{
    constexpr qint64 most = 4 * MostOfAsideFile;
    struct stat status { };
    if (!path.startsWith('/'))
        return std::nullopt;
    if (lstat(path.constData(), &status) != 0)
        throw Failure(FileNotFound, QStringLiteral("open a file"), nameFromDisk(path));
    const Descriptor file = openAside(path, O_RDONLY);
    if (!isOurs(file, status))
        return std::nullopt;
    QByteArray bytes(std::min<qint64>(status.st_size, most), Qt::Uninitialized);
    const off_t from = status.st_size - bytes.size();
    const ssize_t taken =
        retried([&] { return pread(file.number(), bytes.data(), static_cast<size_t>(bytes.size()), from); });
    bytes.truncate(std::max<ssize_t>(taken, 0));
    return bytes;
}

} // namespace host
