// Bytes that are written to an open file, where the system takes few of them at once, or none.
#include "host/writebytes.h"

#include "disktest.h"
#include "systemcalls.h"

#include "host/descriptor.h"

#include <cerrno>

#include <fcntl.h>

using host::Descriptor;

namespace {

class WriteBytes : public DiskTest {
protected:
    // The error that writing them ends with; 0 if it comes through.
    int errorOf(const QByteArray &bytes, int flags = O_WRONLY | O_CREAT) const
    {
        const Descriptor file(open(place("file").constData(), flags, 0600));
        errno = 0;
        const bool written = host::writeBytes(file.number(), bytes.constData(), std::size_t(bytes.size()));
        return written ? 0 : errno;
    }
};

} // namespace

TEST_F(WriteBytes, AllOfThemReachTheFile_HoweverFewTheSystemTakes)
{
    const auto writeByFew = [this] {
        systemcalls::setMostWritten(3);
        return errorOf("ten bytes.");
    };
    EXPECT_EQ(inChild(writeByFew), 0);
    EXPECT_EQ(bytes("file"), "ten bytes.");
    EXPECT_EQ(errorOf(QByteArray()), 0);
}

TEST_F(WriteBytes, EndInAFailure_WhereTheSystemTakesNone)
{
    const auto writeNothing = [this] {
        systemcalls::setMostWritten(0);
        return errorOf("ten bytes.");
    };
    EXPECT_EQ(inChild(writeNothing), EIO);
    EXPECT_EQ(bytes("file"), "");
}

TEST_F(WriteBytes, SayWhatTheSystemSays)
{
    makeFile("file", "old");
    EXPECT_EQ(errorOf("new", O_RDONLY), EBADF);
    const systemcalls::FaultOf full("write", ENOSPC, 1);
    EXPECT_EQ(errorOf("new", O_WRONLY), ENOSPC);
    EXPECT_EQ(bytes("file"), "old");
}

TEST_F(WriteBytes, AreTriedAgainAfterAnInterruption)
{
    const systemcalls::FaultOf interruptions("write", EINTR, 2);
    EXPECT_EQ(errorOf("ten bytes."), 0);
    EXPECT_EQ(bytes("file"), "ten bytes.");
}
