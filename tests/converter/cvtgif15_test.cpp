// The converter as the program calls it: in the directory of captures, with one name.

#include "../host/disktest.h"
#include "host/descriptor.h"
#include "pcxfile.h"

#include <QImage>

#include <array>
#include <csignal>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Outcome {
    int status = -1; // 256 when a signal ended it
    QByteArray output;
    QByteArray errors;
};

// What a process writes, as long as a pipe holds it.
class Pipe {
public:
    Pipe()
    {
        std::array<int, 2> ends;
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        m_reading = host::Descriptor(ends[0]);
        m_writing = host::Descriptor(ends[1]);
    }

    void takeOver(int number) const { dup2(m_writing.number(), number); }

    QByteArray contents()
    {
        m_writing = host::Descriptor();
        QByteArray result(4096, '\0');
        result.resize(read(m_reading.number(), result.data(), std::size_t(result.size())));
        return result;
    }

private:
    host::Descriptor m_reading;
    host::Descriptor m_writing;
};

// Two pixels, red and blue.
const PcxFile RedAndBlue = { .right = 1, .colours = "FF0000 0000FF", .data = "4000" };

class Converter : public DiskTest {
protected:
    Outcome run(const QByteArrayList &arguments, void (*inChildFirst)() = nullptr) const
    {
        Pipe output;
        Pipe errors;
        const pid_t child = fork();
        if (child == 0) {
            output.takeOver(STDOUT_FILENO);
            errors.takeOver(STDERR_FILENO);
            if (inChildFirst != nullptr)
                inChildFirst();
            become(arguments);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return { WIFEXITED(status) ? WEXITSTATUS(status) : 256, output.contents(), errors.contents() };
    }

    [[noreturn]] void become(QByteArrayList arguments) const
    {
        arguments.prepend(CONVERTER);
        std::vector<char *> pointers;
        for (QByteArray &argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        if (chdir(place().constData()) == 0)
            execv(pointers[0], pointers.data());
        _exit(127);
    }

    void expectConverted(const QByteArray &source, const QByteArray &gif)
    {
        makeFile(source, RedAndBlue.bytes());
        const QByteArray before = *bytes(source);
        const Outcome outcome = run({ source });
        EXPECT_EQ(outcome.status, 0) << source.constData();
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.output, "");
        expectRedAndBlue(gif);
        EXPECT_EQ(bytes(source), before);
    }

    void expectRedAndBlue(const QByteArray &gif) const
    {
        const QImage image = QImage::fromData(bytes(gif).value_or(QByteArray()), "GIF");
        ASSERT_EQ(image.size(), QSize(2, 1)) << gif.constData();
        EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
        EXPECT_EQ(image.pixel(1, 0), qRgb(0, 0, 255));
    }

    QList<QByteArray> expectRefused(const QByteArray &source, const QByteArray &why)
    {
        const Outcome outcome = run({ source });
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "Cvtgif15.exe: can't convert " + source + ": " + why + "\n");
        return names();
    }
};

TEST_F(Converter, WritesTheGifBesideTheCapture)
{
    expectConverted("GAME.PCX", "GAME.GIF");
    EXPECT_THAT(names(), testing::ElementsAre("GAME.GIF", "GAME.PCX"));
}

TEST_F(Converter, ReplacesTheOldGif)
{
    makeFile("GAME.GIF", "old");
    expectConverted("GAME.PCX", "GAME.GIF");
    EXPECT_THAT(names(), testing::ElementsAre("GAME.GIF", "GAME.PCX"));
}

TEST_F(Converter, TakesEveryNameForAFiles)
{
    const QByteArrayList someNames = { "a name", "-help", "gif:foo", "pcx:x", "%d", "a[0]", "*", "@list", "-",
        "$HOME", "a;b", "'\"", "\\", "n\xC3\xB1", "\xF1", "x\ny" };
    for (const QByteArray &name : someNames)
        expectConverted(name + ".pcx", name + ".GIF");
    EXPECT_EQ(names().size(), 2 * someNames.size());
}

TEST_F(Converter, TakesANameWithoutAPoint)
{
    expectConverted("gamepcx", "gamepcx.GIF");
}

TEST_F(Converter, TakesTheLongestName)
{
    const QByteArray name(251, 'n');
    expectConverted(name + ".pcx", name + ".GIF");
}

TEST_F(Converter, GivesTheGifTheModeOfANewFile)
{
    makeFile("a.pcx", RedAndBlue.bytes());
    EXPECT_EQ(run({ "a.pcx" }, [] { umask(027); }).status, 0);
    EXPECT_EQ(mode("a.GIF"), 0640u);
}

TEST_F(Converter, TakesAwayWhatAKilledRunLeft)
{
    makeFile("a.pcx", RedAndBlue.bytes());
    const Outcome killed = run({ "a.pcx" }, [] {
        const rlimit none { 0, 0 };
        const rlimit few { 10, 10 };
        signal(SIGXFSZ, SIG_DFL);
        setrlimit(RLIMIT_CORE, &none);
        setrlimit(RLIMIT_FSIZE, &few);
    });
    ASSERT_EQ(killed.status, 256);
    ASSERT_EQ(names().size(), 2);
    EXPECT_TRUE(names().first().startsWith(".cvtgif15-"));
    makeFile(".cvtgif15-1-0", "of a process that lives");
    EXPECT_EQ(run({ "a.pcx" }).status, 0);
    EXPECT_THAT(names(), testing::ElementsAre(".cvtgif15-1-0", "a.GIF", "a.pcx"));
}

TEST_F(Converter, ReplacesALinkAndNotWhereItLeads)
{
    makeFile("elsewhere", "kept");
    makeLink("elsewhere", "a.GIF");
    expectConverted("a.pcx", "a.GIF");
    EXPECT_EQ(bytes("elsewhere"), "kept");
}

TEST_F(Converter, LeavesADirectoryInTheGifsPlace)
{
    makeFile("a.pcx", RedAndBlue.bytes());
    makeDirectory("a.GIF");
    EXPECT_THAT(expectRefused("a.pcx", "the GIF can't be put in its place: Is a directory"),
        testing::ElementsAre("a.GIF", "a.pcx"));
}

TEST_F(Converter, RefusesWhatItCannotRead_AndKeepsTheOldGif)
{
    makeFile("a.pcx", RedAndBlue.bytes().chopped(1));
    makeFile("a.GIF", "old");
    EXPECT_THAT(expectRefused("a.pcx", "the file ends before the picture does"),
        testing::ElementsAre("a.GIF", "a.pcx"));
    EXPECT_EQ(bytes("a.GIF"), "old");
}

TEST_F(Converter, LeavesNothingBehind_WhateverIsWrongWithTheFile)
{
    const PcxFile eightBits = { .bits = 8, .right = 1, .data = "0180" };
    const PcxFile huge = { .right = 65535, .bottom = 65535, .bytesPerLine = 8192 };
    const QList<std::pair<QByteArray, QByteArray>> files = {
        { "", "it is empty" },
        { RedAndBlue.bytes().first(100), "the file ends before the picture does" },
        { eightBits.bytes(), "the palette of 256 colours at its end is missing" },
        { PcxFile { .left = 8 }.bytes(), "its header says that it has no pixels" },
        { huge.bytes(), "it is too large: 65536 by 65536 pixels" },
    };
    for (const auto &[bytes, why] : files) {
        makeFile("a.pcx", bytes);
        EXPECT_THAT(expectRefused("a.pcx", why), testing::ElementsAre("a.pcx"));
    }
}

// All pixels are there, and the program removes the source.
TEST_F(Converter, TakesARunThatGoesOnBehindTheLastPixel)
{
    makeFile("a.pcx", PcxFile { .right = 1, .colours = "FF0000 0000FF", .data = "40FF00" }.bytes());
    const Outcome outcome = run({ "a.pcx" });
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    expectRedAndBlue("a.GIF");
}

TEST_F(Converter, RefusesWhatIsNotThere)
{
    EXPECT_THAT(expectRefused("a.pcx", "it can't be opened: No such file or directory"), testing::IsEmpty());
}

TEST_F(Converter, RefusesADirectory)
{
    makeDirectory("a.pcx");
    EXPECT_THAT(expectRefused("a.pcx", "it is a directory"), testing::ElementsAre("a.pcx"));
}

TEST_F(Converter, RefusesAnotherFormatUnderTheName)
{
    makeFile("a.pcx", "GIF89a");
    EXPECT_THAT(expectRefused("a.pcx", "it is no PCX picture"), testing::ElementsAre("a.pcx"));
}

TEST_F(Converter, SaysOneLine_WhateverTheNameHolds)
{
    const Outcome outcome = run({ "a\nb\x1B[2J.pcx" });
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
        "Cvtgif15.exe: can't convert a?b?[2J.pcx: it can't be opened: No such file or directory\n");
}

TEST_F(Converter, TellsHowItIsCalled_WithoutExactlyOneName)
{
    for (const QByteArrayList &arguments : { QByteArrayList(), QByteArrayList({ "a.pcx", "b.pcx" }) }) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.errors, "usage: Cvtgif15.exe FILE.PCX\n");
    }
}

void allowTenBytes()
{
    const rlimit limit { 10, 10 };
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(Converter, KeepsTheOldGif_WhereThereIsNoRoomForTheNew)
{
    makeFile("a.pcx", RedAndBlue.bytes());
    makeFile("a.GIF", "old");
    const Outcome outcome = run({ "a.pcx" }, [] {
        signal(SIGXFSZ, SIG_IGN);
        allowTenBytes();
    });
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(
        outcome.errors, "Cvtgif15.exe: can't convert a.pcx: the GIF can't be written: File too large\n");
    EXPECT_THAT(names(), testing::ElementsAre("a.GIF", "a.pcx"));
    EXPECT_EQ(bytes("a.GIF"), "old");
}

TEST_F(Converter, LeavesNoHalfGif_KilledWhileItWrites)
{
    makeFile("a.pcx", RedAndBlue.bytes());
    makeFile("b.pcx", RedAndBlue.bytes());
    makeFile("b.GIF", "old");
    EXPECT_EQ(run({ "a.pcx" }, allowTenBytes).status, 256);
    EXPECT_EQ(run({ "b.pcx" }, allowTenBytes).status, 256);
    EXPECT_FALSE(exists("a.GIF"));
    EXPECT_EQ(bytes("b.GIF"), "old");
}

} // namespace
