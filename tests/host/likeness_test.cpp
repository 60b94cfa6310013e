// What a rewritten file keeps of the old one besides its place: owner, mode, access list, attributes.
#include "disktest.h"
#include "systemcalls.h"

#include "host/numberedfiles.h"

#include <cerrno>

#include <grp.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

constexpr auto AccessList = "system.posix_acl_access";
constexpr auto DefaultList = "system.posix_acl_default";
constexpr quint32 NoId = 0xFFFFFFFF;
constexpr int Read = 4;
constexpr int Write = 2;

struct Entry {
    quint16 tag;
    quint16 rights;
    quint32 id = NoId;
};

QByteArray accessList(const QList<Entry> &entries)
{
    QByteArray list("\x02\x00\x00\x00", 4);
    for (const Entry &entry : entries) {
        for (const quint32 half :
            { quint32(entry.tag), quint32(entry.rights), entry.id & 0xFFFF, entry.id >> 16 }) {
            list += char(half & 0xFF);
            list += char(half >> 8);
        }
    }
    return list;
}

// The owner reads and writes, user 1234 too, the group itself only reads; its mask lets all write.
const QByteArray List = accessList({ { ACL_USER_OBJ, Read | Write }, { ACL_USER, Read | Write, 1234 },
    { ACL_GROUP_OBJ, Read }, { ACL_MASK, Read | Write }, { ACL_OTHER, 0 } });

class Likeness : public DiskTest {
protected:
    Likeness() { makeFile("a", "old\r\n"); }

    void rewrite() const
    {
        host::NumberedFiles().rewrite(
            path(u"a"_s), u"Zembro.tmp"_s, [](const QString &text) { return text + u"new\r\n"_s; });
    }
    // False where the file system keeps nothing of the kind.
    bool set(const char *attribute, const QByteArray &value, const QByteArray &name = "a") const
    {
        if (setxattr(place(name).constData(), attribute, value.constData(), size_t(value.size()), 0) == 0)
            return true;
        EXPECT_EQ(errno, EOPNOTSUPP) << attribute;
        return false;
    }
    std::optional<QByteArray> get(const char *attribute) const
    {
        QByteArray value(1000, '\0');
        const ssize_t length =
            getxattr(place("a").constData(), attribute, value.data(), size_t(value.size()));
        return length < 0 ? std::nullopt : std::optional(value.first(length));
    }
    struct stat status() const
    {
        struct stat result { };
        EXPECT_EQ(stat(place("a").constData(), &result), 0);
        return result;
    }
};

// As the administrator; the file belongs to others.
class LikenessOfAnothersFile : public Likeness {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only the administrator can give a file away";
        setMode({}, 0777);
    }
    void give(uid_t user, gid_t group, mode_t mode) const
    {
        ASSERT_EQ(chown(place("a").constData(), user, group), 0);
        setMode("a", mode);
    }
    // As user 2000 of the groups 2001 and 2002.
    int rewriteAsUser() const
    {
        return inChild([this] {
            const gid_t further = 2002;
            if (setgroups(1, &further) != 0 || setgid(2001) != 0 || setuid(2000) != 0)
                return 1;
            return failureOf([this] { rewrite(); });
        });
    }
};

} // namespace

TEST_F(Likeness, AttributesOfTheUserAreKept)
{
    if (!set("user.xdg.comment", "The catalogue") || !set("user.empty", "") || !set("user.binary", List))
        GTEST_SKIP() << "this file system keeps no attributes";
    rewrite();
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
    EXPECT_EQ(get("user.xdg.comment"), "The catalogue");
    EXPECT_EQ(get("user.empty"), "");
    EXPECT_EQ(get("user.binary"), List);
}

TEST_F(Likeness, AccessListIsKept_AndTheGroupGetsNoMore)
{
    if (!set(AccessList, List))
        GTEST_SKIP() << "this file system keeps no access lists";
    ASSERT_EQ(mode("a"), 0660u) << "what the mode shows is the mask";
    rewrite();
    EXPECT_EQ(get(AccessList), List);
    EXPECT_EQ(mode("a"), 0660u);
}

TEST_F(Likeness, GroupGetsNoMore_WhereTheAccessListCannotBeGiven)
{
    if (!set(AccessList, List))
        GTEST_SKIP() << "this file system keeps no access lists";
    const systemcalls::FaultOf giving("fsetxattr", EOPNOTSUPP);
    rewrite();
    EXPECT_EQ(get(AccessList), std::nullopt);
    EXPECT_EQ(mode("a"), 0640u);
}

TEST_F(Likeness, NothingIsGivenByTheDirectory_WhereTheOldFileHadNoAccessList)
{
    setMode("a", 0640);
    if (!set(DefaultList, List, {}))
        GTEST_SKIP() << "this file system keeps no access lists";
    rewrite();
    EXPECT_EQ(get(AccessList), std::nullopt);
    EXPECT_EQ(mode("a"), 0640u);
}

TEST_F(Likeness, FileWithoutAttributesIsRewritten_WhereTheSystemHasNone)
{
    for (const char *call : { "flistxattr", "fgetxattr", "fsetxattr", "fremovexattr" }) {
        set("user.x", "x");
        const systemcalls::FaultOf none(call, EOPNOTSUPP);
        EXPECT_EQ(failureOf([this] { rewrite(); }), 0) << call;
    }
}

TEST_F(Likeness, OldFileStands_WhereTheDeviceFailsAtItsAttributes)
{
    if (!set("user.x", "x"))
        GTEST_SKIP() << "this file system keeps no attributes";
    for (const char *call : { "flistxattr", "fgetxattr", "fsetxattr", "fremovexattr" }) {
        const systemcalls::FaultOf fault(call, EIO, 1);
        EXPECT_EQ(failureOf([this] { rewrite(); }), host::DeviceError) << call;
        EXPECT_EQ(bytes("a"), "old\r\n") << call;
        EXPECT_THAT(names(), ElementsAre("a")) << call;
    }
}

TEST_F(Likeness, OldFileStands_WhereTheAttributesFindTheDiskFull)
{
    if (!set("user.x", "x"))
        GTEST_SKIP() << "this file system keeps no attributes";
    const systemcalls::FaultOf full("fsetxattr", ENOSPC);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::DiskFull);
    EXPECT_EQ(bytes("a"), "old\r\n");
}

TEST_F(LikenessOfAnothersFile, AdministratorKeepsOwnerAndGroupAndMode)
{
    for (const auto &[user, group] :
        { std::pair(0u, 4000u), std::pair(4001u, 0u), std::pair(4001u, 4000u) }) {
        give(user, group, 06754);
        rewrite();
        EXPECT_EQ(status().st_uid, user);
        EXPECT_EQ(status().st_gid, group);
        EXPECT_EQ(mode("a"), 06754u);
    }
}

TEST_F(LikenessOfAnothersFile, FileIsNotGivenToAnother_WhereTheDeviceFailsAtTheGiving)
{
    give(4001, 4000, 0640);
    const systemcalls::FaultOf fault("fchown", ENOSPC, 1);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::DiskFull);
    EXPECT_EQ(status().st_uid, 4001u);
    EXPECT_EQ(bytes("a"), "old\r\n");
}

TEST_F(LikenessOfAnothersFile, UserKeepsTheGroup_WhereTheyBelongToIt)
{
    give(2000, 2002, 02664);
    EXPECT_EQ(rewriteAsUser(), 0);
    EXPECT_EQ(status().st_uid, 2000u);
    EXPECT_EQ(status().st_gid, 2002u);
    EXPECT_EQ(mode("a"), 02664u);

    give(4001, 2002, 04664);
    EXPECT_EQ(rewriteAsUser(), 0);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\nnew\r\n");
    EXPECT_EQ(status().st_uid, 2000u);
    EXPECT_EQ(status().st_gid, 2002u);
    EXPECT_EQ(mode("a"), 0664u) << "nothing runs as another user than before";
}

TEST_F(LikenessOfAnothersFile, AnotherGroupGetsNoMoreThanAllOthersHad)
{
    for (const auto &[before, after] :
        { std::pair(02664u, 0644u), std::pair(0666u, 0666u), std::pair(0640u, 0600u) }) {
        give(2000, 4000, before);
        EXPECT_EQ(rewriteAsUser(), 0);
        EXPECT_EQ(status().st_gid, 2001u);
        EXPECT_EQ(mode("a"), after);
    }
}

TEST_F(LikenessOfAnothersFile, AnotherGroupGetsNoMore_WhereThereIsAnAccessList)
{
    give(2000, 4000, 0600);
    if (!set(AccessList, List))
        GTEST_SKIP() << "this file system keeps no access lists";
    setMode("a", 02660);
    EXPECT_EQ(rewriteAsUser(), 0);
    EXPECT_EQ(mode("a"), 0660u);
    EXPECT_EQ(get(AccessList),
        accessList({ { ACL_USER_OBJ, Read | Write }, { ACL_USER, Read | Write, 1234 }, { ACL_GROUP_OBJ, 0 },
            { ACL_MASK, Read | Write }, { ACL_OTHER, 0 } }));
}
