#include "host/replacement.h"

#include "host/directorylock.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/likeness.h"
#include "host/paths.h"
#include "host/retried.h"
#include "host/writebytes.h"

#include <array>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr int MostLinks = 40;
constexpr mode_t NewFileMode = 0666; // less the process's mask
constexpr mode_t ScratchMode = 0600; // until it has the old file's

QByteArray directoryOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray("./") : path.first(slash + 1);
}

// Where a chain of links leads, also to a file that isn't there yet.
QByteArray followLinks(QByteArray path, const QString &typed)
{
    std::array<char, PATH_MAX> target;
    for (int links = 0; links < MostLinks; ++links) {
        const ssize_t length =
            retried([&] { return readlink(path.constData(), target.data(), target.size()); });
        if (length < 0)
            return path;
        const QByteArray next(target.data(), length);
        path = next.startsWith('/') ? next : directoryOf(path) + next;
    }
    throw systemFailure(ELOOP, u"follow a link"_s, typed);
}

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool isUnchanged(const struct stat &before, const struct stat &now)
{
    return isSameFile(before, now) && before.st_size == now.st_size
        && before.st_mtim.tv_sec == now.st_mtim.tv_sec && before.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

bool isForbidden(int error)
{
    return error == EACCES || error == EPERM || error == EROFS;
}

bool isReadOnly(int directory, const char *path)
{
    const auto ask = [&] { return faccessat(directory, path, W_OK | X_OK, AT_EACCESS); };
    return retried(ask) != 0 && isForbidden(errno);
}

} // namespace

bool liesInReadOnlyPlace(const QString &path)
{
    const QByteArray place = findForWriting(path);
    return !place.isEmpty() && isReadOnly(AT_FDCWD, directoryOf(followLinks(place, path)).constData());
}

Replacement::Replacement(const QString &path, const QString &scratchName)
    : m_path(path)
    , m_scratchName(nameToDisk(scratchName))
{
    const QByteArray place = findForWriting(path);
    if (place.isEmpty())
        throw Failure(PathNotFound, u"rewrite a file"_s, path);
    const QByteArray target = followLinks(place, path);
    m_name = target.sliced(target.lastIndexOf('/') + 1);
    if (m_scratchName.isEmpty() || m_scratchName.contains('/') || m_scratchName == m_name)
        throw Failure(InvalidArgument, u"rewrite a file by way of "_s + scratchName, path);
    m_directory = Descriptor(
        retried([&] { return open(directoryOf(target).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!m_directory.isOpen())
        fail(u"open the directory of a file"_s);
    lock();
}

Replacement::~Replacement()
{
    struct stat written { };
    struct stat named { };
    // Not another copy's.
    if (m_scratchStands && retried([&] { return fstat(m_scratch.number(), &written); }) == 0
        && look(m_scratchName, named) && isSameFile(written, named))
        retried([&] { return unlinkat(m_directory.number(), m_scratchName.constData(), 0); });
}

void Replacement::lock()
{
    if (lockDirectory(m_directory.number()))
        return;
    if (errno != ETIMEDOUT)
        fail(u"wait for another program to rewrite a file"_s);
    const QString holder = lockHolder(m_directory.number());
    throw Failure(PermissionDenied,
        u"rewrite a file, as another program"_s + (holder.isEmpty() ? QString() : u" ("_s + holder + u')')
            + KeptLocked,
        m_path);
}

std::optional<QByteArray> Replacement::read()
{
    m_old = readPlainFile(m_directory.number(), m_name, O_RDONLY | O_NOFOLLOW);
    if (!m_old && errno == ENOENT)
        return std::nullopt;
    if (!m_old)
        throw Failure(PathAccess, u"read a file that is to be rewritten"_s, m_path);
    return std::exchange(m_old->bytes, {});
}

void Replacement::write(const QByteArray &bytes)
{
    if (m_old && !mayBeWritten())
        failForbidden();
    makeScratch();
    if (!writeBytes(m_scratch.number(), bytes.constData(), std::size_t(bytes.size())))
        fail(u"write a file"_s);
    const QString unkept = m_old ? makeAlike(*m_old, m_scratch.number()) : QString();
    if (!unkept.isEmpty())
        fail(unkept);
    if (retried([this] { return fsync(m_scratch.number()); }) != 0)
        fail(u"write a file to the disk"_s);
}

void Replacement::commit()
{
    mustBeAsRead();
    mustBeAsWritten();
    const int directory = m_directory.number();
    const auto rename = [&] {
        return renameat(directory, m_scratchName.constData(), directory, m_name.constData());
    };
    if (retried(rename) != 0)
        fail(u"put the new file in the place of the old one"_s);
    m_scratchStands = false;
    // The new file is in place whatever this says: file systems that can't flush a directory need no
    // flushing.
    retried([&] { return fsync(directory); });
}

bool Replacement::look(const QByteArray &name, struct stat &status) const
{
    const auto ask = [&] {
        return fstatat(m_directory.number(), name.constData(), &status, AT_SYMLINK_NOFOLLOW);
    };
    return retried(ask) == 0;
}

// A change that came between the reading and now would be lost.
void Replacement::mustBeAsRead() const
{
    struct stat now { };
    const bool stands = look(m_name, now);
    if (!stands && errno != ENOENT)
        fail(u"look at a file that is to be rewritten"_s);
    if (stands != m_old.has_value() || (stands && !isUnchanged(m_old->status, now)))
        throw Failure(PathAccess, ChangedMeanwhile, m_path);
}

void Replacement::mustBeAsWritten() const
{
    struct stat written { };
    struct stat named { };
    if (retried([&] { return fstat(m_scratch.number(), &written); }) != 0
        || (!look(m_scratchName, named) && errno != ENOENT))
        fail(u"look at the scratch file"_s);
    if (!isSameFile(written, named))
        throw Failure(
            PathAccess, u"rewrite a file, as another program has taken the scratch file meanwhile"_s, m_path);
}

bool Replacement::mayBeWritten() const
{
    const auto ask = [this] { return faccessat(m_directory.number(), m_name.constData(), W_OK, AT_EACCESS); };
    return (m_old->status.st_mode & S_IWUSR) != 0 && retried(ask) == 0;
}

// What lies under the scratch name goes first, so that nothing is ever written through it.
void Replacement::makeScratch()
{
    const int directory = m_directory.number();
    const char *name = m_scratchName.constData();
    if (retried([&] { return unlinkat(directory, name, 0); }) != 0 && errno != ENOENT)
        failIn(u"remove a left-over scratch file"_s);
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const mode_t mode = m_old ? ScratchMode : NewFileMode;
    m_scratch = Descriptor(retried([&] { return openat(directory, name, flags, mode); }));
    if (!m_scratch.isOpen())
        failIn(u"make the scratch file"_s);
    m_scratchStands = true;
}

void Replacement::failForbidden() const
{
    const QString operation = u"rewrite a file that may not be written"_s;
    if (isReadOnly(m_directory.number(), "."))
        throw ReadOnlyPlace(PathAccess, operation, m_path);
    throw Failure(PathAccess, operation, m_path);
}

void Replacement::failIn(const QString &operation) const
{
    if (!isForbidden(errno))
        fail(operation);
    const Failure failure =
        systemFailure(errno, u"write beside a file, where writing isn't allowed"_s, m_path);
    throw ReadOnlyPlace(failure.number(), failure.operation(), failure.about());
}

void Replacement::fail(const QString &operation) const
{
    throw systemFailure(errno, operation, m_path);
}

} // namespace host
