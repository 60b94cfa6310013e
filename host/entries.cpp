// Attributes, lengths, making and deleting.
#include "host/paths.h"

#include "host/directory.h"
#include "host/failure.h"
#include "host/helddirectory.h"
#include "host/retried.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

bool isHidden(const QByteArray &path)
{
    const QByteArray name = path.sliced(path.lastIndexOf('/') + 1);
    return name.startsWith('.') && name != "." && name != "..";
}

[[noreturn]] void failOnDirectory(int systemError, const QString &operation, const QString &path)
{
    const bool missing = systemError == ENOENT || systemError == ENOTDIR;
    throw Failure(missing ? PathNotFound : PathAccess, operation, path);
}

} // namespace

bool exists(const QString &path)
{
    struct stat status;
    const QByteArray found = findOnDisk(path);
    return !found.isEmpty() && stat(found.constData(), &status) == 0;
}

int attributes(const QString &path)
{
    const QByteArray found = withoutClosing(findOnDisk(path));
    struct stat own;
    struct stat status;
    // Of a link it is the target that can be written or not; one that leads nowhere stands for no file.
    if (lstat(found.constData(), &own) != 0 || stat(found.constData(), &status) != 0)
        throw Failure(FileNotFound, u"read the attributes"_s, path);
    int result = S_ISDIR(own.st_mode) ? DirectoryAttribute : 0;
    if ((status.st_mode & S_IWUSR) == 0)
        result |= ReadOnlyAttribute;
    if (isHidden(found))
        result |= HiddenAttribute;
    return result;
}

void clearAttributes(const QString &path)
{
    const QByteArray found = withoutClosing(findOnDisk(path));
    struct stat status;
    if (lstat(found.constData(), &status) != 0)
        throw Failure(FileNotFound, u"clear the attributes"_s, path);
    // What can't be changed stays as it is; a link itself has no mode.
    [[maybe_unused]] const int ignored =
        fchmodat(AT_FDCWD, found.constData(), (status.st_mode & 07777) | S_IWUSR, AT_SYMLINK_NOFOLLOW);
}

qint64 fileLength(const QString &path)
{
    const QByteArray found = findOnDisk(path);
    struct stat status;
    if (stat(found.constData(), &status) != 0 || S_ISDIR(status.st_mode))
        throw Failure(FileNotFound, u"read the length"_s, path);
    return status.st_size;
}

void makeDirectory(const QString &path, int mode)
{
    const QByteArray place = findForWriting(path);
    if (retried([&] { return mkdir(place.constData(), mode_t(mode)); }) != 0)
        failOnDirectory(errno, u"make a directory"_s, path);
}

void removeDirectory(const QString &path)
{
    const QByteArray found = withoutClosing(findOnDisk(path));
    if (rmdir(found.constData()) != 0)
        failOnDirectory(errno, u"remove a directory"_s, path);
}

void deleteFiles(const QString &directory)
{
    HeldDirectory(directory).deleteFiles();
}

void deleteFiles(const QString &directory, const QStringList &names)
{
    HeldDirectory(directory).deleteFiles(names);
}

void deleteFile(const QString &path)
{
    const QByteArray found = findOnDisk(path);
    struct stat status;
    if (lstat(found.constData(), &status) != 0)
        throw Failure(FileNotFound, u"delete a file"_s, path);
    // What a link leads to decides; one that leads nowhere may go.
    const bool leads = stat(found.constData(), &status) == 0;
    const bool mayGo = !leads || (!S_ISDIR(status.st_mode) && (status.st_mode & S_IWUSR) != 0);
    if (!mayGo || unlink(found.constData()) != 0)
        throw Failure(PathAccess, u"delete a file"_s, path);
}

} // namespace host
