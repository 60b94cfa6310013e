#include "disktest.h"

#include <cerrno>

using namespace Qt::StringLiterals;
using host::Failure;
using host::systemFailure;

TEST(Failure, TellsNumberOperationAndSubjectInOneLine)
{
    const Failure failure(host::FileNotFound, u"open a file"_s, u"/roms/España.zip"_s);
    EXPECT_EQ(failure.number(), 53);
    EXPECT_EQ(failure.operation(), u"open a file"_s);
    EXPECT_EQ(failure.about(), u"/roms/España.zip"_s);
    EXPECT_STREQ(failure.what(), "failure 53: open a file: /roms/España.zip");
}

TEST(Failure, TellsNoSubject_WhenThereIsNone)
{
    EXPECT_STREQ(Failure(62, u"read a line past the end"_s).what(), "failure 62: read a line past the end");
}

TEST(Failure, HasTheClassicNumber_ForEachErrorOfTheSystem)
{
    const auto number = [](int error) { return systemFailure(error, u"x"_s, u"y"_s).number(); };
    EXPECT_EQ(number(ENOENT), 53);
    EXPECT_EQ(number(ENOTDIR), 76);
    EXPECT_EQ(number(ENAMETOOLONG), 76);
    EXPECT_EQ(number(EACCES), 70);
    EXPECT_EQ(number(EPERM), 70);
    EXPECT_EQ(number(EROFS), 70);
    EXPECT_EQ(number(EISDIR), 75);
    EXPECT_EQ(number(EEXIST), 75);
    EXPECT_EQ(number(ELOOP), 75);
    EXPECT_EQ(number(ENOSPC), 61);
    EXPECT_EQ(number(EDQUOT), 61);
    EXPECT_EQ(number(EFBIG), 61);
    EXPECT_EQ(number(ENOEXEC), 5);
    EXPECT_EQ(number(EIO), 57);
}

TEST(Failure, TellsTheReasonThatTheSystemGives)
{
    const Failure failure = systemFailure(ENOSPC, u"write a file"_s, u"Zembro.cfg"_s);
    EXPECT_STREQ(failure.what(), "failure 61: write a file (No space left on device): Zembro.cfg");
}
