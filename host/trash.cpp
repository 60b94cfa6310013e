#include "host/trash.h"

#include "host/descriptor.h"
#include "host/directory.h"
#include "host/paths.h"
#include "host/retried.h"
#include "host/writebytes.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr qsizetype LongestName = 230; // bytes; the system's limit less a number and ".trashinfo"

struct Trash {
    QByteArray directory; // with "files" and "info" in it; empty: there is none
    QByteArray
        top; // of the volume, closed by a slash, which the origins leave out; empty where they are absolute
};

enum class Links { Refused, OfTheUser };

// A directory of the user's, or a link that the user made to one.
bool isOwnDirectory(const QByteArray &path, Links links)
{
    struct stat named { };
    struct stat status { };
    return retried([&] { return lstat(path.constData(), &named); }) == 0 && named.st_uid == geteuid()
        && (links == Links::OfTheUser || S_ISDIR(named.st_mode))
        && retried([&] { return stat(path.constData(), &status); }) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == geteuid() && retried([&] { return access(path.constData(), W_OK | X_OK); }) == 0;
}

bool haveOwnDirectory(const QByteArray &path, Links links)
{
    retried([&] { return mkdir(path.constData(), 0700); });
    return isOwnDirectory(path, links);
}

bool haveTrash(const QByteArray &trash, Links links)
{
    return haveOwnDirectory(trash, links) && haveOwnDirectory(trash + "/files", links)
        && haveOwnDirectory(trash + "/info", links);
}

// The volume's administrator has made it for all users: a real directory with the sticky bit.
bool isSharedTrash(const QByteArray &path)
{
    struct stat status { };
    return retried([&] { return lstat(path.constData(), &status); }) == 0 && S_ISDIR(status.st_mode)
        && (status.st_mode & S_ISVTX);
}

Trash trashOfVolume(const QByteArray &top)
{
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray shared = top + ".Trash";
    for (const QByteArray &trash : { shared + '/' + user, top + ".Trash-" + user }) {
        if ((!trash.startsWith(shared + '/') || isSharedTrash(shared)) && haveTrash(trash, Links::Refused))
            return { trash, top };
    }
    return {};
}

// Empty if there is none. A place that isn't absolute is passed over, as the standard asks.
QByteArray dataDirectory()
{
    const QString chosen = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    for (const QString &place : { chosen, QDir::homePath() + u"/.local/share"_s }) {
        if (place.startsWith(u'/'))
            return QFile::encodeName(place);
    }
    return {};
}

QByteArray directoryAbove(const QByteArray &path)
{
    return path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

// With the directories above it.
void makeDirectories(const QByteArray &path)
{
    const auto make = [&path] { return mkdir(path.constData(), 0700); };
    if (retried(make) == 0 || errno != ENOENT || path == "/")
        return;
    makeDirectories(directoryAbove(path));
    retried(make);
}

Trash trashAtHome()
{
    const QByteArray data = dataDirectory();
    const QByteArray trash = data + "/Trash";
    makeDirectories(data);
    return haveTrash(trash, Links::OfTheUser) ? Trash { trash, {} } : Trash {};
}

// Where an existing path really lies; empty if that can't be seen.
QByteArray realPath(const QByteArray &path)
{
    char *found = nullptr;
    do
        found = realpath(path.constData(), nullptr);
    while (!found && errno == EINTR);
    const QByteArray real(found);
    free(found);
    return real;
}

// What a real path is mounted by: within one mount, and nowhere else, a file can be moved. None if that can't
// be seen.
std::optional<std::uint64_t> mountOf(const QByteArray &path)
{
    struct statx status { };
    const auto ask = [&] { return statx(AT_FDCWD, path.constData(), 0, STATX_MNT_ID, &status); };
    if (retried(ask) != 0)
        return std::nullopt;
    const bool told = (status.stx_mask & STATX_MNT_ID) != 0;
    return told ? status.stx_mnt_id : makedev(status.stx_dev_major, status.stx_dev_minor);
}

// The topmost directory of the volume that a real directory lies on, closed by a slash. Empty if it can't be
// seen.
QByteArray topOf(QByteArray directory, std::uint64_t mount)
{
    while (directory != "/") {
        const QByteArray above = directoryAbove(directory);
        const auto other = mountOf(above);
        if (!other)
            return {};
        if (*other != mount)
            return directory + '/';
        directory = above;
    }
    return directory;
}

// The mount of the user's own trash, or of where it is going to be made. None where it can't be.
std::optional<std::uint64_t> mountOfTrashAtHome()
{
    const QByteArray data = dataDirectory();
    if (data.isEmpty())
        return std::nullopt;
    QByteArray place = data + "/Trash";
    QByteArray real = realPath(place);
    while (real.isEmpty() && place != "/") {
        place = directoryAbove(place);
        real = realPath(place);
    }
    return real.isEmpty() ? std::nullopt : mountOf(real);
}

// For what lies in this real directory.
Trash trashFor(const QByteArray &directory)
{
    const auto mount = mountOf(directory);
    const auto home = mountOfTrashAtHome();
    if (!mount || !home)
        return {};
    if (*mount == *home)
        return trashAtHome();
    const QByteArray top = topOf(directory, *mount);
    return top.isEmpty() ? Trash {} : trashOfVolume(top);
}

// Names in the trash: "a.bin", "a.2.bin", "a.3.bin" ...
QByteArray nameInTrash(const QByteArray &name, int number)
{
    QByteArray whole = name;
    // Never in the middle of a character.
    while (whole.size() > LongestName || (whole.size() < name.size() && (name[whole.size()] & 0xC0) == 0x80))
        whole.chop(1);
    if (number == 1)
        return whole;
    const qsizetype point = whole.lastIndexOf('.');
    const qsizetype end = point > 0 ? point : whole.size();
    return whole.first(end) + '.' + QByteArray::number(number) + whole.sliced(end);
}

// False, with errno, if it can't be made, or is there already.
bool writeOrigin(const Descriptor &info, const QByteArray &name, const QByteArray &origin)
{
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor file(retried([&] { return openat(info.number(), name.constData(), Flags, 0600); }));
    if (!file.isOpen())
        return false;
    const QByteArray text = "[Trash Info]\nPath=" + origin.toPercentEncoding("/") + "\nDeletionDate="
        + QDateTime::currentDateTime().toString(u"yyyy-MM-ddTHH:mm:ss"_s).toLatin1() + '\n';
    if (writeBytes(file.number(), text.constData(), std::size_t(text.size())))
        return true;
    retried([&] { return unlinkat(info.number(), name.constData(), 0); });
    errno = ENOSPC;
    return false;
}

// Overwrites nothing. False, with errno.
bool moveInto(const Descriptor &files, const QByteArray &name, const QByteArray &file)
{
    const auto move = [&] {
        return renameat2(AT_FDCWD, file.constData(), files.number(), name.constData(), RENAME_NOREPLACE);
    };
    if (retried(move) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system without that kind of renaming. The name is ours: its origin was written by us.
    struct stat status { };
    const auto look = [&] { return fstatat(files.number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW); };
    const bool isFree = retried(look) != 0 && errno == ENOENT;
    if (!isFree)
        errno = EEXIST;
    return isFree && retried([&] {
        return renameat(AT_FDCWD, file.constData(), files.number(), name.constData());
    }) == 0;
}

// The origin stands there first, as the standard asks: a file without one can't be put back.
bool moveWithOrigin(const Trash &trash, const QByteArray &file, const QByteArray &origin)
{
    const auto openPart = [&trash](const char *part) {
        const QByteArray path = trash.directory + part;
        return retried([&] { return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    };
    const Descriptor files(openPart("/files"));
    const Descriptor info(openPart("/info"));
    const QByteArray name = file.sliced(file.lastIndexOf('/') + 1);
    for (int number = 1; files.isOpen() && info.isOpen(); ++number) {
        const QByteArray candidate = nameInTrash(name, number);
        const QByteArray infoName = candidate + ".trashinfo";
        if (writeOrigin(info, infoName, origin)) {
            if (moveInto(files, candidate, file))
                return true;
            const int failure = errno;
            retried([&] { return unlinkat(info.number(), infoName.constData(), 0); });
            errno = failure;
        }
        if (errno != EEXIST)
            return false;
    }
    return false;
}

} // namespace

bool moveToTrash(const QString &path)
{
    QByteArray spelling = findOnDisk(path);
    while (spelling.size() > 1 && spelling.endsWith('/'))
        spelling.chop(1);
    const qsizetype cut = spelling.lastIndexOf('/') + 1;
    const QByteArray name = spelling.sliced(cut);
    if (name.isEmpty() || name == "." || name == "..")
        return false;
    const QByteArray directory = realPath(cut == 0 ? QByteArray(".") : spelling.first(cut));
    const Trash trash = directory.isEmpty() ? Trash {} : trashFor(directory);
    if (trash.directory.isEmpty())
        return false;
    const QByteArray file = joined(directory, name);
    return moveWithOrigin(trash, file, file.sliced(trash.top.size()));
}

} // namespace host
