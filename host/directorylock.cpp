#include "host/directorylock.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <thread>

#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto LongestWait = 10s;
constexpr auto Pause = 10ms;

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

} // namespace

bool lockDirectory(int directory)
{
    const auto end = std::chrono::steady_clock::now() + LongestWait;
    while (flock(directory, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return true;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(Pause);
    }
    return true;
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
