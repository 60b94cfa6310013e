#include "host/likeness.h"

#include "host/plainfile.h"
#include "host/retried.h"

#include <QByteArrayList>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <optional>

#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr qsizetype LargestAttribute = 65536; // the system's own limit, of a list of names too
constexpr auto AccessList = "system.posix_acl_access";
constexpr mode_t ModeBits = 07777;
constexpr int GroupShift = 3;

// Owners that this system can't name, and file systems without owners, modes or attributes: nothing to keep
// there.
bool isBeyondUs(int systemError)
{
    return systemError == EPERM || systemError == EINVAL || systemError == ENOSYS
        || systemError == EOPNOTSUPP;
}

// None, with errno, if there is no such attribute.
std::optional<QByteArray> attribute(int file, const char *name)
{
    QByteArray value(LargestAttribute, '\0');
    const ssize_t length = retried([&] { return fgetxattr(file, name, value.data(), size_t(value.size())); });
    if (length < 0)
        return std::nullopt;
    return value.first(length);
}

bool setAttribute(int file, const char *name, const QByteArray &value)
{
    return retried([&] { return fsetxattr(file, name, value.constData(), size_t(value.size()), 0); }) == 0;
}

bool copyUserAttributes(int from, int to)
{
    QByteArray names(LargestAttribute, '\0');
    const ssize_t length = retried([&] { return flistxattr(from, names.data(), size_t(names.size())); });
    if (length < 0)
        return isBeyondUs(errno);
    for (const QByteArray &name : names.first(length).split('\0')) {
        if (!name.startsWith("user."))
            continue;
        const std::optional<QByteArray> value = attribute(from, name.constData());
        const bool copied = value && setAttribute(to, name.constData(), *value);
        if (!copied && errno != ENODATA && !isBeyondUs(errno))
            return false;
    }
    return true;
}

// Only the system's administrator can give a file away; for others the group is kept where they belong to it.
bool giveOwner(int file, const struct stat &fresh, const struct stat &old)
{
    const auto give = [file](uid_t user, gid_t group) {
        return retried([&] { return fchown(file, user, group); }) == 0;
    };
    if ((fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid) || give(old.st_uid, old.st_gid))
        return true;
    return isBeyondUs(errno) && (give(uid_t(-1), old.st_gid) || isBeyondUs(errno));
}

// The place of an entry's rights in an access list as the system hands it over; -1 if there is none.
qsizetype rightsOf(const QByteArray &list, quint16 tag)
{
    for (qsizetype i = sizeof(posix_acl_xattr_header);
         i + qsizetype(sizeof(posix_acl_xattr_entry)) <= list.size(); i += sizeof(posix_acl_xattr_entry)) {
        if (qFromLittleEndian<quint16>(list.constData() + i) == tag)
            return i + qsizetype(offsetof(posix_acl_xattr_entry, e_perm));
    }
    return -1;
}

mode_t rights(const QByteArray &list, quint16 tag, mode_t otherwise)
{
    const qsizetype place = rightsOf(list, tag);
    return place < 0 ? otherwise : qFromLittleEndian<quint16>(list.constData() + place);
}

// What the mode shows for the group is the list's mask; this is what the group itself may do.
mode_t withGroupsOwnRights(mode_t mode, const QByteArray &list)
{
    const mode_t shown = (mode & S_IRWXG) >> GroupShift;
    const mode_t own = rights(list, ACL_GROUP_OBJ, shown);
    return (mode & ~mode_t(S_IRWXG)) | (own << GroupShift);
}

// Another group gets no more than all others had.
mode_t forAnotherGroup(mode_t mode)
{
    return mode & ~(mode_t(S_ISGID) | (mode_t(S_IRWXG) & ~((mode & S_IRWXO) << GroupShift)));
}

QByteArray forAnotherGroup(QByteArray list)
{
    const qsizetype group = rightsOf(list, ACL_GROUP_OBJ);
    if (group >= 0)
        qToLittleEndian<quint16>(
            quint16(rights(list, ACL_GROUP_OBJ, 0) & rights(list, ACL_OTHER, 0)), list.data() + group);
    return list;
}

// Also takes away the list that a new file gets from its directory. False, with errno.
bool giveAccessList(int file, const QByteArray &list)
{
    if (!list.isEmpty())
        return setAttribute(file, AccessList, list);
    return retried([&] { return fremovexattr(file, AccessList); }) == 0 || errno == ENODATA
        || isBeyondUs(errno);
}

bool giveRights(int file, const struct stat &given, const struct stat &old, QByteArray list)
{
    const bool sameGroup = given.st_gid == old.st_gid;
    mode_t mode = old.st_mode & ModeBits;
    if (given.st_uid != old.st_uid)
        mode &= ~mode_t(S_ISUID);
    if (!sameGroup)
        list = forAnotherGroup(list);
    const bool listGiven = giveAccessList(file, list);
    if (!listGiven && !isBeyondUs(errno))
        return false;
    if (!listGiven)
        mode = withGroupsOwnRights(mode, list);
    if (!sameGroup)
        mode = list.isEmpty() || !listGiven ? forAnotherGroup(mode) : mode & ~mode_t(S_ISGID);
    return retried([&] { return fchmod(file, mode); }) == 0 || isBeyondUs(errno);
}

} // namespace

QString makeAlike(const PlainFile &old, int fresh)
{
    const int from = old.descriptor.number();
    // First, while the new file is still this user's own to write.
    if (!copyUserAttributes(from, fresh))
        return u"keep the attributes of a file"_s;
    struct stat given { };
    const auto look = [&] { return fstat(fresh, &given); };
    if (retried(look) != 0 || !giveOwner(fresh, given, old.status) || retried(look) != 0)
        return u"keep the owner of a file"_s;
    const std::optional<QByteArray> list = attribute(from, AccessList);
    if (!list && errno != ENODATA && !isBeyondUs(errno))
        return u"keep the access list of a file"_s;
    if (!giveRights(fresh, given, old.status, list.value_or(QByteArray())))
        return u"keep the mode of a file"_s;
    return {};
}

} // namespace host
