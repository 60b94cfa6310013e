#include "host/volumes.h"

#include "host/drives.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <vector>

#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr auto MountsFile = "/proc/self/mounts";
constexpr auto TableFile = "/etc/fstab";

struct Mount {
    QByteArray source;
    QByteArray target;
    QByteArray type;
    QList<QByteArray> options;
};

QByteArray contentOf(const char *file)
{
    QFile reading(QString::fromLatin1(file));
    return reading.open(QIODevice::ReadOnly) ? reading.readAll() : QByteArray();
}

// Blanks and the like stand in the tables as a backslash and three octal digits.
QByteArray unescaped(const QByteArray &field)
{
    constexpr qsizetype Digits = 3;
    QByteArray result;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool octal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, Digits).toInt(&octal, 8) : 0;
        octal = octal && i + Digits < field.size();
        result += octal ? static_cast<char>(code) : field[i];
        i += octal ? Digits : 0;
    }
    return result;
}

std::vector<Mount> mountsOf(const QByteArray &text)
{
    constexpr qsizetype Fields = 4;
    std::vector<Mount> mounts;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= Fields && !fields[0].startsWith('#'))
            mounts.push_back({ unescaped(fields[0]), unescaped(fields[1]), fields[2], fields[3].split(',') });
    }
    return mounts;
}

// A device, a network's share, or what a program of the user's shows as files; the kernel's own have other
// sources.
bool holdsFiles(const Mount &mount)
{
    return mount.source.startsWith('/') || mount.source.contains(":") || mount.source.contains("=")
        || mount.type.startsWith("fuse.") || mount.type == "zfs";
}

bool liesIn(const QByteArray &path, const QByteArray &directory)
{
    return path == directory || path.startsWith(directory + '/');
}

bool isForUsers(const QByteArray &target)
{
    if (!target.startsWith('/') || target == "/")
        return false;
    if (liesIn(target, "/run/media"))
        return true;
    return std::ranges::none_of(std::initializer_list<QByteArray> { "/proc", "/sys", "/dev", "/run", "/boot",
                                    "/efi", "/etc", "/usr", "/var/lib", "/snap" },
        [&target](const QByteArray &own) { return liesIn(target, own); });
}

bool userMayMount(const Mount &mount)
{
    return std::ranges::any_of(std::initializer_list<QByteArray> { "user", "users", "owner", "group" },
        [&mount](const QByteArray &option) { return mount.options.contains(option); });
}

// Single files are mounted too.
bool isDirectory(const QString &path)
{
    struct stat status;
    return stat(nameToDisk(path).constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

QStringList volumesIn(const QByteArray &mounts, const QByteArray &table, const QString &home)
{
    QStringList points;
    for (const Mount &mount : mountsOf(mounts)) {
        if (holdsFiles(mount) && isForUsers(mount.target))
            points += nameFromDisk(mount.target);
    }
    for (const Mount &mount : mountsOf(table)) {
        if (userMayMount(mount) && isForUsers(mount.target))
            points += nameFromDisk(mount.target);
    }
    std::ranges::stable_sort(
        points, [](const QString &a, const QString &b) { return compareNames(a, b) < 0; });
    QStringList all = QStringList { u"/"_s, home } + points;
    all.removeDuplicates();
    return all;
}

QStringList volumes()
{
    QStringList found = volumesIn(contentOf(MountsFile), contentOf(TableFile), QDir::homePath());
    found.removeIf([](const QString &volume) { return !isDirectory(volume) && isVolumeReady(volume); });
    for (const Drive &drive : drives())
        found += drive.letter + u":"_s;
    return found;
}

bool isVolumeReadyIn(const QByteArray &mounts, const QString &home, const QString &volume)
{
    return volume == u"/" || volume == home
        || std::ranges::any_of(
            mountsOf(mounts), [&volume](const Mount &mount) { return nameFromDisk(mount.target) == volume; });
}

bool isVolumeReady(const QString &volume)
{
    if (!driveLetter(volume).isNull())
        return exists(volume + u'/');
    return isVolumeReadyIn(contentOf(MountsFile), QDir::homePath(), volume);
}

bool isCompactDisc(long fileSystem, bool readOnly)
{
    constexpr long Iso9660 = 0x9660;
    constexpr long Udf = 0x15013346; // of disks that can be written too
    return fileSystem == Iso9660 || (fileSystem == Udf && readOnly);
}

bool isOnCompactDisc(const QByteArray &path)
{
    struct statfs status { };
    return statfs(path.constData(), &status) == 0
        && isCompactDisc(status.f_type, (status.f_flags & ST_RDONLY) != 0);
}

QString volumeOf(const QStringList &volumes, const QString &path)
{
    QString longest;
    for (const QString &volume : volumes) {
        const bool within = volume == u"/" || path == volume || path.startsWith(volume + u'/');
        if (within && volume.size() > longest.size())
            longest = volume;
    }
    return longest;
}

} // namespace host
