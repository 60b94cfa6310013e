// The converter of pictures as zembro calls it: pairs of names on the standard input, a line for each.

#include "../host/disktest.h"
#include "pcxfile.h"

#include <QFile>
#include <QImage>
#include <QProcess>

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray fixture(const QString &name)
{
    QFile file(FIXTURES "/others/"_L1 + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

class CaptureConverter : public DiskTest {
protected:
    // What it answers, sorted by the pairs' numbers.
    QByteArrayList answers(const QByteArray &input, const QStringList &arguments = {})
    {
        QProcess process;
        process.setWorkingDirectory(path());
        process.start(QStringLiteral(CAPTURE_CONVERTER), arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(60'000));
        status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        errors = process.readAllStandardError();
        QByteArrayList lines = process.readAllStandardOutput().split('\n');
        EXPECT_EQ(lines.takeLast(), "");
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    static QByteArray pair(const QByteArray &picture, const QByteArray &gif)
    {
        return picture + '\0' + gif + '\0';
    }

    QSize sizeOf(const QByteArray &gif) const
    {
        return QImage::fromData(bytes(gif).value_or(QByteArray()), "GIF").size();
    }

    int status = -1;
    QByteArray errors;
};

} // namespace

TEST_F(CaptureConverter, MakesAGifOfEachPair_WhateverTheNamesEndIn)
{
    makeFile("a.png", fixture(u"true-pillow.png"_s));
    makeFile("photo \n.jpeg.txt", fixture(u"lossy-pillow.jpg"_s));
    makeFile("c.jpg", fixture(u"large-pillow.png"_s));
    const QByteArray source = *bytes("a.png");
    EXPECT_THAT(
        answers(pair("a.png", "A.GIF") + pair("photo \n.jpeg.txt", "-b.GIF") + pair("c.jpg", place("C.GIF"))),
        testing::ElementsAre("0\t", "1\t", "2\t"));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(sizeOf("A.GIF"), QSize(141, 9));
    EXPECT_EQ(sizeOf("-b.GIF"), QSize(141, 9));
    EXPECT_EQ(sizeOf("C.GIF"), QSize(640, 448));
    EXPECT_EQ(bytes("a.png"), source);
    EXPECT_THAT(
        names(), testing::ElementsAre("-b.GIF", "A.GIF", "C.GIF", "a.png", "c.jpg", "photo \n.jpeg.txt"));
}

TEST_F(CaptureConverter, SaysOfEachWhyItCouldNot_AndLeavesTheOldGif)
{
    const QByteArray png = fixture(u"true-pillow.png"_s);
    QByteArray bomb = png;
    bomb.replace(16, 8, QByteArray::fromHex("000186A0000186A0"));
    makeFile("good.png", png);
    makeFile("bomb.png", bomb);
    makeFile("cut.png", png.chopped(20));
    makeFile("text.png", "no picture");
    makeFile("empty.png", "");
    makeDirectory("directory.png");
    mkfifo(place("pipe.png").constData(), 0600);
    makeFile("old.GIF", "old");
    makeDirectory("taken.GIF");
    const QByteArrayList told = answers(pair("bomb.png", "old.GIF") + pair("cut.png", "old.GIF")
        + pair("text.png", "old.GIF") + pair("empty.png", "old.GIF") + pair("directory.png", "old.GIF")
        + pair("pipe.png", "old.GIF") + pair("gone.png", "old.GIF") + pair("good.png", "taken.GIF")
        + pair("good.png", "nowhere/x.GIF") + pair("good.png", "good.GIF"));
    EXPECT_EQ(status, 0);
    ASSERT_EQ(told.size(), 10);
    EXPECT_EQ(told[0],
        "0\ttoo-large\t100000 by 100000 pixels; at most 40 million of them are read, and 65535 a side");
    EXPECT_TRUE(told[1].startsWith("1\tdamaged\t")) << told[1].constData();
    EXPECT_EQ(told[2], "2\tno-picture");
    EXPECT_EQ(told[3], "3\tno-picture");
    EXPECT_EQ(told[4], "4\tunreadable\tit is a directory");
    EXPECT_EQ(told[5], "5\tunreadable\tit is no plain file");
    EXPECT_TRUE(told[6].startsWith("6\tunreadable\t")) << told[6].constData();
    EXPECT_TRUE(told[7].startsWith("7\tnot-written\t")) << told[7].constData();
    EXPECT_TRUE(told[8].startsWith("8\tnot-written\t")) << told[8].constData();
    EXPECT_EQ(told[9], "9\t");
    EXPECT_EQ(bytes("old.GIF"), "old");
    EXPECT_EQ(sizeOf("good.GIF"), QSize(141, 9));
    EXPECT_FALSE(names().join(' ').contains("cvtgif15"));
}

TEST_F(CaptureConverter, DoesHundreds_AndOneTwice)
{
    makeFile("a.png", fixture(u"all256-pillow.png"_s));
    QByteArray input;
    for (int i = 0; i < 300; ++i)
        input += pair("a.png", QByteArray::number(i / 2) + ".GIF");
    const QByteArrayList told = answers(input);
    EXPECT_EQ(told.size(), 300);
    for (const QByteArray &line : told)
        EXPECT_TRUE(line.endsWith('\t')) << line.constData();
    EXPECT_EQ(names().size(), 151);
}

TEST_F(CaptureConverter, TakesNoArguments_AndNoHalfPair)
{
    EXPECT_THAT(answers({}, { u"a.png"_s }), testing::IsEmpty());
    EXPECT_EQ(status, 2);
    EXPECT_EQ(errors, "usage: Cvtcap.exe, with pairs of names on the standard input\n");
    makeFile("a.png", fixture(u"true-pillow.png"_s));
    EXPECT_THAT(answers(pair("a.png", "a.GIF") + "a.png" + '\0' + "half"), testing::ElementsAre("0\t"));
    EXPECT_EQ(status, 0);
    EXPECT_THAT(names(), testing::ElementsAre("a.GIF", "a.png"));
}
