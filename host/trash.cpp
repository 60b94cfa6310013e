#include "host/trash.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr qsizetype LongestName = 230; // bytes; the system's limit less a number and ".trashinfo"

struct Trash {
    QString directory; // with "files" and "info" in it; empty: there is none
    QByteArray top; // of the volume, which the origins leave out; empty where they are absolute
};

bool isOwnDirectory(const QString &path)
{
    struct stat status { };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == geteuid() && access(QFile::encodeName(path).constData(), W_OK | X_OK) == 0;
}

bool haveOwnDirectory(const QString &path)
{
    mkdir(QFile::encodeName(path).constData(), 0700);
    return isOwnDirectory(path);
}

bool haveTrash(const QString &trash)
{
    return haveOwnDirectory(trash) && haveOwnDirectory(trash + u"/files"_s)
        && haveOwnDirectory(trash + u"/info"_s);
}

// The volume's administrator has made it for all users: a real directory with the sticky bit.
bool isSharedTrash(const QString &path)
{
    struct stat status { };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && (status.st_mode & S_ISVTX);
}

Trash trashOfVolume(const QString &root)
{
    const QString user = QString::number(getuid());
    const QString top = root.endsWith(u'/') ? root : root + u'/';
    const QString shared = top + u".Trash"_s;
    for (const QString &trash : { shared + u'/' + user, top + u".Trash-"_s + user }) {
        if ((!trash.startsWith(shared + u'/') || isSharedTrash(shared)) && haveTrash(trash))
            return { trash, QFile::encodeName(top) };
    }
    return {};
}

Trash trashAtHome()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString trash = data + u"/Trash"_s;
    return QDir().mkpath(data) && haveTrash(trash) ? Trash { trash, {} } : Trash {};
}

// Of the volume of this directory.
Trash trashFor(QString directory)
{
    // The toolkit doesn't see names that aren't UTF-8; no volume begins at one.
    while (!QFileInfo::exists(directory))
        directory.truncate(std::max(directory.lastIndexOf(u'/'), qsizetype(1)));
    const QStorageInfo volume(directory);
    return volume == QStorageInfo(QDir::homePath()) ? trashAtHome() : trashOfVolume(volume.rootPath());
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
    const Descriptor file(
        openat(info.number(), name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return false;
    const QByteArray text = "[Trash Info]\nPath=" + origin.toPercentEncoding("/") + "\nDeletionDate="
        + QDateTime::currentDateTime().toString(u"yyyy-MM-ddTHH:mm:ss"_s).toLatin1() + '\n';
    if (write(file.number(), text.constData(), size_t(text.size())) == text.size())
        return true;
    unlinkat(info.number(), name.constData(), 0);
    errno = ENOSPC;
    return false;
}

// Overwrites nothing. False, with errno.
bool moveInto(const Descriptor &files, const QByteArray &name, const QByteArray &file)
{
    if (renameat2(AT_FDCWD, file.constData(), files.number(), name.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system without that kind of renaming. The name is ours: its origin was written by us.
    struct stat status { };
    if (fstatat(files.number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        errno = EEXIST;
        return false;
    }
    return renameat(AT_FDCWD, file.constData(), files.number(), name.constData()) == 0;
}

// The origin stands there first, as the standard asks: a file without one can't be put back.
bool moveWithOrigin(const Trash &trash, const QByteArray &file, const QByteArray &origin)
{
    const QByteArray directory = QFile::encodeName(trash.directory);
    constexpr int Flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor files(open((directory + "/files").constData(), Flags));
    const Descriptor info(open((directory + "/info").constData(), Flags));
    const QByteArray name = file.sliced(file.lastIndexOf('/') + 1);
    for (int number = 1; files.isOpen() && info.isOpen(); ++number) {
        const QByteArray candidate = nameInTrash(name, number);
        const QByteArray infoName = candidate + ".trashinfo";
        if (writeOrigin(info, infoName, origin)) {
            if (moveInto(files, candidate, file))
                return true;
            const int failure = errno;
            unlinkat(info.number(), infoName.constData(), 0);
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
    const QString directory = directoryPath(cut == 0 ? u"."_s : nameFromDisk(spelling.first(cut)));
    const Trash trash = trashFor(directory);
    if (trash.directory.isEmpty())
        return false;
    const QByteArray parent = nameToDisk(directory);
    const QByteArray file = (parent == "/" ? QByteArray() : parent) + '/' + name;
    const bool belowTop = !trash.top.isEmpty() && file.startsWith(trash.top);
    return moveWithOrigin(trash, file, belowTop ? file.sliced(trash.top.size()) : file);
}

} // namespace host
