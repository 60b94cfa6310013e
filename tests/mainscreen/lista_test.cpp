// Filling the list of ROMs: what is listed under each type, what the summary says, and what shows meanwhile.

#include "mundotest.h"

#include "tests/support/ordinaryuser.h"
#include "tests/support/witness.h"

#include "host/paths.h"

#include <QFile>

#include <utility>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

// One system with one emulator, of the type that the test asks for, over the directory "r".
class ListaTest : public PortadaTest {
protected:
    void startWith(
        const QString &type, const QStringList &extensions, const std::vector<NoteEntry> &notes = {})
    {
        files.writeCatalogue({ { u"Sis"_s, extensions, { { u"Emu"_s, type, files.path(u"r/"_s) } } } });
        files.writeNotes({ { u"Otro"_s, { { u"A.BIN"_s, u"de otro"_s } } }, { u"Sis"_s, notes } });
        files.makeDirectory(u"r"_s);
        start();
    }
    void expectNothing()
    {
        EXPECT_THAT(listed(), IsEmpty());
        EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
        EXPECT_EQ(info(), u"Ninguna ROM"_s);
        EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
        EXPECT_EQ(M->NumLista, 1);
        EXPECT_TRUE(list().isEnabled());
        EXPECT_EQ(portada->cursor().shape(), Qt::ArrowCursor);
    }
};

TEST_F(ListaTest, FilesShowTheirDescriptionOrTheirNameInTheOrderOfTheirNames)
{
    for (const QString &name : { u"r/delta.bin"_s, u"r/Alfa.BIN"_s, u"r/beta.bin"_s, u"r/Charlie.Bin"_s })
        files.writeSize(name, 10);
    startWith(u"0"_s, { u"BIN"_s },
        { { u"DELTA.BIN"_s, u"A es la primera"_s }, { u"charlie.bin"_s, u"Zeta es la última"_s } });
    EXPECT_THAT(
        listed(), ElementsAre(u"Alfa.BIN"_s, u"beta.bin"_s, u"Zeta es la última"_s, u"A es la primera"_s));
    EXPECT_EQ(list().ListIndex(), 0);
    EXPECT_EQ(M->TipoEmu, u"0"_s);
    EXPECT_EQ(M->NumLista, 5);
}

TEST_F(ListaTest, ADriveThatIsMissingIsNamed)
{
    files.writeCatalogue({ { u"Sis"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, u"Q:\\roms\\"_s } } } });
    files.writeNotes({ { u"Sis"_s, {} } });
    start();
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(info(), u"Falta la unidad Q:"_s);
}

TEST_F(ListaTest, TablesAreFilledForWhatComesAfter)
{
    files.writeSize(u"r/Alfa.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s, u"ROM"_s }, { { u"alfa.bin"_s, u"El Alfa"_s } });
    EXPECT_EQ(M->Arch_Nombre(0), u"Alfa.bin"_s);
    EXPECT_EQ(M->Arch_Mayus(0), u"ALFA.BIN"_s);
    EXPECT_EQ(M->Arch_Nombre(1), QString());
    EXPECT_EQ(M->Nota_Clave(0), u"ALFA.BIN"_s);
    EXPECT_EQ(M->Nota_Texto(0), u"El Alfa"_s);
    EXPECT_EQ(M->Nota_Clave(1), QString());
    EXPECT_EQ(M->ExtActivas(0), u"BIN"_s);
    EXPECT_EQ(M->ExtActivas(1), u"ROM"_s);
}

TEST_F(ListaTest, FilesWithoutAnExtensionOfTheSystemAreLeftOut)
{
    for (const QString &name : { u"r/a.bin"_s, u"r/b.txt"_s, u"r/c"_s, u"r/d.binx"_s })
        files.writeSize(name, 10);
    startWith(u"5"_s, { u"BIN"_s }, { { u"B.TXT"_s, u"Una nota"_s } });
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
    EXPECT_EQ(word(), u"Cargar"_s);
}

TEST_F(ListaTest, PointIsNoPartOfAnExtension)
{
    files.writeSize(u"r/rom.bin"_s, 10);
    startWith(u"0"_s, { u"N"_s });
    EXPECT_THAT(listed(), ElementsAre(u"rom.bin"_s));
}

TEST_F(ListaTest, FileThatFitsTwoExtensionsIsListedAndCountedTwice)
{
    files.writeSize(u"r/a.zip"_s, 524288);
    startWith(u"0"_s, { u"ZIP"_s, u"IP"_s });
    EXPECT_THAT(listed(), ElementsAre(u"a.zip"_s, u"a.zip"_s));
    EXPECT_EQ(summary(), u"2 ROMS - 1.0MB"_s);
}

TEST_F(ListaTest, ExtensionsThatAreLongOrInLowerCaseNeverFit)
{
    for (const QString &name : { u"r/a.data"_s, u"r/b.bin"_s, u"r/c.bin "_s })
        files.writeSize(name, 10);
    startWith(u"0"_s, { u"DATA"_s, u"bin"_s, u"BIN "_s });
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(ListaTest, SystemWithoutExtensionsListsNoFiles)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, {});
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(ListaTest, EmptyDescriptionOfAFileIsAnEmptyLine)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s }, { { u"A.BIN"_s, QString() } });
    EXPECT_THAT(listed(), ElementsAre(QString()));
}

TEST_F(ListaTest, FirstOfTwoRecordsWithOneKeyWins)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s }, { { u"A.BIN"_s, u"primera"_s }, { u"A.BIN"_s, u"segunda"_s } });
    EXPECT_THAT(listed(), ElementsAre(u"primera"_s));
}

TEST_F(ListaTest, RecordWithoutAFileShowsNothing)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s }, { { u"B.BIN"_s, u"no está"_s } });
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
}

TEST_F(ListaTest, DirectoriesShowInUpperCaseWithoutThoseOfTheFilters)
{
    for (const QString &name : { u"r/tres"_s, u"r/Dos"_s, u"r/roms"_s, u"r/CFG"_s, u"r/uno"_s })
        files.makeDirectory(name);
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"1"_s, { u"BIN"_s }, { { u"uno"_s, u"El uno"_s }, { u"DOS"_s, QString() } });
    EXPECT_THAT(listed(), ElementsAre(u"TRES"_s, u"El uno"_s));
    EXPECT_EQ(summary(), u"2 directorios"_s);
    EXPECT_EQ(M->NumLista, 6);
    EXPECT_EQ(M->Arch_Nombre(1), u"DOS"_s);
    EXPECT_EQ(M->Arch_Nombre(0), QString());
    EXPECT_EQ(word(), u"Jugar"_s);
}

TEST_F(ListaTest, TypeSixIsTheSameWithAnotherWord)
{
    files.makeDirectory(u"r/juego"_s);
    startWith(u"6"_s, {});
    EXPECT_THAT(listed(), ElementsAre(u"JUEGO"_s));
    EXPECT_EQ(summary(), u"1 directorios"_s);
    EXPECT_EQ(word(), u"Cargar"_s);
}

TEST_F(ListaTest, TwentySixFiltersDropEveryDirectory)
{
    for (const int count : { 25, 26 }) {
        Settings settings;
        settings.Filters.clear();
        for (int i = 0; i < count; ++i)
            settings.Filters << u"F%1"_s.arg(i);
        files.writeSettings(settings);
        files.makeDirectory(u"r/juego"_s);
        renew();
        startWith(u"1"_s, {});
        EXPECT_EQ(listed(), count == 25 ? QStringList { u"JUEGO"_s } : QStringList()) << count;
    }
}

TEST_F(ListaTest, ZipsShowTheDescriptionOfTheirNameWithoutTheEnding)
{
    for (const QString &type : { u"2"_s, u"3"_s, u"7"_s, u"8"_s }) {
        files.writeSize(u"r/GAME.ZIP"_s, 1048576);
        files.writeSize(u"r/other.zip"_s, 1048576);
        files.writeSize(u"r/gunzip"_s, 1048576);
        files.writeSize(u"r/readme.txt"_s, 1048576);
        renew();
        startWith(type, { u"TXT"_s }, { { u"game"_s, u"El juego"_s }, { u"README.TXT"_s, u"nada"_s } });
        EXPECT_THAT(listed(), ElementsAre(u"El juego"_s, u"gunzip"_s, u"other.zip"_s)) << type.toStdString();
        EXPECT_EQ(summary(), u"3 ROMS - 3.0MB"_s) << type.toStdString();
        EXPECT_EQ(M->NumLista, 5);
    }
}

TEST_F(ListaTest, TypeIsThatOfTheEmulatorSelectedNow)
{
    files.writeSize(u"r/a.bin"_s, 10);
    files.writeSize(u"r/b.zip"_s, 10);
    startWith(u"0"_s, { u"BIN"_s });
    ASSERT_THAT(listed(), ElementsAre(u"a.bin"_s));
    M->Cat_XDI(0, 1) = u"XDI=3"_s;
    portada->Llena_Lista();
    EXPECT_EQ(M->TipoEmu, u"3"_s);
    EXPECT_THAT(listed(), ElementsAre(u"b.zip"_s));
}

TEST_F(ListaTest, OtherTypesListNothing)
{
    for (const QString &type : { u"4"_s, u"9"_s, u"X"_s, u""_s }) {
        files.writeSize(u"r/a.bin"_s, 10);
        renew();
        startWith(type, { u"BIN"_s });
        expectNothing();
    }
}

TEST_F(ListaTest, SummaryCountsWhatIsListedAndIsPaddedByWhatWasScanned)
{
    const struct {
        int scanned;
        QString summary;
    } cases[] = {
        { 9, u"2 ROMS - 0.0MB"_s },
        { 10, u"2 ROMS - 0.0MB "_s },
        { 99, u"2 ROMS - 0.0MB "_s },
        { 100, u"2 ROMS - 0.0MB  "_s },
    };
    files.writeSize(u"r/0.bin"_s, 10);
    files.writeSize(u"r/1.bin"_s, 10);
    int scanned = 2;
    for (const auto &expected : cases) {
        for (; scanned < expected.scanned; ++scanned)
            files.writeSize(u"r/%1.txt"_s.arg(scanned), 1);
        renew();
        startWith(u"0"_s, { u"BIN"_s });
        EXPECT_EQ(summary(), expected.summary) << expected.scanned;
    }
}

TEST_F(ListaTest, SummaryOfDirectoriesIsPaddedToo)
{
    for (int i = 0; i < 10; ++i)
        files.makeDirectory(u"r/d%1"_s.arg(i));
    startWith(u"1"_s, {});
    EXPECT_EQ(summary(), u"10 directorios "_s);
}

TEST_F(ListaTest, SizesAreSummedAndRoundedHalfAwayFromZero)
{
    const struct {
        qsizetype bytes;
        QString summary;
    } cases[] = {
        { 5242, u"1 ROMS - 0.0MB"_s },
        { 5243, u"1 ROMS - 0.01MB"_s },
        { 131072, u"1 ROMS - 0.13MB"_s }, // an eighth
        { 1572864, u"1 ROMS - 1.5MB"_s },
    };
    for (const auto &expected : cases) {
        files.writeSize(u"r/a.bin"_s, expected.bytes);
        renew();
        startWith(u"0"_s, { u"BIN"_s });
        EXPECT_EQ(summary(), expected.summary);
    }
}

TEST_F(ListaTest, MissingDirectoryListsNothing)
{
    startWith(u"0"_s, { u"BIN"_s });
    files.remove(u"r"_s);
    restart();
    expectNothing();
}

TEST_F(ListaTest, DirectoryThatTheUserMayNotReadListsNothing)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    startWith(u"0"_s, { u"BIN"_s });
    ASSERT_THAT(listed(), ElementsAre(u"a.bin"_s));
    ASSERT_EQ(chmod(files.path().toUtf8().constData(), 0755), 0);
    const AsOrdinaryUser user(files.path(u"r"_s), 0);
    renew();
    start();
    expectNothing();
}

TEST_F(ListaTest, NoDirectoryListsNothingNotEvenTheWorkingDirectory)
{
    files.writeSize(u"a.bin"_s, 10);
    files.writeCatalogue({ { u"Sis"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, QString() } } } });
    files.writeNotes({ { u"Sis"_s, {} } });
    host::changeDirectory(files.path());
    start();
    expectNothing();
}

TEST_F(ListaTest, EmptyDirectoryListsNothing)
{
    startWith(u"0"_s, { u"BIN"_s });
    expectNothing();
}

TEST_F(ListaTest, MissingNotesListNothing)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s });
    ASSERT_THAT(listed(), ElementsAre(u"a.bin"_s));
    files.remove(u"Zembro.rom"_s);
    portada->Llena_Lista();
    expectNothing();
    EXPECT_FALSE(M->Ficheros.isOpen(1));
}

TEST_F(ListaTest, SystemWithoutItsSectionListsNothingAndLeavesTheFileOpen)
{
    files.writeSize(u"r/a.bin"_s, 10);
    files.writeCatalogue({ { u"SIS"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, files.path(u"r/"_s) } } } });
    files.writeNotes({ { u"Sis"_s, {} }, { u"SIS "_s, {} } });
    start();
    expectNothing();
    EXPECT_TRUE(M->Ficheros.isOpen(1));
    // And so does every later listing.
    files.writeNotes({ { u"SIS"_s, {} } });
    portada->Llena_Lista();
    expectNothing();
}

TEST_F(ListaTest, SectionWithoutItsEndListsNothing)
{
    files.writeSize(u"r/a.bin"_s, 10);
    files.writeCatalogue({ { u"Sis"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, files.path(u"r/"_s) } } } });
    files.write(u"Zembro.rom"_s, "Sis\r\nA.BIN,\"La nota\"\r\n");
    start();
    expectNothing();
}

TEST_F(ListaTest, LoneApostropheAtTheEndOfTheFileClosesTheSection)
{
    files.writeSize(u"r/a.bin"_s, 10);
    files.writeCatalogue({ { u"Sis"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, files.path(u"r/"_s) } } } });
    files.write(u"Zembro.rom"_s, "Sis\r\nA.BIN,\"La nota\"\r\n'");
    start();
    EXPECT_THAT(listed(), ElementsAre(u"La nota"_s));
}

TEST_F(ListaTest, MoreEntriesThanTheTableListNothing)
{
    files.makeDirectory(u"r"_s);
    for (int i = 0; i < 6667; ++i)
        ASSERT_TRUE(QFile(files.path(u"r/%1.bin"_s.arg(i))).open(QIODevice::WriteOnly));
    startWith(u"3"_s, { u"BIN"_s });
    EXPECT_EQ(M->NumLista, 6668);
    files.write(u"r/one_more.bin"_s, {});
    portada->Llena_Lista();
    expectNothing();
}

TEST_F(ListaTest, MoreRecordsThanTheTableListNothing)
{
    files.writeSize(u"r/a.bin"_s, 10);
    std::vector<NoteEntry> notes;
    for (int i = 0; i < 6666; ++i)
        notes.push_back({ u"K%1"_s.arg(i), u"d"_s });
    startWith(u"0"_s, { u"BIN"_s }, notes);
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
    // A full table has no empty record behind the last, at which an entry without a note is taken.
    notes.push_back({ u"A.TXT"_s, u"d"_s });
    files.writeNotes({ { u"Sis"_s, notes } });
    portada->Llena_Lista();
    EXPECT_THAT(listed(), IsEmpty());
    notes.push_back({ u"A.BIN"_s, u"d"_s });
    files.writeNotes({ { u"Sis"_s, notes } });
    portada->Llena_Lista();
    expectNothing();
}

TEST_F(ListaTest, FileThatGoesMeanwhileStopsTheAddingHalfWay)
{
    for (const QString &name : { u"r/a.bin"_s, u"r/b.bin"_s, u"r/c.bin"_s })
        files.writeSize(name, 10);
    // Its width makes the label grow, and that is the moment at which the directory has been read.
    QStringList lines = languageLines();
    lines << languageLine(u"TXT_Añadiendo"_s, u"Una línea muy larga, tanto que hace crecer la etiqueta"_s);
    files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
    bool gone = false;
    const Witness grows(control(u"TXT_Info"_s), QEvent::Resize, [&] {
        if (!gone && info() == M->TXT_Añadiendo) {
            gone = true;
            files.remove(u"r/b.bin"_s);
        }
    });
    startWith(u"0"_s, { u"BIN"_s });
    ASSERT_TRUE(gone);
    EXPECT_EQ(list().List(0), u"a.bin"_s);
    EXPECT_THAT(listed(), testing::Not(testing::Contains(u"c.bin"_s)));
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(summary(), u"..."_s);
    EXPECT_EQ(info(), M->TXT_Añadiendo);
    EXPECT_EQ(M->NumLista, 2);
    EXPECT_TRUE(list().isEnabled());
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
}

TEST_F(ListaTest, FirstFileThatGoesMeanwhileLeavesNoSummary)
{
    files.writeSize(u"r/a.bin"_s, 10);
    QStringList lines = languageLines();
    lines << languageLine(u"TXT_Añadiendo"_s, u"Una línea muy larga, tanto que hace crecer la etiqueta"_s);
    files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
    const Witness grows(control(u"TXT_Info"_s), QEvent::Resize, [&] {
        if (info() == M->TXT_Añadiendo && files.exists(u"r/a.bin"_s))
            files.remove(u"r/a.bin"_s);
    });
    startWith(u"0"_s, { u"BIN"_s });
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(M->NumLista, 1);
}

TEST_F(ListaTest, EntriesOfWhichNoneIsTakenKeepTheLineOfTheAdding)
{
    files.writeSize(u"r/a.txt"_s, 10);
    startWith(u"0"_s, { u"BIN"_s });
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(info(), u"Añadiendo"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
    EXPECT_EQ(M->NumLista, 2);
    // Not the fixed text: the sum, in the format of the desktop. The start's own last word comes after it.
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    portada->Llena_Lista();
    EXPECT_EQ(summary(), u"0 ROMS - 0.0MB"_s);
}

TEST_F(ListaTest, RestoringSelectsTheSavedROM)
{
    for (const QString &name : { u"r/a.bin"_s, u"r/b.bin"_s })
        files.writeSize(name, 10);
    startWith(u"0"_s, { u"BIN"_s });
    M->RestaurarROM = 1;
    M->ROMGuardada = u"b.bin"_s;
    portada->Llena_Lista();
    EXPECT_EQ(list().Text(), u"b.bin"_s);
    EXPECT_EQ(info(), u"b.bin Kb  [NOR]"_s);
}

TEST_F(ListaTest, RestoringAROMThatIsGoneSelectsNone)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s });
    M->RestaurarROM = 1;
    M->ROMGuardada = u"b.bin"_s;
    portada->Llena_Lista();
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(info(), u"Añadiendo"_s);
}

TEST_F(ListaTest, WithoutAnEmulatorTheTablesAreClearedAndTheListStays)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s }, { { u"K"_s, u"d"_s } });
    M->NumROMsBorradas = 3;
    emulators().SetListIndex(-1);
    portada->Llena_Lista();
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
    EXPECT_EQ(M->Arch_Nombre(0), QString());
    EXPECT_EQ(M->Arch_Mayus(0), QString());
    EXPECT_EQ(M->Nota_Clave(0), QString());
    EXPECT_EQ(M->Nota_Texto(0), QString());
    EXPECT_EQ(M->NumLista, 2);
    EXPECT_EQ(M->NumROMsBorradas, 0);
}

TEST_F(ListaTest, EachListingClearsTheCountOfDeletedROMs)
{
    files.writeSize(u"r/a.bin"_s, 10);
    startWith(u"0"_s, { u"BIN"_s });
    M->NumROMsBorradas = 3;
    portada->Llena_Lista();
    EXPECT_EQ(M->NumROMsBorradas, 0);
}

namespace {

const QStringList Disabled { u"Lista1"_s, u"BotonA2"_s, u"BotonB2"_s, u"Combo1"_s, u"Combo2"_s, u"WEB1"_s,
    u"WEB2"_s, u"BotonC2"_s, u"BotonD2"_s, u"JugarB1"_s, u"X2"_s, u"X3"_s, u"X4"_s, u"X5"_s, u"OFF"_s,
    u"Boton1b"_s, u"Boton2b"_s, u"Boton3b"_s, u"Boton4b"_s, u"Boton5b"_s, u"Boton6b"_s, u"Flecha2"_s,
    u"Graf_Imagen"_s, u"Menos2a"_s, u"Menos2b"_s, u"Check1"_s, u"E1"_s, u"D1"_s };

} // namespace

class ListaMientrasTest : public MundoTest {
protected:
    void expectEnabled(bool enabled)
    {
        for (const QString &name : Disabled)
            EXPECT_EQ(control(name).isEnabled(), enabled) << name.toStdString();
    }
};

TEST_F(ListaMientrasTest, ControlsAreOffAndTheListIsEmptyAtTheYield)
{
    startAt(Zeta, 0);
    bool seen = false;
    QTimer::singleShot(0, portada.get(), [&] {
        seen = true;
        expectEnabled(false);
        EXPECT_EQ(summary(), u"..."_s);
        EXPECT_THAT(listed(), IsEmpty());
        EXPECT_EQ(capture(), QColor(Qt::red)); // turns black behind the yield
    });
    portada->Llena_Lista();
    EXPECT_TRUE(seen);
    expectEnabled(true);
}

TEST_F(ListaMientrasTest, NothingIsLetInOnceTheReadingHasBegun)
{
    startAt(Zeta, 0);
    bool begun = false;
    bool letIn = false;
    const Witness reading(*portada, QEvent::CursorChange, [&] {
        if (!std::exchange(begun, true))
            QTimer::singleShot(0, portada.get(), [&] { letIn = true; });
    });
    portada->Llena_Lista();
    EXPECT_TRUE(begun);
    EXPECT_FALSE(letIn);
    EXPECT_TRUE(waitUntil([&] { return letIn; }));
}

TEST_F(ListaMientrasTest, SummaryIsPaintedAtOnce)
{
    startAt(Zeta, 0);
    QStringList painted;
    const Witness paints(control(u"TXT_InfoRoms"_s), QEvent::Paint, [&] {
        if (painted.isEmpty()) {
            EXPECT_EQ(list().ListCount(), 2); // ahead of all else
        }
        painted << summary();
    });
    portada->Llena_Lista();
    ASSERT_THAT(painted, testing::Not(IsEmpty()));
    EXPECT_EQ(painted.first(), u"..."_s);
}

TEST_F(ListaMientrasTest, PointerIsAnHourglassAndTheLineRedWhileItReads)
{
    startAt(Zeta, 0);
    QStringList diary;
    const Witness pointer(*portada, QEvent::CursorChange, [&] {
        const bool waits = portada->cursor().shape() == Qt::WaitCursor;
        const QString entry = u"%1 %2 %3 %4"_s.arg(waits ? u"waits"_s : u"normal"_s,
            colour(u"TXT_Info"_s).name(), info(), list().isEnabled() ? u"on"_s : u"off"_s);
        if (diary.isEmpty() || diary.last() != entry)
            diary << entry;
    });
    portada->Llena_Lista();
    // The selection of the first entry comes and goes with the pointer of its own, inside the listing.
    EXPECT_THAT(diary,
        ElementsAre(u"waits #c00000 Leyendo off"_s, u"waits #c00000 ONE.NES 1Kb  [NOR] off"_s,
            u"normal #c00000 ONE.NES 1Kb  [NOR] off"_s, u"normal #000000 ONE.NES 1Kb  [NOR] on"_s));
}

TEST_F(ListaMientrasTest, PicturesTurnBlackBeforeTheDirectoryIsRead)
{
    startAt(Zeta, 0);
    ASSERT_EQ(capture(), QColor(Qt::red));
    bool seen = false;
    const Witness reading(*portada, QEvent::CursorChange, [&] {
        if (!seen) {
            EXPECT_EQ(capture(), QColor(Qt::black));
            EXPECT_EQ(zoomed(), QColor(Qt::black));
        }
        seen = true;
    });
    portada->Llena_Lista();
    EXPECT_TRUE(seen);
}

TEST_F(ListaMientrasTest, ControlsComeBackAfterAFailure)
{
    startAt(Zeta, 0);
    files.remove(u"zeta"_s);
    portada->Llena_Lista();
    expectEnabled(true);
    EXPECT_EQ(portada->cursor().shape(), Qt::ArrowCursor);
}
