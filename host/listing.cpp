#include "host/paths.h"

#include "host/directory.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"

#include <algorithm>
#include <initializer_list>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

// The listing of an existing directory, and where it is.
struct Listing {
    QByteArray path;
    std::shared_ptr<const Directory> directory;
};

Listing openListing(const QString &path)
{
    const QByteArray found = findOnDisk(path);
    const auto directory = found.isEmpty() ? nullptr : Directory::at(found);
    if (!directory)
        throw Failure(PathNotFound, u"list a directory"_s, path);
    return { found, directory };
}

// The kind of an entry as a DT_ value, of what a link leads to if links are followed.
unsigned char typeOf(const Listing &listing, const Directory::Entry &entry, bool followLinks)
{
    const bool known = entry.type != DT_UNKNOWN && !(followLinks && entry.type == DT_LNK);
    if (known)
        return entry.type;
    struct stat status;
    const int flags = followLinks ? 0 : AT_SYMLINK_NOFOLLOW;
    const QByteArray path = listing.path + '/' + entry.bytes;
    if (fstatat(AT_FDCWD, path.constData(), &status, flags) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

QStringList namesOfTypes(const QString &path, std::initializer_list<unsigned char> types)
{
    const Listing listing = openListing(path);
    QStringList names;
    for (const Directory::Entry &entry : listing.directory->entries()) {
        if (entry.bytes.startsWith('.'))
            continue;
        if (std::ranges::find(types, typeOf(listing, entry, true)) != types.end())
            names.append(entry.name);
    }
    return names;
}

// True if the name is one that the pattern describes: '*' any characters or none, '?' any one. Both in upper
// case.
bool fitsWildcards(QStringView name, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype in = 0;
    qsizetype afterStar = -1; // where to take the pattern up again if the rest doesn't fit
    qsizetype starCovers = 0;
    while (at < name.size()) {
        if (in < pattern.size() && pattern[in] == u'*') {
            afterStar = ++in;
            starCovers = at;
        } else if (in < pattern.size() && (pattern[in] == u'?' || pattern[in] == name[at])) {
            ++in;
            ++at;
        } else if (afterStar >= 0) {
            in = afterStar;
            at = ++starCovers;
        } else {
            return false;
        }
    }
    while (in < pattern.size() && pattern[in] == u'*')
        ++in;
    return in == pattern.size();
}

} // namespace

QStringList listFiles(const QString &directory)
{
    return namesOfTypes(directory, { DT_REG });
}

QStringList listDirectories(const QString &directory)
{
    return namesOfTypes(directory, { DT_DIR });
}

QStringList listFilesAndDirectories(const QString &directory)
{
    return namesOfTypes(directory, { DT_REG, DT_DIR });
}

QStringList listFiles(const QString &directory, const QString &pattern)
{
    QStringList names = listFiles(directory);
    names.removeIf([&pattern](const QString &name) { return !fitsPattern(name, pattern); });
    return names;
}

QStringList listPrograms(const QString &directory, const QString &pattern)
{
    const Listing listing = openListing(directory);
    QStringList names = listFiles(directory);
    names.removeIf([&](const QString &name) {
        const QByteArray path = listing.path + '/' + nameToDisk(name);
        return !fitsPattern(name, pattern) && faccessat(AT_FDCWD, path.constData(), X_OK, AT_EACCESS) != 0;
    });
    return names;
}

bool fitsPattern(QStringView name, const QString &pattern)
{
    const QString wanted = upper(name);
    for (const QString &one : upper(pattern).split(u';')) {
        const QStringView trimmed = QStringView(one).trimmed();
        if (trimmed == u"*.*" || fitsWildcards(wanted, trimmed))
            return true;
    }
    return false;
}

QStringList listPlainFiles(const QString &directory)
{
    const Listing listing = openListing(directory);
    QStringList names;
    for (const Directory::Entry &entry : listing.directory->entries()) {
        if (typeOf(listing, entry, false) == DT_REG)
            names.append(entry.name);
    }
    return names;
}

} // namespace host
