#include "host/lengths.h"

#include "host/descriptor.h"
#include "host/directory.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"
#include "host/statuses.h"

#include <climits>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace host {

LengthsIn::LengthsIn(const QString &directory)
    : m_directory(directory)
{
    if (!directory.isEmpty() && lastSeparator(directory) == directory.size() - 1)
        m_found = findOnDisk(directory);
    m_opened = std::make_shared<const Descriptor>(
        m_found.isEmpty() ? -1 : open(m_found.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

qint64 LengthsIn::operator()(const QString &path) const
{
    const QString name = path.sliced(m_directory.size());
    if (!isEntry(name))
        return fileLength(path);
    struct stat status;
    if (!look(name, status))
        throw Failure(FileNotFound, u"read the length"_s, path);
    return status.st_size;
}

// Null where the directory can't be listed; tried but once.
const Directory *LengthsIn::listing() const
{
    if (!m_listed)
        m_listing = Directory::at(m_found);
    m_listed = true;
    return m_listing.get();
}

std::optional<FileState> LengthsIn::state(const QString &path) const
{
    const QString name = path.sliced(m_directory.size());
    if (!isEntry(name))
        return std::nullopt;
    struct stat status;
    if (!look(name, status))
        throw Failure(FileNotFound, u"look at a file"_s, path);
    return stateOf(status);
}

bool LengthsIn::leadsToFile(const QString &spelling, struct stat &status) const
{
    const QByteArray entry = nameToDisk(spelling);
    const int failed = m_opened->isOpen() ? fstatat(m_opened->number(), entry.constData(), &status, 0)
                                          : stat(joined(m_found, entry).constData(), &status);
    return failed == 0 && !S_ISDIR(status.st_mode);
}

// True if an entry of this name leads to a file.
bool LengthsIn::look(const QString &name, struct stat &status) const
{
    if (m_listing && leadsToFile(m_listing->find(name), status))
        return true;
    if (leadsToFile(name, status))
        return true;
    listing();
    return leadsToFile(nameFromDisk(entryFor(m_found, name)), status);
}

QList<qint64> LengthsIn::ofAll(const QStringList &names) const
{
    constexpr qint64 Unknown = -1;
    QList<qint64> lengths(names.size(), Unknown);
    qint64 *const found = lengths.data();
    lookAtEach(*m_opened, spellings(names), [found](std::size_t name, const struct stat &status) {
        if (!S_ISDIR(status.st_mode))
            found[name] = status.st_size;
    });
    for (qsizetype i = 0; i < lengths.size(); ++i) {
        if (lengths[i] != Unknown)
            continue;
        try {
            lengths[i] = (*this)(m_directory + names[i]);
        } catch (const Failure &) {
            lengths.resize(i); // the rest isn't asked for
        }
    }
    return lengths;
}

std::vector<std::optional<FileState>> LengthsIn::states(const QStringList &paths) const
{
    QStringList names;
    names.reserve(paths.size());
    for (const QString &path : paths)
        names.append(path.sliced(m_directory.size()));
    const auto total = static_cast<std::size_t>(names.size());
    std::vector<std::optional<FileState>> states(total);
    std::vector<unsigned char> isFile(total, false);
    lookAtEach(*m_opened, spellings(names), [&](std::size_t name, const struct stat &status) {
        isFile[name] = !S_ISDIR(status.st_mode);
        states[name] = stateOf(status);
    });
    for (std::size_t i = 0; i < total; ++i) {
        if (!isFile[i])
            states[i] = state(paths[static_cast<qsizetype>(i)]);
    }
    return states;
}

QStringList LengthsIn::spellings(const QStringList &names) const
{
    QStringList spellings;
    spellings.reserve(names.size());
    for (const QString &name : names)
        spellings.append(spelling(name));
    return spellings;
}

// As the listing has it, if it has it; as it stands where it can be no entry's.
QString LengthsIn::spelling(const QString &name) const
{
    if (!isEntry(name))
        return {};
    const Directory *listed = listing();
    return listed ? listed->find(name) : name;
}

bool LengthsIn::lists(const QString &path) const
{
    const QString name = path.sliced(m_directory.size());
    if (!isEntry(name))
        return false;
    const Directory *listed = listing();
    return listed && listed->holdsFile(name);
}

// True for a name that can only mean an entry of the directory found.
bool LengthsIn::isEntry(const QString &name) const
{
    return !m_found.isEmpty() && !name.isEmpty() && name.size() <= NAME_MAX && lastSeparator(name) < 0
        && !name.contains(QChar::Null);
}

} // namespace host
