#include "host/replacement.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"
#include "host/plainfile.h"

#include <array>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr int MostLinks = 40;
constexpr mode_t NewFileMode = 0666; // less the process's mask
constexpr mode_t ScratchMode = 0600; // until it has the old file's

// Owners that this system can't name, and file systems without owners or modes: nothing to keep there.
bool isBeyondUs(int systemError)
{
    return systemError == EPERM || systemError == EINVAL || systemError == ENOSYS
        || systemError == EOPNOTSUPP;
}

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
        const ssize_t length = readlink(path.constData(), target.data(), target.size());
        if (length < 0)
            return path;
        const QByteArray next(target.data(), length);
        path = next.startsWith('/') ? next : directoryOf(path) + next;
    }
    throw systemFailure(ELOOP, u"follow a link"_s, typed);
}

} // namespace

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
    m_directory = Descriptor(open(directoryOf(target).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_directory.isOpen())
        fail(u"open the directory of a file"_s);
    lock();
}

Replacement::~Replacement()
{
    if (m_scratchStands)
        unlinkat(m_directory.number(), m_scratchName.constData(), 0);
}

// Some network file systems can't lock a directory. There, rewriting without a lock is better than never.
void Replacement::lock()
{
    int result = 0;
    do {
        result = flock(m_directory.number(), LOCK_EX);
    } while (result != 0 && errno == EINTR);
}

std::optional<QByteArray> Replacement::read()
{
    const std::optional<PlainFile> file = readPlainFile(m_directory.number(), m_name, O_RDONLY | O_NOFOLLOW);
    if (!file && errno == ENOENT)
        return std::nullopt;
    if (!file)
        throw Failure(PathAccess, u"read a file that is to be rewritten"_s, m_path);
    m_old = file->status;
    return file->bytes;
}

void Replacement::write(const QByteArray &bytes)
{
    if (m_old && !mayBeWritten())
        throw Failure(PathAccess, u"rewrite a file that may not be written"_s, m_path);
    makeScratch();
    writeAll(bytes);
    keepOwnerAndMode();
    if (fsync(m_scratch.number()) != 0)
        fail(u"write a file to the disk"_s);
}

void Replacement::commit()
{
    const int directory = m_directory.number();
    if (renameat(directory, m_scratchName.constData(), directory, m_name.constData()) != 0)
        fail(u"put the new file in the place of the old one"_s);
    m_scratchStands = false;
    // The new file is in place whatever this says: file systems that can't flush a directory need no
    // flushing.
    fsync(directory);
}

bool Replacement::mayBeWritten() const
{
    return (m_old->st_mode & S_IWUSR) != 0
        && faccessat(m_directory.number(), m_name.constData(), W_OK, AT_EACCESS) == 0;
}

// What lies under the scratch name goes first, so that nothing is ever written through it.
void Replacement::makeScratch()
{
    const int directory = m_directory.number();
    if (unlinkat(directory, m_scratchName.constData(), 0) != 0 && errno != ENOENT)
        failIn(u"remove a left-over scratch file"_s);
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    m_scratch =
        Descriptor(openat(directory, m_scratchName.constData(), flags, m_old ? ScratchMode : NewFileMode));
    if (!m_scratch.isOpen())
        failIn(u"make the scratch file"_s);
    m_scratchStands = true;
}

void Replacement::writeAll(const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count =
            ::write(m_scratch.number(), bytes.constData() + written, bytes.size() - written);
        if (count < 0 && errno != EINTR)
            fail(u"write a file"_s);
        written += std::max<ssize_t>(count, 0);
    }
}

// Only the system's administrator can give a file away; for others the group is kept where they belong to it.
void Replacement::keepOwnerAndMode()
{
    if (!m_old)
        return;
    const int file = m_scratch.number();
    struct stat fresh { };
    if (fstat(file, &fresh) != 0)
        fail(u"keep the owner of a file"_s);
    const bool sameOwner = fresh.st_uid == m_old->st_uid && fresh.st_gid == m_old->st_gid;
    if (!sameOwner && fchown(file, m_old->st_uid, m_old->st_gid) != 0
        && fchown(file, uid_t(-1), m_old->st_gid) != 0 && !isBeyondUs(errno))
        fail(u"keep the owner of a file"_s);
    if ((fresh.st_mode & 07777) != (m_old->st_mode & 07777) && fchmod(file, m_old->st_mode & 07777) != 0
        && !isBeyondUs(errno))
        fail(u"keep the mode of a file"_s);
}

void Replacement::failIn(const QString &operation) const
{
    const bool forbidden = errno == EACCES || errno == EPERM || errno == EROFS;
    fail(forbidden ? u"write beside a file, where writing isn't allowed"_s : operation);
}

void Replacement::fail(const QString &operation) const
{
    throw systemFailure(errno, operation, m_path);
}

} // namespace host
