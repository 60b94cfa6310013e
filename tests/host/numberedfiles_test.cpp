#include "disktest.h"

#include "host/numberedfiles.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace host;

using FileNumbers = DiskTest;

TEST_F(FileNumbers, FileIsReadByLinesAndFields)
{
    makeFile("Zembro.rom", "NES\r\nSMB,\"Super, \xF1\"\r\n'\r\n");
    NumberedFiles files;
    files.openForInput(1, path(u"ZEMBRO.ROM"_s));
    EXPECT_EQ(files.readLine(1), u"NES"_s);
    EXPECT_EQ(files.readField(1), u"SMB"_s);
    EXPECT_EQ(files.readField(1), u"Super, ñ"_s);
    EXPECT_FALSE(files.atEnd(1));
    EXPECT_EQ(files.readField(1), u"'"_s);
    EXPECT_TRUE(files.atEnd(1));
}

TEST_F(FileNumbers, ATextMayStandForAFile)
{
    makeFile("a", "first");
    NumberedFiles files;
    EXPECT_EQ(files.textOf(path(u"a"_s)), u"first"_s);
    EXPECT_EQ(failureOf([&] { files.textOf(path(u"none"_s)); }), FileNotFound);
    files.readInstead(path(u"a"_s), u"second"_s);
    EXPECT_EQ(files.textOf(path(u"a"_s)), u"second"_s);
    files.openForInput(1, path(u"a"_s));
    EXPECT_EQ(files.readLine(1), u"second"_s);
    EXPECT_EQ(readBytes(path(u"a"_s)), "first");
}

TEST_F(FileNumbers, SecondOpenUnderANumberInUseFails)
{
    makeFile("a", "first");
    makeFile("b", "second");
    NumberedFiles files;
    files.openForInput(1, path(u"a"_s));
    EXPECT_EQ(failureOf([&] { files.openForInput(1, path(u"b"_s)); }), FileAlreadyOpen);
    EXPECT_EQ(failureOf([&] { files.openForInput(1, path(u"none"_s)); }), FileAlreadyOpen);
    files.openForInput(2, path(u"b"_s));
    EXPECT_EQ(files.readLine(1), u"first"_s);
    EXPECT_EQ(files.readLine(2), u"second"_s);
    files.close(1);
    EXPECT_FALSE(files.isOpen(1));
    EXPECT_TRUE(files.isOpen(2));
    files.openForInput(1, path(u"b"_s));
    EXPECT_EQ(files.readLine(1), u"second"_s);
}

TEST_F(FileNumbers, NumberStaysInUse_AfterAFailedReading)
{
    makeFile("a", "one\r\n");
    NumberedFiles files;
    files.openForInput(1, path(u"a"_s));
    files.readLine(1);
    EXPECT_EQ(failureOf([&] { files.readLine(1); }), PastEndOfFile);
    EXPECT_TRUE(files.isOpen(1));
    EXPECT_EQ(failureOf([&] { files.openForInput(1, path(u"a"_s)); }), FileAlreadyOpen);
    files.closeAll();
    files.openForInput(1, path(u"a"_s));
    EXPECT_EQ(files.readLine(1), u"one"_s);
}

TEST_F(FileNumbers, NumberIsFree_AfterAFailedOpening)
{
    makeFile("a");
    NumberedFiles files;
    EXPECT_EQ(failureOf([&] { files.openForInput(1, path(u"none"_s)); }), FileNotFound);
    EXPECT_FALSE(files.isOpen(1));
    files.openForInput(1, path(u"a"_s));
    EXPECT_TRUE(files.isOpen(1));
}

TEST_F(FileNumbers, ReadingUnderANumberThatIsNotOpenFails)
{
    NumberedFiles files;
    EXPECT_EQ(failureOf([&] { files.readLine(1); }), BadFileNumber);
    EXPECT_EQ(failureOf([&] { files.readField(1); }), BadFileNumber);
    EXPECT_EQ(failureOf([&] { files.atEnd(1); }), BadFileNumber);
    EXPECT_EQ(failureOf([&] { files.close(1); }), 0);
}

TEST_F(FileNumbers, FailureOfAReadingNamesTheFile)
{
    makeFile("empty", "");
    NumberedFiles files;
    files.openForInput(1, path(u"empty"_s));
    try {
        files.readLine(1);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), PastEndOfFile);
        EXPECT_EQ(failure.about(), path(u"empty"_s));
    }
}

TEST_F(FileNumbers, TextIsReadWhole_AndTheFileMayGo)
{
    makeFile("a", "one\r\ntwo");
    NumberedFiles files;
    files.openForInput(1, path(u"a"_s));
    makeFile("a", "changed");
    EXPECT_EQ(files.readLine(1), u"one"_s);
    EXPECT_EQ(files.readLine(1), u"two"_s);
}

using Reading = DiskTest;

TEST_F(Reading, YieldsTheBytes)
{
    makeFile("Bytes", QByteArray("\x00\xFF\r\n\x1A", 5));
    makeFile("large", QByteArray(200000, 'x'));
    makeLink("Bytes", "link");
    EXPECT_EQ(readBytes(path(u"BYTES"_s)), QByteArray("\x00\xFF\r\n\x1A", 5));
    EXPECT_EQ(readBytes(path(u"link"_s)), QByteArray("\x00\xFF\r\n\x1A", 5));
    EXPECT_EQ(readBytes(path(u"large"_s)), QByteArray(200000, 'x'));
}

TEST_F(Reading, Fails_WhereThereIsNoFile)
{
    makeLink("nowhere", "broken");
    EXPECT_EQ(failureOf([this] { readBytes(path(u"none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { readBytes(path(u"none/none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { readBytes(path(u"broken"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([] { readBytes(QString()); }), FileNotFound);
}

TEST_F(Reading, Fails_OfWhatIsNoFile)
{
    makeDirectory("dir");
    ASSERT_EQ(mkfifo(place("pipe").constData(), 0600), 0);
    EXPECT_EQ(failureOf([this] { readBytes(path(u"dir"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { readBytes(path(u"pipe"_s)); }), PathAccess);
}

TEST_F(Reading, Fails_OfAFileThatTheUserMayNotRead)
{
    makeFile("secret");
    setMode("secret", 0);
    const int status =
        inChildOfOrdinaryUser([this] { return failureOf([this] { readBytes(path(u"secret"_s)); }); });
    EXPECT_EQ(status, PathAccess);
}

TEST_F(FileNumbers, WhatIsThereIsRead_AndWhatCannotBeReadIsNotTakenForMissing)
{
    makeFile("Zembro.rom", "x");
    makeFile("any.CASE", "y");
    EXPECT_EQ(readIfThere(path(u"Zembro.rom"_s)), "x");
    EXPECT_EQ(readIfThere(path(u"Any.case"_s)), "y");
    EXPECT_EQ(readIfThere(path(u"none"_s)), std::nullopt);
    ASSERT_EQ(mkdir(path(u"directory"_s).toUtf8().constData(), 0700), 0);
    EXPECT_EQ(failureOf([&] { readIfThere(path(u"directory"_s)); }), PathAccess);
}
