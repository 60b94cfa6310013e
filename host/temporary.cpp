#include "host/paths.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/retried.h"

#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

namespace host {

namespace {

constexpr mode_t OwnMode = 0700;

bool look(const QByteArray &path, struct stat &status)
{
    return retried([&] { return stat(path.constData(), &status); }) == 0;
}

bool isDirectory(const QByteArray &path)
{
    struct stat status;
    return path.startsWith('/') && look(path, status) && S_ISDIR(status.st_mode);
}

QByteArray systemDirectory()
{
    QByteArray path = qgetenv("TMPDIR");
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return isDirectory(path) ? path : QByteArray("/tmp");
}

// Nobody else can put or change anything in it.
bool isPrivate(const QByteArray &path)
{
    struct stat status;
    return look(path, status) && status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

QByteArray ownDirectory(const QByteArray &shared, const QString &program)
{
    return (shared == "/" ? QByteArray() : shared) + '/' + nameToDisk(program) + '-'
        + QByteArray::number(geteuid());
}

// Makes sure that the directory is there, and is the user's own and closed to others.
bool secure(const QByteArray &path)
{
    if (retried([&] { return mkdir(path.constData(), OwnMode); }) != 0 && errno != EEXIST)
        return false;
    constexpr int Flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor directory(retried([&] { return open(path.constData(), Flags); }));
    const int number = directory.number();
    struct stat status;
    if (!directory.isOpen() || retried([&] { return fstat(number, &status); }) != 0
        || status.st_uid != geteuid())
        return false;
    return (status.st_mode & 07777) == OwnMode || retried([&] { return fchmod(number, OwnMode); }) == 0;
}

} // namespace

QString temporaryPath(const QString &program)
{
    const QByteArray system = systemDirectory();
    if (isPrivate(system))
        return nameFromDisk(system == "/" ? system : system + '/');
    const QByteArray own = ownDirectory(system, program);
    return secure(own) ? nameFromDisk(own + '/') : QString();
}

void tidyTemporaryPath(const QString &program)
{
    const QByteArray system = systemDirectory();
    const QByteArray own = ownDirectory(system, program);
    if (!isPrivate(system))
        retried([&] { return rmdir(own.constData()); });
}

} // namespace host
