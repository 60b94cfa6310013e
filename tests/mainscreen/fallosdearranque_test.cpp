// What ends the program at its start: the exact words, and nothing on the screen.

#include "mundotest.h"

#include <QElapsedTimer>

#include <ctime>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Ahead of the line that names the file.
const QString MissingFiles = u"Cannot find any of these files:\n"
                             "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯\n"
                             "In the program directory\n"
                             "   Zembro.cfg\n"
                             "   Zembro.emu\n"
                             "   Zembro.rom\n"
                             "   Zembro.sye\n"
                             "   Zembro.txt\n"
                             "   Zembro.faq\n"
                             "   Cvtgif15.exe\n"
                             "In LNG subdirectory any *.LNG file\n"_s;

} // namespace

class FallosDeArranqueTest : public MundoTest {
protected:
    // Loads the screen, which has to end the program with this text and a line that says what failed on which
    // file.
    void expectEnd(const QString &text, const QString &file, const QString &detail = {})
    {
        renew();
        const std::optional<ProcessEnd> end = load();
        ASSERT_TRUE(end) << "the program started";
        EXPECT_EQ(end->status, 1);
        EXPECT_EQ(end->title, u"ERROR"_s);
        EXPECT_EQ(end->text.first(std::min(text.size(), end->text.size())), text);
        const QString last = end->text.mid(text.size());
        EXPECT_TRUE(last.startsWith(u"Failed to ")) << last.toStdString();
        EXPECT_TRUE(last.endsWith(u": "_s + file)) << last.toStdString();
        EXPECT_TRUE(last.contains(detail)) << last.toStdString();
        EXPECT_FALSE(last.contains(u'\n'));
        EXPECT_FALSE(portada->isVisible());
    }
    void expectEndWithNumber(int number, const QString &file, const QString &detail = {})
    {
        expectEnd(u"An unknown error has occurred. (ERR%1)\n"_s.arg(number), file, detail);
    }
    void expectNothingRead()
    {
        EXPECT_FALSE(firstRunShown);
        EXPECT_EQ(M->LanguageFile, QString());
        EXPECT_EQ(M->GuardarUltimo, QString());
        EXPECT_EQ(M->TXT_Jugar, QString());
    }
};

TEST_F(FallosDeArranqueTest, AnyMissingFileEndsTheProgramAndIsNamed)
{
    for (const QString &name : { u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s, u"Zembro.cfg"_s,
             u"Zembro.faq"_s, u"Zembro.txt"_s, u"Cvtgif15.exe"_s }) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray content = files.read(name);
        files.remove(name);
        expectEnd(MissingFiles, files.path(name));
        expectNothingRead();
        files.write(name, content);
    }
}

TEST_F(FallosDeArranqueTest, FilesAreLookedForOneAfterTheOther)
{
    const QStringList order { u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s, u"Zembro.cfg"_s,
        u"Zembro.faq"_s, u"Zembro.txt"_s, u"Cvtgif15.exe"_s };
    for (const QString &name : order)
        files.remove(name);
    for (const QString &name : order) {
        expectEnd(MissingFiles, files.path(name));
        files.write(name, "x");
    }
}

TEST_F(FallosDeArranqueTest, DirectoryWithoutALanguageEndsTheProgram)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    files.write(u"LNG/ZB-ESP.TXT"_s, "x");
    files.makeDirectory(u"LNG/ZB.LNG"_s);
    expectEnd(MissingFiles, files.path(u"LNG"_s));
    expectNothingRead();
}

TEST_F(FallosDeArranqueTest, MissingLanguageDirectoryEndsTheProgram)
{
    files.remove(u"LNG"_s);
    expectEnd(MissingFiles, files.path(u"LNG"_s));
    expectNothingRead();
}

TEST_F(FallosDeArranqueTest, MissingFilesAreLookedForAheadOfTheFirstRun)
{
    files.write(u"Zembro.cfg"_s, "VACIO");
    files.remove(u"Cvtgif15.exe"_s);
    expectEnd(MissingFiles, files.path(u"Cvtgif15.exe"_s));
    EXPECT_FALSE(firstRunShown);
}

TEST_F(FallosDeArranqueTest, EmptySettingsEndTheProgram)
{
    files.write(u"Zembro.cfg"_s, {});
    expectEndWithNumber(62, files.path(u"Zembro.cfg"_s));
    EXPECT_FALSE(firstRunShown);
}

TEST_F(FallosDeArranqueTest, SettingWithoutAValueEndsTheProgram)
{
    for (int line = 11; line <= 17; ++line) {
        QStringList lines = Settings {}.lines();
        const QString key = lines[line].left(lines[line].indexOf(u'=') + 1);
        lines[line] = key;
        files.writeLines(u"Zembro.cfg"_s, lines);
        expectEndWithNumber(5, files.path(u"Zembro.cfg"_s), key);
        lines[line] = QString();
        files.writeLines(u"Zembro.cfg"_s, lines);
        expectEndWithNumber(5, files.path(u"Zembro.cfg"_s));
    }
}

TEST_F(FallosDeArranqueTest, SettingsThatEndTooEarlyEndTheProgram)
{
    files.writeLines(u"Zembro.cfg"_s, Settings {}.lines().mid(0, 17));
    expectEndWithNumber(5, files.path(u"Zembro.cfg"_s));
}

TEST_F(FallosDeArranqueTest, MoreFiltersThanTheTableTakesEndTheProgram)
{
    Settings settings;
    settings.Filters.clear();
    for (int i = 0; i < 152; ++i)
        settings.Filters << u"F%1"_s.arg(i);
    files.writeSettings(settings);
    expectEndWithNumber(9, files.path(u"Zembro.cfg"_s), u"151"_s);
}

TEST_F(FallosDeArranqueTest, FiltersThatFillTheTableEndTheProgram)
{
    Settings settings;
    settings.Filters.clear();
    for (int i = 0; i < 151; ++i)
        settings.Filters << u"F%1"_s.arg(i);
    files.writeSettings(settings);
    expectEndWithNumber(9, files.path(u"Zembro.cfg"_s), u"151"_s);
    settings.Filters.removeLast();
    files.writeSettings(settings);
    restart();
}

TEST_F(FallosDeArranqueTest, NoFilterAtAllEndsTheProgram)
{
    Settings settings;
    settings.Filters.clear();
    files.writeSettings(settings);
    expectEndWithNumber(5, files.path(u"Zembro.cfg"_s), u"[Filters]"_s);
}

TEST_F(FallosDeArranqueTest, MissingLanguageOfTheSettingsEndsTheProgram)
{
    Settings settings;
    settings.LanguageFile = u"ZB-NO.LNG"_s;
    files.writeSettings(settings);
    expectEnd(MissingFiles, files.path(u"LNG/ZB-NO.LNG"_s));
}

TEST_F(FallosDeArranqueTest, EmptyLanguageEndsTheProgram)
{
    files.write(u"LNG/ZB-ESP.LNG"_s, {});
    expectEndWithNumber(62, files.path(u"LNG/ZB-ESP.LNG"_s));
}

TEST_F(FallosDeArranqueTest, LanguageLineWithoutATextEndsTheProgram)
{
    for (const QString &line : { QString(), u"TXT_Jugar........."_s, u"TXT_Jugar.........=\""_s }) {
        files.writeLines(u"LNG/ZB-ESP.LNG"_s, languageLines() << line);
        expectEndWithNumber(5, files.path(u"LNG/ZB-ESP.LNG"_s), line);
    }
}

TEST_F(FallosDeArranqueTest, EndlessLanguageNameEndsTheProgramAtOnceInAFewWords)
{
    for (const QChar letter : { u'x', u'\\', u'/' }) {
        Settings settings;
        settings.LanguageFile = QString(1'000'000, letter);
        files.writeSettings(settings);
        renew();
        QElapsedTimer time;
        time.start();
        const std::optional<ProcessEnd> end = load();
        ASSERT_TRUE(end);
        EXPECT_LT(end->text.size(), 2000);
        EXPECT_LT(time.elapsed(), 5000);
    }
}

// Whatever the files hold, the screen either ends the process with its words or stands and can be used, and
// the files stay as they are.
class FicherosRevueltosTest : public MundoTest, public testing::WithParamInterface<const char *> { };

TEST_P(FicherosRevueltosTest, NeitherCrashNorChange)
{
    const QString name = QString::fromLatin1(GetParam());
    Settings settings;
    settings.LastSisUsed = u"2"_s;
    files.writeSettings(settings);
    const QByteArray good = files.read(name);
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += char(byte);
    for (const QByteArray &bytes : { all, good + all, all + "\r\n" + good, good.first(good.size() / 2) + all,
             good.first(good.size() / 2), QByteArray(20'000, '\0'), QByteArray(good).replace('e', '\0') }) {
        files.write(name, bytes);
        renew();
        if (!load()) {
            if (systems().ListCount() > 0)
                pick(systems(), systems().List(0));
            click(control(u"Check1"_s));
        }
        EXPECT_EQ(files.read(name), bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(AllThatAreRead, FicherosRevueltosTest,
    testing::Values("Zembro.emu", "Zembro.sye", "Zembro.rom", "Zembro.cfg", "LNG/ZB-ESP.LNG"));

// Fast whatever the lines hold: a line of a million characters costs next to nothing.
class LineasSinFinTest : public MundoTest {
protected:
#ifdef __SANITIZE_ADDRESS__
    static constexpr qint64 Bound = 10000; // milliseconds; the checks make it many times slower
#else
    static constexpr qint64 Bound = 1000;
#endif

    void expectFastStart()
    {
        renew();
        EXPECT_LT(workOf([this] { EXPECT_FALSE(load()); }), Bound);
    }
    // Of the processor, so that others on the machine don't count.
    static qint64 workOf(const std::function<void()> &step)
    {
        const std::clock_t before = std::clock();
        step();
        return qint64(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
    }
    static QString endless(const QString &piece)
    {
        return piece.repeated(1'000'000 / piece.size());
    }
};

TEST_F(LineasSinFinTest, EndlessDirectoriesAndProgramsInTheCatalogueStartFast)
{
    for (const QString &piece : { u"x"_s, u"\\"_s, u"/"_s, u"x\\"_s, u"x/"_s, u"../"_s, u" "_s, u"~2"_s }) {
        SCOPED_TRACE(piece.toStdString());
        systemsOfCatalogue[0].emulators[0].roms = endless(piece);
        systemsOfCatalogue[0].emulators[0].captures = endless(piece);
        systemsOfCatalogue[0].emulators[0].executable = endless(piece);
        files.writeCatalogue(systemsOfCatalogue);
        Settings settings;
        settings.LastSisUsed = u"2"_s;
        files.writeSettings(settings);
        expectFastStart();
        EXPECT_EQ(systems().Text(), u"Zeta"_s);
    }
}

TEST_F(LineasSinFinTest, EndlessCapturesOfAListedROMStartFast)
{
    for (const QString &piece : { u"\\"_s, u"x\\"_s, u"x/"_s }) {
        systemsOfCatalogue[0].emulators[0].captures = endless(piece);
        files.writeCatalogue(systemsOfCatalogue);
        Settings settings;
        settings.LastSisUsed = u"2"_s;
        files.writeSettings(settings);
        expectFastStart();
        EXPECT_EQ(list().Text(), u"Juego uno"_s);
    }
}

TEST_F(LineasSinFinTest, EndlessNamesInTheCatalogueStartFast)
{
    systemsOfCatalogue[1].name = endless(u"a"_s);
    systemsOfCatalogue[1].emulators[0].name = endless(u"b"_s);
    systemsOfCatalogue[1].emulators[0].type = endless(u"0"_s);
    files.writeCatalogue(systemsOfCatalogue);
    files.writeNotes({ { endless(u"a"_s), {} } });
    expectFastStart();
    EXPECT_EQ(systems().Text().size(), 1'000'000);
}

// Until the window has been painted, with the long texts in the list, in both combos and in the labels.
TEST_F(LineasSinFinTest, EndlessNamesAndDescriptionsAreSoonPainted)
{
    for (const QString &piece : { u"x"_s, u"אב "_s, u"字"_s, QString(QChar::Null) }) {
        systemsOfCatalogue[0].name = endless(piece);
        systemsOfCatalogue[0].emulators[0].name = endless(piece);
        files.writeCatalogue(systemsOfCatalogue);
        files.writeNotes({ { endless(piece), { { u"ONE.NES"_s, endless(piece) } } } });
        Settings settings;
        settings.LastSisUsed =
            piece[0].isNull() ? u"0"_s : u"2"_s; // where its name stands among the sorted ones
        files.writeSettings(settings);
        expectFastStart();
        EXPECT_LT(workOf([this] { portada->grab(); }), Bound);
        EXPECT_TRUE(systems().Text() == endless(piece));
        EXPECT_TRUE(list().Text() == endless(piece));
    }
}

TEST_F(LineasSinFinTest, EndlessNotesStartFast)
{
    files.writeNotes({ { u"Zeta"_s, { { u"ONE.NES"_s, endless(u"d"_s) }, { endless(u"k"_s), u"x"_s } } } });
    Settings settings;
    settings.LastSisUsed = u"2"_s;
    files.writeSettings(settings);
    expectFastStart();
    EXPECT_EQ(list().Text().size(), 1'000'000);
}

TEST_F(LineasSinFinTest, EndlessWordsOfTheLanguageStartFast)
{
    for (const QString &piece : { u"x"_s, u"x "_s, u"\\"_s }) {
        QStringList lines = languageLines();
        for (const QString &key : { u"TXT_Jugar"_s, u"TXT_Opciones"_s, u"TXT_NingunaROM"_s,
                 u"TXT_EmuNoSelec"_s, u"TXT_Leyendo"_s, u"TXT_Añadiendo"_s })
            lines << languageLine(key, endless(piece));
        files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
        expectFastStart();
        EXPECT_EQ(word().size(), 1'000'000);
    }
}

TEST_F(LineasSinFinTest, EndlessSettingsStartFast)
{
    Settings settings;
    settings.MsgEndDOS = endless(u"x"_s);
    settings.Filters = { endless(u"F"_s) };
    settings.LastSisUsed = endless(u"0"_s);
    settings.LastEmuUsed = endless(u"9"_s);
    files.writeSettings(settings);
    expectFastStart();
    EXPECT_EQ(M->MsgEndDOS.size(), 1'000'000);
}
