// The line of facts and the capture of the selected entry, type by type.

#include "mundotest.h"

#include "tests/host/systemcalls.h"
#include "tests/support/opens.h"
#include "tests/support/slowpicture.h"
#include "tests/support/witness.h"

#include "host/paths.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

// One system with one emulator of the type that the test asks for, ROMs in "r", captures in "c". After the
// start, captures are shown at any selection.
class InformacionTest : public PortadaTest {
protected:
    void startWith(const QString &type, const std::vector<NoteEntry> &notes = {})
    {
        const EmulatorEntry emulator { u"Emu"_s, type, files.path(u"r/"_s), captures };
        files.writeCatalogue({ { u"Sis"_s, { u"BIN"_s, u"ZIP"_s }, { emulator } } });
        files.writeNotes({ { u"Sis"_s, notes } });
        renew();
        start();
    }
    // What is said of a row after a click on it.
    QString infoOf(int row)
    {
        control<forms::Label>(u"TXT_Info"_s).SetCaption(u"sin tocar"_s);
        clickRow(list(), row);
        return info();
    }
    QColor captureOf(int row)
    {
        clickRow(list(), row);
        EXPECT_EQ(capture(), zoomed());
        return capture();
    }

    QString captures = files.path(u"c/"_s);
};

TEST_F(InformacionTest, FilesSayNameSizeAndKind)
{
    files.writeSize(u"r/Uno.bin"_s, 1000);
    files.writeSize(u"r/dos.zip"_s, 2048);
    files.writeSize(u"r/tres.bin"_s, 4096);
    files.writeSize(u"r/z.zip"_s, 1536);
    for (const QString &type : { u"0"_s, u"5"_s }) {
        startWith(type, { { u"TRES.BIN"_s, u"El tres"_s }, { u"Z.ZIP"_s, u"El zip"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"dos.zip"_s, u"El tres"_s, u"Uno.bin"_s, u"El zip"_s));
        EXPECT_EQ(infoOf(0), u"dos.zip 2Kb  [ZIP]"_s);
        EXPECT_EQ(infoOf(1), u"TRES.BIN 4Kb  [NOR]"_s);
        EXPECT_EQ(infoOf(2), u"Uno.bin 1Kb  [NOR]"_s);
        EXPECT_EQ(infoOf(3), u"Z.ZIP 2Kb  [ZIP]"_s);
    }
}

TEST_F(InformacionTest, SizeIsInGroupsAndNothingBelowHalfAKilobyte)
{
    files.writeSize(u"r/a.bin"_s, 1023 * 1024 + 512);
    files.writeSize(u"r/b.bin"_s, 400);
    files.writeSize(u"r/c.bin"_s, 512);
    files.writeSize(u"r/d.bin"_s, 511);
    files.writeSize(u"r/e.bin"_s, 1500 * 1024);
    startWith(u"0"_s, { { u"B.BIN"_s, u"pequeño"_s } });
    EXPECT_EQ(infoOf(0), u"a.bin 1,024Kb  [NOR]"_s);
    EXPECT_EQ(infoOf(1), u"B.BIN Kb  [NOR]"_s);
    EXPECT_EQ(infoOf(2), u"c.bin 1Kb  [NOR]"_s);
    EXPECT_EQ(infoOf(3), u"d.bin Kb  [NOR]"_s);
    EXPECT_EQ(infoOf(4), u"e.bin 1,500Kb  [NOR]"_s);
}

TEST_F(InformacionTest, DirectoriesSayTheirNameWithoutASize)
{
    files.makeDirectory(u"r/uno"_s);
    files.makeDirectory(u"r/Dos"_s);
    for (const QString &type : { u"1"_s, u"6"_s }) {
        startWith(type, { { u"uno"_s, u"El uno"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"DOS"_s, u"El uno"_s));
        EXPECT_EQ(infoOf(0), u"DOS [DIR]"_s);
        EXPECT_EQ(infoOf(1), u"UNO [DIR]"_s);
    }
}

TEST_F(InformacionTest, ZipsReadTheirSizeBackWithANoteAndKeepTheGroupsWithoutOne)
{
    files.writeSize(u"r/Uno.zip"_s, 1500 * 1024);
    files.writeSize(u"r/dos.zip"_s, 1500 * 1024);
    for (const QString &type : { u"2"_s, u"3"_s, u"7"_s, u"8"_s }) {
        startWith(type, { { u"uno"_s, u"El uno"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"dos.zip"_s, u"El uno"_s));
        EXPECT_EQ(infoOf(0), u"DOS.ZIP 1,500Kb [ZIP]"_s) << type.toStdString();
        EXPECT_EQ(infoOf(1), u"UNO.ZIP  1500Kb [ZIP]"_s) << type.toStdString();
    }
}

TEST_F(InformacionTest, SmallZipWithANoteLeavesTheLine)
{
    files.writeSize(u"r/uno.zip"_s, 400);
    files.writeSize(u"r/dos.zip"_s, 400);
    startWith(u"2"_s, { { u"UNO"_s, u"El uno"_s } });
    EXPECT_EQ(infoOf(0), u"DOS.ZIP Kb [ZIP]"_s);
    EXPECT_EQ(infoOf(1), u"sin tocar"_s);
}

TEST_F(InformacionTest, TypeFourSaysNothing)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    M->Cat_XDI(0, 1) = u"XDI=4"_s;
    EXPECT_EQ(infoOf(0), u"sin tocar"_s);
    EXPECT_EQ(M->TipoEmu, u"4"_s);
}

TEST_F(InformacionTest, LastOfTheRecordsWithOneDescriptionStands)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 2048);
    files.writeGif(u"c/A.GIF"_s, Qt::red);
    files.writeGif(u"c/B.GIF"_s, Qt::green);
    startWith(u"0"_s, { { u"A.BIN"_s, u"Gemelo"_s }, { u"B.BIN"_s, u"Gemelo"_s } });
    EXPECT_EQ(infoOf(0), u"B.BIN 2Kb  [NOR]"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::green));
}

TEST_F(InformacionTest, LastOfTheRecordsWithoutACaptureIsBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"c/A.GIF"_s, Qt::red);
    startWith(u"0"_s, { { u"A.BIN"_s, u"Gemelo"_s }, { u"B.BIN"_s, u"Gemelo"_s } });
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
}

TEST_F(InformacionTest, AnyOfTheRecordsWithOneDescriptionThatHasNoCaptureMakesItBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"c/B.GIF"_s, Qt::green);
    startWith(u"0"_s, { { u"A.BIN"_s, u"Gemelo"_s }, { u"B.BIN"_s, u"Gemelo"_s } });
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
}

TEST_F(InformacionTest, ThousandsOfRecordsWithOneDescriptionAreHandledByFewLooks)
{
    std::vector<NoteEntry> notes;
    for (int i = 0; i < 6664; ++i) {
        files.writeSize(u"r/game.%1"_s.arg(i), 512);
        notes.push_back({ u"GAME.%1"_s.arg(i), u"Gemelo"_s });
    }
    files.writeSize(u"r/game.bin"_s, 1024);
    notes.push_back({ u"GAME.BIN"_s, u"Gemelo"_s });
    files.writeGif(u"c/GAME.GIF"_s, Qt::green);
    startWith(u"0"_s, notes);
    ASSERT_EQ(list().ListCount(), 1);
    EXPECT_EQ(captureOf(0), QColor(Qt::green));
    const int before = systemcalls::looks();
    EXPECT_EQ(infoOf(0), u"GAME.BIN 1Kb  [NOR]"_s);
    EXPECT_LT(systemcalls::looks() - before, 100) << "looks at files one by one";
}

TEST_F(InformacionTest, CapturesOfThousandsOfRecordsWithOneDescriptionAreReadOnce_AndAgainWhereTheyChange)
{
    std::vector<NoteEntry> notes;
    for (int i = 0; i < 2000; ++i) {
        files.writeGif(u"c/G%1.GIF"_s.arg(i), i == 1999 ? Qt::green : Qt::red);
        notes.push_back({ u"G%1.BIN"_s.arg(i), u"Gemelo"_s });
    }
    files.writeSize(u"r/g0.bin"_s, 1024);
    startWith(u"0"_s, notes);
    EXPECT_EQ(captureOf(0), QColor(Qt::green)); // a last one just written may be read twice
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const OpensOf opens(captures + u"G0.GIF"_s);
        EXPECT_EQ(captureOf(0), QColor(Qt::green));
        return opens.count() == 0;
    })) << "decodes what it knows";
    const OpensOf opensOfTheLast(captures + u"G1999.GIF"_s);
    files.writeGif(u"c/G1999.GIF"_s, Qt::green);
    EXPECT_EQ(captureOf(0), QColor(Qt::green));
    EXPECT_GT(opensOfTheLast.count(), 0) << "opening isn't seen";
    files.write(u"c/G0.GIF"_s, "no picture");
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    files.writeGif(u"c/G0.GIF"_s, Qt::red);
    EXPECT_EQ(captureOf(0), QColor(Qt::green));
    files.remove(u"c/G1000.GIF"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
}

// Entry 1 is shared by so many notes that the capture that can't be read is found last of all; entry 0, which
// the start selects, isn't.
class InformacionLaterTest : public InformacionTest {
protected:
    void SetUp() override
    {
        InformacionTest::SetUp();
        constexpr int Notes = 16;
        const QByteArray slow = slowPng();
        std::vector<NoteEntry> notes { { u"ALGUNO.BIN"_s, u"Alguno"_s } };
        for (int i = 0; i < Notes; ++i) {
            files.writeGif(u"c/G%1.GIF"_s.arg(i), Qt::green);
            if (i == 0 || (i > 9 && i < Notes - 1))
                files.write(u"c/G%1.GIF"_s.arg(i), slow);
            notes.push_back({ u"G%1.BIN"_s.arg(i), u"Gemelo"_s });
        }
        files.write(u"c/G9.GIF"_s, "no picture");
        files.writeGif(u"c/ALGUNO.GIF"_s, Qt::red);
        files.writeSize(u"r/g0.bin"_s, 1024);
        files.writeSize(u"r/alguno.bin"_s, 1024);
        startWith(u"0"_s, notes);
    }
};

TEST_F(InformacionLaterTest, CaptureThatCantBeReadMakesItBlackWhenThatIsFound)
{
    EXPECT_EQ(captureOf(1), QColor(Qt::green)) << "holds up the screen";
    EXPECT_TRUE(QTest::qWaitFor([this] { return capture() == QColor(Qt::black); }));
    EXPECT_EQ(zoomed(), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
}

TEST_F(InformacionLaterTest, WhatShowsMeanwhileStays)
{
    EXPECT_EQ(captureOf(1), QColor(Qt::green));
    const forms::Image &negro = *portada->Aumento.Negro;
    control<forms::Image>(u"Graf_Imagen"_s).SetPicture(negro.Picture());
    M->Lista1Cambio = 0;
    QTest::qWait(1500);
    EXPECT_EQ(M->Lista1Cambio, 0);
}

TEST_F(InformacionTest, RecordWithoutItsFileKeepsWhatStoodBefore)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s, { { u"A.BIN"_s, u"Gemelo"_s }, { u"B.BIN"_s, u"Gemelo"_s } });
    EXPECT_EQ(infoOf(0), u"A.BIN 1Kb  [NOR]"_s);
}

TEST_F(InformacionTest, FileThatIsGoneLeavesTheLine)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    files.remove(u"r/a.bin"_s);
    EXPECT_EQ(infoOf(0), u"sin tocar"_s);
}

TEST_F(InformacionTest, NothingSelectedLeavesTheLine)
{
    files.makeDirectory(u"r/uno"_s);
    startWith(u"1"_s);
    list().SetListIndex(-1);
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"sin tocar"_s);
    portada->LLena_INFO();
    EXPECT_EQ(info(), u"sin tocar"_s);
    EXPECT_EQ(M->TipoEmu, u"1"_s);
}

TEST_F(InformacionTest, WithoutAnEmulatorNothingChanges)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    emulators().SetListIndex(-1);
    M->TipoEmu = u"7"_s;
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"sin tocar"_s);
    portada->LLena_INFO();
    EXPECT_EQ(info(), u"sin tocar"_s);
    EXPECT_EQ(M->TipoEmu, u"7"_s);
}

TEST_F(InformacionTest, SelectionWithoutAnEmulatorIsBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    emulators().SetListIndex(-1);
    EXPECT_EQ(infoOf(0), u"sin tocar"_s);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
}

TEST_F(InformacionTest, TypeIsThatOfTheEmulatorSelectedNow)
{
    files.writeSize(u"r/a.zip"_s, 1024);
    startWith(u"0"_s);
    M->Cat_XDI(0, 1) = u"XDI=3"_s;
    EXPECT_EQ(infoOf(0), u"A.ZIP 1Kb [ZIP]"_s);
}

TEST_F(InformacionTest, CaptureOfAFileGoesByTheNameUpToTheFirstPoint)
{
    files.writeSize(u"r/uno.v2.bin"_s, 10);
    files.writeSize(u"r/dos.bin"_s, 10);
    files.writeSize(u"r/tres.x.bin"_s, 10);
    files.writeGif(u"c/uno.gif"_s, Qt::red);
    files.writeGif(u"c/DOS.GIF"_s, Qt::green);
    files.writeGif(u"c/tres.gif"_s, Qt::blue);
    files.writeGif(u"c/uno.v2.gif"_s, Qt::yellow);
    for (const QString &type : { u"0"_s, u"5"_s }) {
        startWith(type, { { u"TRES.X.BIN"_s, u"El tres"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"dos.bin"_s, u"El tres"_s, u"uno.v2.bin"_s));
        EXPECT_EQ(captureOf(0), QColor(Qt::green));
        EXPECT_EQ(captureOf(1), QColor(Qt::blue));
        EXPECT_EQ(captureOf(2), QColor(Qt::red));
    }
}

TEST_F(InformacionTest, CaptureOfADirectoryGoesByTheWholeName)
{
    files.makeDirectory(u"r/uno.v2"_s);
    files.makeDirectory(u"r/dos"_s);
    files.writeGif(u"c/UNO.V2.GIF"_s, Qt::red);
    files.writeGif(u"c/dos.gif"_s, Qt::green);
    for (const QString &type : { u"1"_s, u"6"_s }) {
        startWith(type, { { u"DOS"_s, u"El dos"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"El dos"_s, u"UNO.V2"_s));
        EXPECT_EQ(captureOf(0), QColor(Qt::green));
        EXPECT_EQ(captureOf(1), QColor(Qt::red));
    }
}

TEST_F(InformacionTest, CaptureOfAZipGoesByTheWholeKeyOrTheNameUpToItsFirstPoint)
{
    files.writeSize(u"r/uno.v2.zip"_s, 1024);
    files.writeSize(u"r/dos.v2.zip"_s, 1024);
    files.writeGif(u"c/UNO.V2.GIF"_s, Qt::red);
    files.writeGif(u"c/dos.gif"_s, Qt::green);
    for (const QString &type : { u"2"_s, u"3"_s, u"7"_s, u"8"_s }) {
        startWith(type, { { u"uno.v2"_s, u"El uno"_s } });
        ASSERT_THAT(listed(), ElementsAre(u"dos.v2.zip"_s, u"El uno"_s));
        EXPECT_EQ(captureOf(0), QColor(Qt::green)) << type.toStdString();
        EXPECT_EQ(captureOf(1), QColor(Qt::red)) << type.toStdString();
    }
}

TEST_F(InformacionTest, TypeFourLeavesThePicture)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    ASSERT_EQ(capture(), QColor(Qt::red));
    M->Cat_XDI(0, 1) = u"XDI=4"_s;
    files.remove(u"c/a.gif"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::red));
    EXPECT_EQ(M->Lista1Cambio, 0);
    EXPECT_EQ(portada->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(InformacionTest, EmulatorWithoutACaptureLineShowsNoneOfTheWorkingDirectory)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"a.gif"_s, Qt::red);
    startWith(u"0"_s);
    ASSERT_TRUE(QDir::setCurrent(files.path()));
    M->Cat_IMG(0, 1) = u"IMG="_s;
    ASSERT_EQ(captureOf(0), QColor(Qt::red)); // an empty directory is the working one
    for (const QString &line : { QString(), u"IMG"_s }) {
        M->Cat_IMG(0, 1) = line;
        M->Lista1Cambio = 0;
        EXPECT_EQ(captureOf(0), QColor(Qt::black));
        EXPECT_EQ(M->Lista1Cambio, 1);
    }
}

TEST_F(InformacionTest, EmulatorWithoutADirectoryLineLeavesTheInfo)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    for (const QString &line : { QString(), u"ROM"_s }) {
        M->Cat_ROM(0, 1) = line;
        EXPECT_EQ(infoOf(0), u"sin tocar"_s);
    }
}

TEST_F(InformacionTest, MissingCaptureIsBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 1024);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    ASSERT_EQ(captureOf(0), QColor(Qt::red));
    EXPECT_EQ(M->Lista1Cambio, 0);
    EXPECT_EQ(captureOf(1), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
    EXPECT_EQ(info(), u"b.bin 1Kb  [NOR]"_s);
    EXPECT_EQ(portada->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(captureOf(0), QColor(Qt::red));
    EXPECT_EQ(M->Lista1Cambio, 0);
}

TEST_F(InformacionTest, UnreadableCaptureIsBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.write(u"c/a.gif"_s, "GIF89a but no picture");
    startWith(u"0"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
}

TEST_F(InformacionTest, CaptureThatIsADrawingIsBlackAndOpensNothing)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"named.gif"_s, Qt::red);
    const OpensOf named(files.path(u"named.gif"_s));
    files.write(u"c/a.gif"_s,
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
        "height='9'>"
        "<rect width='9' height='9' fill='red'/><image width='9' height='9' xlink:href='"
            + files.path(u"named.gif"_s).toUtf8() + "'/></svg>");
    startWith(u"0"_s);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
    EXPECT_EQ(named.count(), 0);
}

TEST_F(InformacionTest, CaptureThatIsNoPlainFileIsBlack)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 1024);
    files.writeSize(u"r/c.bin"_s, 1024);
    files.makeDirectory(u"c/c.gif"_s);
    ASSERT_EQ(mkfifo(files.path(u"c/a.gif"_s).toUtf8().constData(), 0600), 0);
    ASSERT_EQ(symlink("/dev/zero", files.path(u"c/b.gif"_s).toUtf8().constData()), 0);
    startWith(u"0"_s);
    ASSERT_EQ(list().ListCount(), 3);
    for (const int row : { 0, 1, 2 }) {
        EXPECT_EQ(captureOf(row), QColor(Qt::black));
        EXPECT_EQ(M->Lista1Cambio, 1);
    }
}

TEST_F(InformacionTest, NoOtherFormatNameOrDirectoryIsTried)
{
    files.writeSize(u"r/a.v2.bin"_s, 1024);
    files.writeGif(u"c/a.png"_s, Qt::red);
    files.writeGif(u"c/a.v2.gif"_s, Qt::red);
    files.writeGif(u"r/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
}

TEST_F(InformacionTest, NameWithoutAPointIsBlack)
{
    files.writeSize(u"r/gunzip"_s, 1024);
    files.writeGif(u"c/gunzip.gif"_s, Qt::red);
    startWith(u"3"_s);
    ASSERT_THAT(listed(), ElementsAre(u"gunzip"_s));
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
    EXPECT_EQ(info(), u"GUNZIP 1Kb [ZIP]"_s);
}

TEST_F(InformacionTest, EmptyCaptureDirectoryIsTheWorkingDirectory)
{
    captures = QString();
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeGif(u"w/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    EXPECT_EQ(captureOf(0), QColor(Qt::black));
    host::changeDirectory(files.path(u"w"_s));
    EXPECT_EQ(captureOf(0), QColor(Qt::red));
}

TEST_F(InformacionTest, PreviewThatIsOffPutsBlackAndReadsNothing)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 1024);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    files.writeGif(u"c/b.gif"_s, Qt::red);
    startWith(u"0"_s);
    M->ZoomActual = 0;
    M->ImagenCambio = 0;
    EXPECT_EQ(captureOf(1), QColor(Qt::black));
    EXPECT_EQ(M->Lista1Cambio, 1);
    EXPECT_EQ(M->ImagenCambio, 0);
    EXPECT_EQ(info(), u"b.bin 1Kb  [NOR]"_s);
    EXPECT_EQ(portada->cursor().shape(), Qt::ArrowCursor);
    // A change of the preview lets the next selection read again.
    M->ImagenCambio = 1;
    EXPECT_EQ(captureOf(1), QColor(Qt::red));
    EXPECT_EQ(M->ImagenCambio, 0);
}

TEST_F(InformacionTest, CaptureShowsThePictureAgainWhereItWasHidden)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    control(u"Graf_Imagen"_s).hide();
    clickRow(list(), 0);
    EXPECT_TRUE(control(u"Graf_Imagen"_s).isVisible());
}

TEST_F(InformacionTest, LampAboveFollowsTheOneBelowWithoutACapture)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 1024);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    startWith(u"0"_s);
    QWidget &above = control(u"BotonARR"_s);
    clickRow(list(), 1);
    EXPECT_FALSE(above.isVisible());
    control(u"BotonABJ"_s).show();
    clickRow(list(), 1);
    EXPECT_TRUE(above.isVisible());
    clickRow(list(), 0);
    EXPECT_FALSE(above.isVisible());
}

TEST_F(InformacionTest, PointerIsAnHourglassWhileTheCaptureIsRead)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 2048);
    startWith(u"0"_s);
    QStringList diary;
    const Witness pointer(*portada, QEvent::CursorChange, [&] {
        const QString shape = portada->cursor().shape() == Qt::WaitCursor ? u"waits "_s : u"normal "_s;
        if (diary.isEmpty() || diary.last() != shape + info())
            diary << shape + info();
    });
    clickRow(list(), 1);
    EXPECT_THAT(diary, ElementsAre(u"waits b.bin 2Kb  [NOR]"_s, u"normal b.bin 2Kb  [NOR]"_s));
}

TEST_F(InformacionTest, ClickOnTheEntryThatIsSelectedLooksAgain)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s);
    files.writeSize(u"r/a.bin"_s, 2048);
    files.writeGif(u"c/a.gif"_s, Qt::red);
    EXPECT_EQ(infoOf(0), u"a.bin 2Kb  [NOR]"_s);
    EXPECT_EQ(capture(), QColor(Qt::red));
}

TEST_F(InformacionTest, RightButtonSelectsNothing)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeSize(u"r/b.bin"_s, 1024);
    startWith(u"0"_s);
    list().MouseDown = nullptr; // what the button opens is another matter
    clickRow(list(), 1, Qt::RightButton);
    EXPECT_EQ(list().ListIndex(), 0);
    EXPECT_EQ(info(), u"a.bin 1Kb  [NOR]"_s);
}

TEST_F(InformacionTest, LongLineStaysOnTheLightTopOfTheSetAndKeepsItsEnds)
{
    const QString name = u"Adventure of the Nameless Hero, The (World) (Rev 2).zip"_s;
    files.writeSize(u"r/"_s + name, 2048);
    startWith(u"0"_s);
    EXPECT_EQ(infoOf(0), name + u" 2Kb  [ZIP]"_s);
    auto &line = control<forms::Label>(u"TXT_Info"_s);
    EXPECT_TRUE(line.Shown().startsWith(u"Adventure"_s)) << line.Shown().toStdString();
    EXPECT_TRUE(line.Shown().endsWith(u".zip 2Kb  [ZIP]"_s)) << line.Shown().toStdString();
    EXPECT_EQ(line.toolTip(), QString());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&line)->text(QAccessible::Name), line.Caption());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&line)->text(QAccessible::Description), QString());
    EXPECT_TRUE(QRect(10, 1, 211, 14).contains(line.geometry()));
    EXPECT_LE(line.fontMetrics().horizontalAdvance(line.Shown()), line.width());
}
