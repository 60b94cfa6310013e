#include "host/paths.h"

#include "host/descriptor.h"
#include "host/directory.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/statuses.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

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

// The kind of an entry itself as a DT_ value.
unsigned char ownType(const Listing &listing, const Directory::Entry &entry)
{
    struct stat status;
    const QByteArray path = joined(listing.path, nameToDisk(entry.name));
    if (entry.type != DT_UNKNOWN || lstat(path.constData(), &status) != 0)
        return entry.type;
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

// The reading of a directory doesn't tell the kind of what a link leads to, and on some disks none at all.
bool isToBeAsked(const Directory::Entry &entry)
{
    return entry.type == DT_UNKNOWN || entry.type == DT_LNK;
}

// The kinds of what the names lead to; DT_UNKNOWN where it can't be looked at.
std::vector<unsigned char> kindsOf(const Listing &listing, const QStringList &names)
{
    std::vector<unsigned char> kinds(static_cast<std::size_t>(names.size()), DT_UNKNOWN);
    if (kinds.empty())
        return kinds;
    const Descriptor directory(open(listing.path.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    lookAtEach(directory, names, [&](std::size_t name, const struct stat &status) {
        kinds[name] = static_cast<unsigned char>(IFTODT(status.st_mode));
    });
    return kinds;
}

// The entries that are, or lead to, one of these kinds, as DT_ values, without the hidden ones.
QStringList namesOfTypes(const QString &path, std::initializer_list<unsigned char> types)
{
    const Listing listing = openListing(path);
    const std::vector<Directory::Entry> &entries = listing.directory->entries();
    QStringList asked;
    for (const Directory::Entry &entry : entries) {
        if (isToBeAsked(entry))
            asked.append(entry.name);
    }
    const std::vector<unsigned char> kinds = kindsOf(listing, asked);
    auto kind = kinds.cbegin();
    QStringList names;
    names.reserve(static_cast<qsizetype>(entries.size()));
    for (const Directory::Entry &entry : entries) {
        const unsigned char type = isToBeAsked(entry) ? *kind++ : entry.type;
        if (!entry.name.startsWith(u'.') && std::ranges::find(types, type) != types.end())
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
        if (ownType(listing, entry) == DT_REG)
            names.append(entry.name);
    }
    return names;
}

QByteArrayList listInDiskOrder(const QString &directory)
{
    const QByteArray found = findOnDisk(directory);
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(
        found.isEmpty() ? nullptr : opendir(found.constData()), &closedir);
    if (!stream)
        throw Failure(PathNotFound, u"list a directory"_s, directory);
    QByteArrayList names;
    while (const dirent *entry = readdir(stream.get())) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..")
            names.append(name);
    }
    return names;
}

} // namespace host
