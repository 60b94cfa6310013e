#include "host/helddirectory.h"

#include "host/directory.h"
#include "host/drives.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"
#include "host/retried.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

Descriptor openItself(const QString &path)
{
    const QByteArray found = withoutClosing(findOnDisk(path));
    constexpr int Flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    return Descriptor(retried([&] { return open(found.constData(), Flags); }));
}

void deletePlainFile(const Descriptor &directory, const QByteArray &name)
{
    struct stat status;
    const auto look = [&] {
        return fstatat(directory.number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW);
    };
    if (name.contains('/') || retried(look) != 0)
        return;
    if (S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) != 0)
        retried([&] { return unlinkat(directory.number(), name.constData(), 0); });
}

} // namespace

HeldDirectory::HeldDirectory(const QString &path)
{
    if (!isAbsolute(path))
        throw Failure(InvalidArgument, u"delete files by a path that isn't absolute"_s, path);
    m_descriptor = openItself(path);
    if (!m_descriptor.isOpen())
        throw Failure(PathNotFound, u"delete files"_s, path);
}

bool HeldDirectory::isAt(const QString &path) const
{
    const Descriptor other = openItself(path);
    struct stat own;
    struct stat there;
    return retried([&] { return fstat(m_descriptor.number(), &own); }) == 0
        && retried([&] { return fstat(other.number(), &there); }) == 0 && own.st_dev == there.st_dev
        && own.st_ino == there.st_ino;
}

void HeldDirectory::deleteFiles() const
{
    // An earlier reading has left it at its end.
    lseek(m_descriptor.number(), 0, SEEK_SET);
    const auto names = Directory::of(m_descriptor);
    if (!names)
        return;
    for (const Directory::Entry &entry : names->entries())
        deletePlainFile(m_descriptor, nameToDisk(entry.name));
}

void HeldDirectory::deleteFiles(const QStringList &names) const
{
    for (const QString &name : names)
        deletePlainFile(m_descriptor, nameToDisk(name));
}

} // namespace host
