#include "host/paths.h"

#include "host/directory.h"
#include "host/drives.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/retried.h"
#include "host/shortnames.h"

#include <array>
#include <climits>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

// A short form may be longer than its name, by the number that tells it from others.
constexpr qsizetype LongestForm = NAME_MAX + 8;

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

bool isDirectory(const QByteArray &path)
{
    struct stat status;
    return retried([&] { return stat(path.constData(), &status); }) == 0 && S_ISDIR(status.st_mode);
}

// Finds a path from left to right. A backslash separates too, unless it belongs to a name that is there.
class Finder {
public:
    QByteArray find(const QString &path);

private:
    bool begin(QStringView &rest);
    bool takePart(const QString &part);
    qsizetype takeLongest(const QStringList &pieces, qsizetype first);

    QByteArray m_found;
    bool m_closed = false; // a separator came behind what was found last
};

QByteArray Finder::find(const QString &path)
{
    // A longer path is none that the system takes, and looking for one would take long.
    if (path.isEmpty() || path.size() > PATH_MAX || path.contains(QChar::Null))
        return {};
    QStringView rest(path);
    if (!begin(rest))
        return {};
    for (const QStringView part : rest.split(u'/')) {
        if (!takePart(part.toString()))
            return {};
    }
    if (!m_closed || m_found.endsWith('/'))
        return m_found;
    return isDirectory(m_found) ? m_found + '/' : QByteArray();
}

// Takes the root off, or the drive; false if the place of the drive is missing.
bool Finder::begin(QStringView &rest)
{
    if (isSeparator(rest.front())) {
        m_found = "/";
        rest = rest.sliced(1);
    } else if (const Drive *drive = driveNamed(driveLetter(rest))) {
        m_found = Finder().find(drive->place);
        rest = rest.sliced(2);
        return !m_found.isEmpty();
    }
    return true;
}

bool Finder::takePart(const QString &part)
{
    const QStringList pieces = part.split(u'\\');
    for (qsizetype first = 0; first < pieces.size();) {
        const qsizetype taken = takeLongest(pieces, first);
        if (taken == 0 && !pieces[first].isEmpty())
            return false;
        m_closed = taken == 0;
        first += m_closed ? 1 : taken;
    }
    return true;
}

// Goes on to the entry whose name is made of the most pieces, and says of how many; 0 if there is none.
qsizetype Finder::takeLongest(const QStringList &pieces, qsizetype first)
{
    for (qsizetype count = pieces.size() - first; count > 0; --count) {
        const QString name = pieces.sliced(first, count).join(u'\\');
        if (name.size() > LongestForm)
            continue;
        const QByteArray entry = name.isEmpty() ? QByteArray() : entryFor(m_found, name);
        const bool last = first + count == pieces.size();
        if (entry.isEmpty() || (!last && !isDirectory(joined(m_found, entry))))
            continue;
        m_found = joined(m_found, entry);
        return count;
    }
    return 0;
}

QByteArray shortForm(const QByteArray &directory, const QByteArray &name)
{
    const QString plain = plainShortForm(nameFromDisk(name));
    if (plain == nameFromDisk(name))
        return name;
    const auto names = Directory::at(directory);
    // A directory that can be entered but not listed shows no names to collide with.
    return nameToDisk(names ? names->shortForm(nameFromDisk(name)) : plain);
}

QString &chosenProgramDirectory()
{
    static QString directory;
    return directory;
}

} // namespace

qsizetype lastSeparator(QStringView path)
{
    qsizetype index = path.size() - 1;
    while (index >= 0 && !isSeparator(path[index]))
        --index;
    return index;
}

QChar separatorOf(QStringView path)
{
    return path.contains(u'\\') && !path.contains(u'/') ? u'\\' : u'/';
}

QString withClosingSeparator(const QString &path)
{
    if (path.isEmpty() || isSeparator(path.back()))
        return path;
    return path + separatorOf(path);
}

QByteArray findOnDisk(const QString &path)
{
    return Finder().find(path);
}

QByteArray findForWriting(const QString &path)
{
    // As it stands, for a name may end in a backslash.
    QByteArray whole = findOnDisk(path);
    if (whole.size() > 1 && whole.endsWith('/'))
        whole.chop(1);
    if (!whole.isEmpty())
        return whole;
    QStringView open(path);
    while (open.size() > 1 && isSeparator(open.back()))
        open.chop(1);
    const QByteArray found = findOnDisk(open.toString());
    if (!found.isEmpty() || open.isEmpty() || open.contains(QChar::Null))
        return found;
    const qsizetype separator = lastSeparator(open);
    // Of a name on a drive without a separator the drive is the directory.
    const qsizetype start = separator < 0 && driveNamed(driveLetter(open)) ? 2 : separator + 1;
    const QByteArray name = nameToDisk(open.sliced(start).toString());
    if (start == 0)
        return name;
    const QByteArray directory = findOnDisk(open.first(start).toString());
    return directory.isEmpty() ? directory : joined(directory, name);
}

QString trueSpelling(const QString &path)
{
    return nameFromDisk(findOnDisk(path));
}

QString directoryPath(const QString &path)
{
    QByteArray found = findOnDisk(path);
    if (found.isEmpty() || !isDirectory(found))
        throw Failure(PathNotFound, u"open a directory"_s, path);
    if (!found.startsWith('/'))
        found = joined(nameToDisk(currentDirectory()), found);
    QByteArrayList names;
    for (const QByteArray &name : found.split('/')) {
        if (name == ".." && !names.isEmpty())
            names.removeLast();
        else if (!name.isEmpty() && name != "." && name != "..")
            names.append(name);
    }
    return nameFromDisk('/' + names.join('/'));
}

QString GetShortPathNameA(const QString &path)
{
    QByteArray found = findOnDisk(path);
    struct stat status;
    if (found.isEmpty() || stat(found.constData(), &status) != 0)
        return {};
    if (!found.startsWith('/'))
        found = joined(nameToDisk(currentDirectory()), found);
    QByteArray walked = "/";
    QByteArray result = "/";
    for (const QByteArray &name : found.split('/')) {
        if (name.isEmpty() || name == ".")
            continue;
        result = joined(result, shortForm(walked, name));
        walked = joined(walked, name);
    }
    if (found.endsWith('/') && !result.endsWith('/'))
        result += '/';
    return nameFromDisk(result);
}

void changeDirectory(const QString &path)
{
    const QByteArray found = findOnDisk(path);
    if (found.isEmpty() || chdir(found.constData()) != 0)
        throw Failure(PathNotFound, u"change to a directory"_s, path);
}

QString currentDirectory()
{
    std::array<char, PATH_MAX> buffer;
    return getcwd(buffer.data(), buffer.size()) ? nameFromDisk(QByteArray(buffer.data())) : QString();
}

QString executableDirectory()
{
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
    const QByteArray executable(buffer.data(), std::max<ssize_t>(length, 0));
    return nameFromDisk(executable.first(std::max<qsizetype>(executable.lastIndexOf('/'), 0)));
}

QString programDirectory()
{
    return chosenProgramDirectory().isEmpty() ? executableDirectory() : chosenProgramDirectory();
}

void setProgramDirectory(const QString &path)
{
    chosenProgramDirectory() = path;
}

QString programFile(const QString &name)
{
    return programDirectory() + u'/' + name;
}

} // namespace host
