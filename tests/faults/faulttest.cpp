#include "faulttest.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <set>

#include <linux/posix_acl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace faults {

namespace {

constexpr std::array Errors { ENOSPC, EIO, EACCES, EINTR, EROFS, EMFILE };
constexpr std::array LastingErrors { ENOSPC, EIO, EROFS, EACCES };
constexpr int ManyCalls = 5000;
constexpr auto AccessList = "system.posix_acl_access";
constexpr auto Attribute = "user.zembrolix.test";

// User 1234 reads and writes, the group only reads, the mask is both: as the system hands it over.
const QByteArray List = QByteArray::fromHex("02000000"
                                            "01000600FFFFFFFF"
                                            "02000600D2040000"
                                            "04000400FFFFFFFF"
                                            "10000600FFFFFFFF"
                                            "20000000FFFFFFFF");

QByteArray attributeOf(const QByteArray &place, const char *name)
{
    std::array<char, 256> value;
    const ssize_t length = getxattr(place.constData(), name, value.data(), value.size());
    return length < 0 ? QByteArray() : QByteArray(value.data(), length);
}

// Says once what this disk keeps none of: nothing is tried with it then.
void giveIfKept(const QByteArray &place, const char *name, const QByteArray &value)
{
    static std::set<std::string> skipped;
    if (setxattr(place.constData(), name, value.constData(), size_t(value.size()), 0) == 0)
        return;
    EXPECT_EQ(errno, EOPNOTSUPP) << name;
    if (skipped.insert(name).second)
        std::printf("skipped: %s, of which this disk keeps none\n", name);
}

std::string described(const Fault &fault, const End &end)
{
    static const char *const kinds[] = { "failing", "short", "writing nothing", "killed before",
        "killed behind" };
    std::string text = kinds[int(fault.kind)];
    if (fault.kind == Kind::Fail)
        text += std::string(" with ") + strerror(fault.error);
    return text + (fault.stays ? " from" : " at") + " call " + std::to_string(fault.call) + ", the system's "
        + std::to_string(end.number);
}

} // namespace

void FaultTest::SetUp()
{
    static const bool can = canTrace();
    if (!can)
        GTEST_SKIP() << "processes can't be watched here, or not on this kind of machine";
}

bool FaultTest::whole()
{
    return qgetenv("FAULTS") == "whole";
}

void FaultTest::tryFault(const Fault &fault)
{
    prepare();
    const End end = runWith(fault, [this] { return operate(); });
    const testing::ScopedTrace trace(__FILE__, __LINE__, described(fault, end));
    m_reached = end.reached;
    EXPECT_FALSE(end.hung);
    check(fault, end);
}

// False behind the last call.
bool FaultTest::tryCall(int call, bool quick)
{
    tryFault({ Kind::KillBehind, call });
    if (!m_reached)
        return false;
    tryFault({ Kind::KillBefore, call });
    for (std::size_t i = 0; i < Errors.size(); ++i) {
        if (!quick || Errors[i] == EINTR || i == std::size_t(call) % Errors.size())
            tryFault({ Kind::Fail, call, Errors[i] });
    }
    for (const int error : LastingErrors) {
        if (!quick)
            tryFault({ Kind::Fail, call, error, true });
    }
    return true;
}

void FaultTest::tryShort()
{
    tryFault({ Kind::Short, 0, 0, true });
    m_reached = true;
    for (int call = 0; m_reached && call < ManyCalls; ++call)
        tryFault({ Kind::Short, call });
}

void FaultTest::tryNothing()
{
    m_reached = true;
    for (int call = 0; m_reached && call < ManyCalls; ++call)
        tryFault({ Kind::Nothing, call, 0, true });
}

void FaultTest::tryAll(int stride, int offset)
{
    const auto begin = std::chrono::steady_clock::now();
    const int before = runs();
    const bool quick = !whole();
    const int step = quick ? stride : 1;
    int call = quick ? offset % stride : 0;
    while (call < ManyCalls && tryCall(call, quick))
        call += step;
    EXPECT_LT(call, ManyCalls) << "the operation never came to its end";
    EXPECT_GT(call, 10) << "the calls aren't watched";
    tryShort();
    tryNothing();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    std::printf("%5d runs, about %d calls, %.1f s\n", runs() - before, call, time.count());
}

void FaultTest::makeUnusual(const QByteArray &name, mode_t mode) const
{
    const QByteArray file = place(name);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(file.constData(), 12345, 12346), 0);
    }
    setMode(name, mode);
    giveIfKept(file, Attribute, "kept");
    giveIfKept(file, AccessList, List);
}

Likeness FaultTest::likeness(const QByteArray &name) const
{
    struct stat status { };
    EXPECT_EQ(stat(place(name).constData(), &status), 0) << name.toStdString();
    return { bytes(name), status.st_mode & 07777, status.st_uid, status.st_gid,
        attributeOf(place(name), AccessList), attributeOf(place(name), Attribute) };
}

} // namespace faults
