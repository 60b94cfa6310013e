// The names of the two files, and how the one is read.

#include "../host/disktest.h"
#include "../host/systemcalls.h"
#include "converter/capturefiles.h"
#include "converter/picture.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

class CaptureFiles : public DiskTest {
protected:
    std::string gifOf(const QByteArray &name) const
    {
        const std::string gif = converter::gifNameFor(place(name).toStdString());
        return gif.substr(std::size_t(place().size()) + 1);
    }

    std::string complaintAbout(const QByteArray &name) const
    {
        try {
            converter::readCapture(place(name).toStdString());
        } catch (const std::exception &complaint) {
            return complaint.what();
        }
        return {};
    }
};

TEST_F(CaptureFiles, TheGifHasTheNameWithAnotherEnding)
{
    EXPECT_EQ(gifOf("GAME.PCX"), "GAME.GIF");
    EXPECT_EQ(gifOf("Game.pcx"), "Game.GIF");
    EXPECT_EQ(gifOf("a.b.Pcx"), "a.b.GIF");
    EXPECT_EQ(gifOf("my game .pcx"), "my game .GIF");
    EXPECT_EQ(gifOf("\xF1.pcx"), "\xF1.GIF");
}

TEST_F(CaptureFiles, TheGifHasItsEndingBehindTheWholeName_WhereThatHasNoneOfPcx)
{
    EXPECT_EQ(gifOf("gamepcx"), "gamepcx.GIF");
    EXPECT_EQ(gifOf("pcx"), "pcx.GIF");
    EXPECT_EQ(gifOf("Dr. Game pcx"), "Dr. Game pcx.GIF");
    EXPECT_EQ(gifOf("game.gif"), "game.gif.GIF");
}

TEST_F(CaptureFiles, TheGifIsTheOneThatIsThere_WithItsEndingInAnyCase)
{
    makeFile("game.gif");
    EXPECT_EQ(gifOf("game.pcx"), "game.gif");
    makeFile("game.Gif");
    EXPECT_EQ(gifOf("game.pcx"), "game.Gif");
    makeFile("game.GIF");
    EXPECT_EQ(gifOf("game.pcx"), "game.GIF");
}

TEST_F(CaptureFiles, TheGifOfAnotherSpellingIsAnotherFile)
{
    makeFile("game.gif");
    EXPECT_EQ(gifOf("GAME.PCX"), "GAME.GIF");
}

TEST_F(CaptureFiles, ADirectoryIsNoGif)
{
    makeDirectory("game.gif");
    EXPECT_EQ(gifOf("game.pcx"), "game.GIF");
}

TEST_F(CaptureFiles, AreReadWhole)
{
    const QByteArray bytes = QByteArray("\0\r\n\x1A\xFF", 5).repeated(100'000);
    makeFile("a.pcx", bytes);
    const std::vector<std::uint8_t> read = converter::readCapture(place("a.pcx").toStdString());
    EXPECT_EQ(QByteArray(reinterpret_cast<const char *>(read.data()), qsizetype(read.size())), bytes);
}

TEST_F(CaptureFiles, AreReadThroughALink)
{
    makeFile("a", "bytes");
    makeLink("a", "b.pcx");
    EXPECT_EQ(complaintAbout("b.pcx"), "");
}

TEST_F(CaptureFiles, AreNothingButPlainFiles)
{
    makeDirectory("a.pcx");
    ASSERT_EQ(mkfifo(place("b.pcx").constData(), 0600), 0);
    EXPECT_EQ(complaintAbout("a.pcx"), "it is a directory");
    EXPECT_EQ(complaintAbout("b.pcx"), "it is no plain file");
    EXPECT_EQ(complaintAbout("c.pcx"), "it can't be opened: No such file or directory");
}

TEST_F(CaptureFiles, AreNoLargerThanAPictureCanBe)
{
    makeFile("a.pcx");
    ASSERT_EQ(truncate(place("a.pcx").constData(), converter::LargestFile + 1), 0);
    EXPECT_EQ(complaintAbout("a.pcx"), "the file is too large");
}

TEST_F(CaptureFiles, AreWrittenAndFlushed_WhenThatIsInterrupted)
{
    for (const int before : { 0, 1 }) {
        const int flushes = systemcalls::flushes();
        const systemcalls::FaultOf interruptions("fsync", EINTR, 2, before);
        converter::replaceFile(place("GAME.GIF").toStdString(), "a picture");
        EXPECT_EQ(bytes("GAME.GIF"), "a picture");
        EXPECT_EQ(systemcalls::flushes() - flushes, 2) << "the picture and its directory";
    }
}

} // namespace
