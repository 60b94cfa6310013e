#include "host/directory.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/filestate.h"
#include "host/letters.h"
#include "host/retried.h"
#include "host/shortnames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <map>
#include <optional>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace host {

namespace {

using Place = std::pair<dev_t, ino_t>;

constexpr std::size_t MostReadings = 256;

int readingCount = 0;

struct Reading {
    qint64 changed; // when anything last changed; not the modification time, which unpackers and copiers set
                    // back
    std::shared_ptr<const Directory> directory;
};

// The next entry; null at the end, and then errno is 0, or where it can't be read.
const dirent *nextEntry(DIR *stream)
{
    const dirent *entry = nullptr;
    do {
        errno = 0;
        entry = readdir(stream);
    } while (!entry && errno == EINTR);
    return entry;
}

// None if it can't be read to its end: names that are missing would pass for free ones.
std::optional<std::vector<Directory::Entry>> readEntries(DIR *stream)
{
    ++readingCount;
    std::vector<Directory::Entry> entries;
    while (const dirent *entry = nextEntry(stream)) {
        const QByteArrayView bytes(entry->d_name);
        if (bytes != "." && bytes != "..")
            entries.push_back({ nameFromDisk(bytes), entry->d_type });
    }
    if (errno != 0)
        return std::nullopt;
    return entries;
}

bool entryExists(const QByteArray &path)
{
    struct stat status;
    return retried([&] { return lstat(path.constData(), &status); }) == 0;
}

QString withoutTrailingPoints(QString name)
{
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name;
}

bool isBeyondAscii(QChar letter)
{
    constexpr char16_t FirstBeyond = 128;
    return letter >= QChar(FirstBeyond);
}

// False only if this name surely has another plain form than this one, which is in upper case. Letters beyond
// ASCII may be written in several ways, so that they prove nothing.
bool mayShareForm(QStringView name, QStringView form)
{
    constexpr char16_t FirstBeyond = 128;
    if (name.size() != form.size())
        return false;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar own = name[i];
        const QChar wanted = form[i];
        if (own >= QChar(FirstBeyond) || wanted >= QChar(FirstBeyond))
            continue;
        const bool replaced = wanted == u'_' && (own == u'.' || own.isSpace());
        const bool capital = own >= u'a' && own <= u'z' && own.unicode() - wanted.unicode() == 'a' - 'A';
        if (own != wanted && !capital && !replaced)
            return false;
    }
    return true;
}

// The first letters of a name by which it is ordered; what differs there needs no look at the name itself,
// which for thousands of them took most of a listing's time.
using Beginning = std::array<unsigned char, 32>;

Beginning beginningOf(const QString &name)
{
    constexpr unsigned char BeyondAscii = 128;
    Beginning result {};
    const QString capitals = upper(name.first(std::min(name.size(), qsizetype(result.size()))));
    for (qsizetype i = 0; i < capitals.size(); ++i) {
        if (capitals[i].unicode() >= BeyondAscii) { // the rest says nothing
            result[std::size_t(i)] = BeyondAscii;
            break;
        }
        result[std::size_t(i)] = static_cast<unsigned char>(capitals[i].unicode());
    }
    return result;
}

} // namespace

std::shared_ptr<const Directory> Directory::of(const Descriptor &descriptor)
{
    // The stream closes what it is given.
    const int own = fcntl(descriptor.number(), F_DUPFD_CLOEXEC, 0);
    DIR *stream = fdopendir(own);
    if (!stream) {
        close(own);
        return nullptr;
    }
    std::optional<std::vector<Entry>> entries = readEntries(stream);
    closedir(stream);
    return entries ? std::make_shared<const Directory>(std::move(*entries)) : nullptr;
}

std::shared_ptr<const Directory> Directory::at(const QByteArray &path)
{
    static std::map<Place, Reading> readings;
    struct stat status;
    if (retried([&] { return stat(path.constData(), &status); }) != 0)
        return nullptr;
    const Place place(status.st_dev, status.st_ino);
    const auto kept = readings.find(place);
    if (kept != readings.end() && kept->second.changed == nanoseconds(status.st_ctim))
        return kept->second.directory;

    readings.erase(place);
    const Descriptor descriptor(
        retried([&] { return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!descriptor.isOpen() || retried([&] { return fstat(descriptor.number(), &status); }) != 0)
        return nullptr;
    const bool keep = isSettled(status.st_ctim);
    std::shared_ptr<const Directory> directory = of(descriptor);
    if (keep && directory) {
        if (readings.size() >= MostReadings)
            readings.clear();
        readings[Place(status.st_dev, status.st_ino)] = { nanoseconds(status.st_ctim), directory };
    }
    return directory;
}

int Directory::readings()
{
    return readingCount;
}

Directory::Directory(std::vector<Entry> entries)
{
    struct Place {
        Beginning beginning;
        std::size_t entry;
    };
    std::vector<Place> order;
    order.reserve(entries.size());
    for (const Entry &entry : entries)
        order.push_back({ beginningOf(entry.name), order.size() });
    std::sort(order.begin(), order.end(), [&entries](const Place &a, const Place &b) {
        const int ahead = std::memcmp(a.beginning.data(), b.beginning.data(), a.beginning.size());
        if (ahead != 0)
            return ahead < 0;
        const QString &one = entries[a.entry].name;
        const QString &other = entries[b.entry].name;
        const int difference = compareNames(one, other);
        return difference < 0 || (difference == 0 && nameToDisk(one) < nameToDisk(other));
    });
    m_entries.reserve(entries.size());
    for (const Place &place : order)
        m_entries.push_back(std::move(entries[place.entry]));
}

// The first entry that has this name in any case; at the end where none has. Who asks for thousands asks in
// their order.
std::size_t Directory::placeOf(const QString &name) const
{
    if (m_next < m_entries.size() && sameName(m_entries[m_next].name, name))
        return m_next;
    const auto first = std::lower_bound(m_entries.begin(), m_entries.end(), name,
        [](const Entry &entry, const QString &wanted) { return compareNames(entry.name, wanted) < 0; });
    const bool found = first != m_entries.end() && sameName(first->name, name);
    return found ? static_cast<std::size_t>(first - m_entries.begin()) : m_entries.size();
}

// Null where no entry has this name in any case.
const Directory::Entry *Directory::named(const QString &name) const
{
    std::size_t place = placeOf(name);
    if (place == m_entries.size())
        return nullptr;
    const Entry *found = &m_entries[place];
    while (++place < m_entries.size() && sameName(m_entries[place].name, name)) {
        if (m_entries[place].name == name)
            found = &m_entries[place];
    }
    m_next = place;
    return found;
}

QString Directory::find(const QString &name) const
{
    if (const Entry *entry = named(name))
        return entry->name;
    if (m_shortFormsNamed || mayBeShortForm(name)) {
        nameShortForms();
        const auto form = m_byShortForm.constFind(upper(name));
        if (form != m_byShortForm.constEnd())
            return *form;
    }
    return findOld(name);
}

// The first one in the order of names counts.
QString Directory::findOld(const QString &name) const
{
    if (std::none_of(name.begin(), name.end(), isBeyondAscii))
        return {};
    for (std::size_t i = m_oldNamed ? m_entries.size() : 0; i < m_entries.size(); ++i) {
        const QString &own = m_entries[i].name;
        const DecodedText text =
            std::any_of(own.begin(), own.end(), isBeyondAscii) ? decodeText(nameToDisk(own)) : DecodedText();
        if (!text.text.isEmpty() && text.encoding == Encoding::Windows1252
            && !m_byOldName.contains(upper(text.text)))
            m_byOldName.insert(upper(text.text), own);
    }
    m_oldNamed = true;
    return m_byOldName.value(upper(name));
}

bool Directory::holdsFile(const QString &name) const
{
    const Entry *entry = named(name);
    return entry && entry->type == DT_REG;
}

QString Directory::shortForm(const QString &name) const
{
    const QString plain = plainShortForm(name);
    if (plain == name || (!m_shortFormsNamed && isAloneWith(name, plain)))
        return plain;
    nameShortForms();
    return m_shortForms.value(name, name);
}

// True if the name is an entry's, and no other one can want this form or be found under it. Looked at for one
// name, this is far quicker than naming all.
bool Directory::isAloneWith(const QString &name, const QString &plain) const
{
    const QString key = upper(plain);
    bool own = false;
    for (const Entry &entry : m_entries) {
        if (!mayShareForm(entry.name, key))
            continue;
        if (entry.name != name)
            return false;
        own = true;
    }
    return own;
}

// A form has no blanks, one point at most, and of a name without a number the length. Looked at for one name,
// this is far quicker than naming all.
bool Directory::mayBeShortForm(const QString &name) const
{
    const auto isBlank = [](QChar letter) { return letter.isSpace(); };
    if (name.count(u'.') > 1 || std::any_of(name.begin(), name.end(), isBlank))
        return false;
    const QString key = upper(name);
    return name.contains(u'~') || std::any_of(m_entries.begin(), m_entries.end(), [&key](const Entry &entry) {
        return mayShareForm(entry.name, key);
    });
}

void Directory::nameShortForms() const
{
    if (m_shortFormsNamed)
        return;
    QStringList names;
    for (const Entry &entry : m_entries)
        names.append(entry.name);
    m_shortForms = assignShortForms(names);
    for (auto form = m_shortForms.cbegin(); form != m_shortForms.cend(); ++form)
        m_byShortForm.insert(upper(form.value()), form.key());
    m_shortFormsNamed = true;
}

QByteArray withoutClosing(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

QByteArray joined(const QByteArray &directory, const QByteArray &name)
{
    if (directory.isEmpty() || directory.endsWith('/'))
        return directory + name;
    return directory + '/' + name;
}

QByteArray entryFor(const QByteArray &directory, const QString &name)
{
    const QByteArray exact = nameToDisk(name);
    if (entryExists(joined(directory, exact)))
        return exact;
    const auto names = Directory::at(directory.isEmpty() ? QByteArray(".") : directory);
    const QString found = names ? names->find(name) : QString();
    const QString bare = found.isEmpty() ? withoutTrailingPoints(name) : name;
    return bare.isEmpty() || bare.size() == name.size() ? nameToDisk(found) : entryFor(directory, bare);
}

} // namespace host
