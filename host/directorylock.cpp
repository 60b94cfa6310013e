#include "host/directorylock.h"

#include "host/descriptor.h"
#include "host/retried.h"

#include <QByteArrayList>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto LongestWait = 10s;

QByteArray contentOf(const QString &file)
{
    QFile reading(file);
    return reading.open(QIODevice::ReadOnly) ? reading.readAll() : QByteArray();
}

// The device as the kernel's own tables name it, "major:minor" in decimals. The one that stat tells is
// another on file systems with several volumes in one.
QByteArray deviceOf(int directory)
{
    QByteArray mount;
    for (const QByteArray &line : contentOf(u"/proc/self/fdinfo/%1"_s.arg(directory)).split('\n')) {
        if (line.startsWith("mnt_id:"))
            mount = line.sliced(line.indexOf(':') + 1).trimmed();
    }
    for (const QByteArray &line : contentOf(u"/proc/self/mountinfo"_s).split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() > 2 && fields[0] == mount)
            return fields[2];
    }
    return {};
}

// As the table of locks writes it: both numbers in hexadecimals of two digits at least.
QByteArray placeInTable(const QByteArray &device, ino_t inode)
{
    QByteArray place;
    for (const QByteArray &number : device.split(':'))
        place += QByteArray::number(number.toUInt(), 16).rightJustified(2, '0') + ':';
    return place + QByteArray::number(qulonglong(inode));
}

struct Wait {
    std::mutex mutex;
    std::condition_variable end;
    std::optional<int> error; // none yet; 0 for the lock
};

// 0, or the system's error. In a thread of its own, as the system's own wait knows no limit; asking now and
// then would mostly find the lock taken again where another copy has much to write. A wait that was given up
// goes on there, and gives back what it gets.
int waitForLock(int directory)
{
    Descriptor own(fcntl(directory, F_DUPFD_CLOEXEC, 0));
    if (!own.isOpen())
        return errno;
    const auto wait = std::make_shared<Wait>();
    std::thread([wait, own = std::move(own)] {
        const int result = retried([&own] { return flock(own.number(), LOCK_EX); });
        const std::lock_guard guard(wait->mutex);
        wait->error = result == 0 ? 0 : errno;
        wait->end.notify_one();
    }).detach();
    std::unique_lock lock(wait->mutex);
    wait->end.wait_for(lock, LongestWait, [&wait] { return wait->error.has_value(); });
    return wait->error.value_or(ETIMEDOUT);
}

} // namespace

bool lockDirectory(int directory)
{
    if (retried([=] { return flock(directory, LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK)
        return true;
    try {
        errno = waitForLock(directory);
    } catch (const std::system_error &failure) {
        errno = failure.code().value();
    }
    return errno == 0;
}

QString lockHolder(int directory)
{
    struct stat status { };
    if (fstat(directory, &status) != 0)
        return {};
    const QByteArray place = placeInTable(deviceOf(directory), status.st_ino);
    // "1: FLOCK  ADVISORY  WRITE 359 00:13:11691 0 EOF"; of those that wait "1: -> FLOCK ..."
    constexpr qsizetype Fields = 6;
    for (const QByteArray &line : contentOf(u"/proc/locks"_s).split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() < Fields || fields[1] != "FLOCK" || fields[5] != place)
            continue;
        const QString process = QString::fromLatin1(fields[4]);
        const QString name = QString::fromUtf8(contentOf(u"/proc/%1/comm"_s.arg(process))).trimmed();
        return (name.isEmpty() ? QString() : name + u", "_s) + u"process "_s + process;
    }
    return {};
}

} // namespace host
