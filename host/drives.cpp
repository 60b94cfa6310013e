#include "host/drives.h"

#include "host/directory.h"
#include "host/encoding.h"
#include "host/filestate.h"
#include "host/paths.h"
#include "host/plainfile.h"
#include "host/textsource.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <climits>
#include <memory>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr qsizetype LetterAndColon = 2;

QChar letterOf(QChar character)
{
    const char16_t code = character.unicode() & ~u' ';
    const bool isLetter = code >= u'A' && code <= u'Z' && character.unicode() < 128;
    return isLetter ? QChar(code) : QChar();
}

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

QString withoutClosing(QString place)
{
    while (place.size() > 1 && isSeparator(place.back()))
        place.chop(1);
    return place;
}

// "C", "C:" or "C:\".
QChar letterNamed(QStringView name)
{
    if (name.endsWith(u'\\'))
        name.chop(1);
    if (name.endsWith(u':'))
        name.chop(1);
    return name.size() == 1 ? letterOf(name.front()) : QChar();
}

void add(std::vector<Drive> &drives, const Drive &drive)
{
    const auto place = std::ranges::lower_bound(drives, drive.letter, {}, &Drive::letter);
    if (place == drives.end() || place->letter != drive.letter)
        drives.insert(place, drive);
}

// Where an entry of the prefix leads; itself, if it is no link.
QString placeOfDevice(const QByteArray &devices, const QString &name)
{
    const QByteArray entry = joined(devices, nameToDisk(name));
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = readlink(entry.constData(), buffer.data(), buffer.size());
    if (length <= 0)
        return nameFromDisk(entry);
    const QByteArray target(buffer.data(), length);
    return QDir::cleanPath(nameFromDisk(target.startsWith('/') ? target : joined(devices, target)));
}

std::vector<Drive> drivesOfDevices(const QByteArray &devices, const Directory &listing)
{
    std::vector<Drive> found;
    for (const Directory::Entry &entry : listing.entries()) {
        const QChar letter = driveLetter(entry.name);
        if (!letter.isNull() && entry.name.size() == LetterAndColon)
            add(found, { letter, placeOfDevice(devices, entry.name) });
    }
    return found;
}

// The drives of the program's own file; none at all if there is no such file.
const std::vector<Drive> *drivesOfFile()
{
    static QString base;
    static std::optional<FileState> state;
    static std::vector<Drive> kept;
    const QByteArray file = findOnDisk(programFile(u"Zembro.uni"_s));
    struct stat status;
    if (file.isEmpty() || stat(file.constData(), &status) != 0)
        return nullptr;
    const std::optional<FileState> now = stateOf(status);
    if (now && now == state && base == programDirectory())
        return &kept;
    const std::optional<PlainFile> read = readPlainFile(AT_FDCWD, file, O_RDONLY);
    base = programDirectory();
    state = read ? stateOf(read->status) : std::nullopt;
    kept = drivesIn(read ? decodeText(read->bytes).text : QString(), base);
    return &kept;
}

const std::vector<Drive> *&otherDrives()
{
    static const std::vector<Drive> *drives = nullptr;
    return drives;
}

} // namespace

std::vector<Drive> drivesIn(const QString &text, const QString &base)
{
    std::vector<Drive> found;
    TextSource source(text);
    while (!source.atEnd()) {
        const QString line = source.readLine();
        const qsizetype sign = line.indexOf(u'=');
        if (sign < 0)
            continue;
        const QChar letter = letterNamed(QStringView(line).first(sign).trimmed());
        QString place = line.sliced(sign + 1).trimmed();
        if (place == u"~" || place.startsWith(u"~/"))
            place.replace(0, 1, QDir::homePath());
        if (letter.isNull() || place.isEmpty() || place.contains(QChar::Null) || !driveLetter(place).isNull())
            continue;
        add(found, { letter, withoutClosing(isSeparator(place.front()) ? place : base + u'/' + place) });
    }
    return found;
}

QString lineOf(const Drive &drive)
{
    // Behind a separator a blank at the end belongs to the place.
    const QString closing = drive.place != drive.place.trimmed() ? u"/"_s : QString();
    const QString line = drive.letter + u"="_s + drive.place + closing;
    const std::vector<Drive> read = drivesIn(line, {});
    return read.size() == 1 && read[0].place == drive.place ? line : QString();
}

QString winePrefix()
{
    const QByteArray chosen = qgetenv("WINEPREFIX");
    return chosen.startsWith('/') ? nameFromDisk(chosen) : QDir::homePath() + u"/.wine"_s;
}

const std::vector<Drive> &drivesOfWine(const QString &prefix)
{
    static QByteArray devices;
    static std::shared_ptr<const Directory> listing;
    static std::vector<Drive> kept;
    const QByteArray wanted = nameToDisk(prefix + u"/dosdevices"_s);
    const auto now = Directory::at(wanted);
    if (now && now == listing && devices == wanted)
        return kept;
    devices = wanted;
    listing = now;
    kept = now ? drivesOfDevices(devices, *now) : std::vector<Drive>();
    return kept;
}

OtherDrives::OtherDrives(std::vector<Drive> drives)
    : m_drives(std::move(drives))
    , m_before(std::exchange(otherDrives(), &m_drives))
{
}

OtherDrives::~OtherDrives()
{
    otherDrives() = m_before;
}

const std::vector<Drive> &drives()
{
    if (otherDrives())
        return *otherDrives();
    const std::vector<Drive> *own = drivesOfFile();
    return own ? *own : drivesOfWine(winePrefix());
}

QChar driveLetter(QStringView path)
{
    return path.size() >= LetterAndColon && path[1] == u':' ? letterOf(path[0]) : QChar();
}

const Drive *driveNamed(QChar letter)
{
    if (letter.isNull())
        return nullptr;
    const std::vector<Drive> &all = drives();
    const auto found = std::ranges::find(all, letter, &Drive::letter);
    return found == all.end() ? nullptr : &*found;
}

QString spelledOnDrive(QChar letter, const QString &path)
{
    const Drive *drive = driveNamed(letter);
    const QByteArray place = drive ? findOnDisk(withoutClosing(drive->place)) : QByteArray();
    if (place.isEmpty())
        return path;
    const QString top = withClosingSeparator(nameFromDisk(place));
    const QString within = path + u'/' == top ? QString() : path.sliced(std::min(path.size(), top.size()));
    if ((!path.startsWith(top) && path + u'/' != top) || within.contains(u'\\'))
        return path;
    return letter + u":\\"_s + QString(within).replace(u'/', u'\\');
}

bool isAbsolute(QStringView path)
{
    return !path.isEmpty() && (isSeparator(path.front()) || driveNamed(driveLetter(path)));
}

} // namespace host
