// What is known of an emulator, and what the boxes of its form offer of that.

#include "finder/pistas.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

std::vector<finder::Ficha> cards()
{
    return finder::LeeFichas(u"FCEUX\tfceux org.fceux\t0\t--pal 0\t-x\n"
                             "RetroArch MD\tretroarch\t0\t--libretro {nucleo:picodrive}\t-\n"
                             "MAME\tmame\t3\t-rompath {roms}\t-w\n"
                             "Alone\talone\t5\t-a\t-\n"_s);
}

class Hints : public testing::Test {
protected:
    finder::Conocido known(const QString &emulator, const QString &system = u"NES"_s) const
    {
        return finder::Reconoce(system, emulator, cards(), maquina.Lugares(), u"/z"_s);
    }

    Maquina maquina;
};

QStringList boxes(const core::Casillas &hints)
{
    return { hints.exe, hints.rom, hints.img, hints.par1, hints.par2 };
}

finder::Conocido of(const QString &name)
{
    finder::Conocido known;
    for (const finder::Ficha &card : cards()) {
        if (card.emulador == name)
            known.ficha = card;
    }
    known.roms = u"/r/"_s;
    known.capturas = u"/c/"_s;
    return known;
}

core::Marcas marks(const QString &set)
{
    return { set.contains(u'1'), set.contains(u'2'), set.contains(u'3'), set.contains(u'4') };
}

} // namespace

TEST(HintsOfBoxes, ComeOfWhatIsThereAndOfTheMarks)
{
    const struct {
        QString emulator;
        QString program;
        QString core;
        QString link;
        QString marks;
        QStringList hints;
    } rows[] = {
        // Without a row in the table, and without the program.
        { u"Unknown"_s, {}, {}, {}, {}, { {}, u"/r/"_s, u"/c/"_s, {}, {} } },
        { u"FCEUX"_s, {}, {}, {}, {}, { {}, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u"-x"_s } },
        { u"FCEUX"_s, u"/b/fceux"_s, {}, {}, {},
            { u"/b/fceux"_s, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u"-x"_s } },
        // Blanks as the marks ask for them.
        { u"FCEUX"_s, {}, {}, {}, u"23"_s, { {}, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u" -x"_s } },
        { u"FCEUX"_s, {}, {}, {}, u"2"_s, { {}, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u"-x"_s } },
        { u"FCEUX"_s, {}, {}, {}, u"4"_s, { {}, u"/r/"_s, u"/c/"_s, u" --pal 0"_s, {} } },
        { u"FCEUX"_s, {}, {}, {}, u"423"_s, { {}, u"/r/"_s, u"/c/"_s, u" --pal 0"_s, {} } },
        // The marks of no type.
        { u"FCEUX"_s, {}, {}, {}, u"12"_s, { {}, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u"-x"_s } },
        // Without marks as the table has it.
        { u"Alone"_s, u"/b/alone"_s, {}, {}, {}, { u"/b/alone"_s, u"/r/"_s, u"/c/"_s, u" -a"_s, {} } },
        { u"Alone"_s, u"/b/alone"_s, {}, {}, u"1"_s, { u"/b/alone"_s, u"/r/"_s, u"/c/"_s, u"-a"_s, {} } },
        // A core that isn't there.
        { u"RetroArch MD"_s, u"/b/ra"_s, {}, {}, {}, { u"/b/ra"_s, u"/r/"_s, u"/c/"_s, {}, {} } },
        { u"RetroArch MD"_s, u"/b/ra"_s, u"/c/pico.so"_s, {}, {},
            { u"/b/ra"_s, u"/r/"_s, u"/c/"_s, u"--libretro /c/pico.so"_s, {} } },
        { u"RetroArch MD"_s, u"/b/ra"_s, u"/c/pico.so"_s, {}, u"4"_s,
            { u"/b/ra"_s, u"/r/"_s, u"/c/"_s, u" --libretro /c/pico.so"_s, {} } },
        // From another directory than its link's it wouldn't find the games.
        { u"MAME"_s, u"/b/mame"_s, {}, {}, {}, { u"/b/mame"_s, u"/r/"_s, u"/c/"_s, {}, u" -w"_s } },
        { u"MAME"_s, u"/b/mame"_s, {}, u"/a/MAME/mame"_s, {},
            { u"/a/MAME/mame"_s, u"/r/"_s, u"/c/"_s, u"-rompath roms"_s, u" -w"_s } },
        // A value of two lines wouldn't come back from its box.
        { u"FCEUX"_s, u"/a\nb/fceux"_s, {}, {}, {}, { {}, u"/r/"_s, u"/c/"_s, u"--pal 0"_s, u"-x"_s } },
    };
    for (const auto &row : rows) {
        finder::Conocido known = of(row.emulator);
        known.programa = row.program;
        known.nucleo = row.core;
        known.enlace = row.link;
        EXPECT_EQ(boxes(finder::PistasDe(known, marks(row.marks))), row.hints)
            << row.emulator.toStdString() << " with marks " << row.marks.toStdString();
    }
}

TEST_F(Hints, KnowTheProgramByTheFirstNameThatIsThere)
{
    EXPECT_EQ(known(u"FCEUX"_s).programa, QString());
    maquina.PonPrograma(u"games/org.fceux"_s);
    EXPECT_EQ(known(u"FCEUX"_s).programa, maquina.Ruta(u"games/org.fceux"_s));
    maquina.PonPrograma(u"games/fceux"_s);
    EXPECT_EQ(known(u"FCEUX"_s).programa, maquina.Ruta(u"games/fceux"_s));
    EXPECT_EQ(known(u"fceux"_s).programa, QString());
}

TEST_F(Hints, NameTheDirectoriesThatTheFinderGivesTheSystem)
{
    for (const QString &emulator : { u"FCEUX"_s, u"Unknown"_s }) {
        EXPECT_EQ(known(emulator, u"Mega Drive/Genesis"_s).roms, u"roms/Mega Drive-Genesis/");
        EXPECT_EQ(known(emulator, u"Mega Drive/Genesis"_s).capturas, u"capturas/Mega Drive-Genesis/");
    }
}

TEST_F(Hints, KnowACoreOfOneThatLoadsIt)
{
    maquina.PonPrograma(u"bin/retroarch"_s);
    EXPECT_EQ(known(u"RetroArch MD"_s).nucleo, QString());
    maquina.PonFichero(u"cores/picodrive_libretro.so"_s);
    EXPECT_EQ(known(u"RetroArch MD"_s).nucleo, maquina.Ruta(u"cores/picodrive_libretro.so"_s));
}

TEST_F(Hints, KnowALinkBesideTheGamesWhereItIs)
{
    const auto here = [this] {
        return finder::Reconoce(u"Arcade"_s, u"MAME"_s, cards(), maquina.Lugares(), maquina.Ruta());
    };
    maquina.PonPrograma(u"bin/mame"_s);
    EXPECT_EQ(here().enlace, QString());
    ASSERT_TRUE(QDir().mkpath(maquina.Ruta(u"arranque/MAME"_s)));
    ASSERT_TRUE(QFile::link(maquina.Ruta(u"bin/mame"_s), maquina.Ruta(u"arranque/MAME/mame"_s)));
    EXPECT_EQ(here().enlace, u"arranque/MAME/mame");
}

TEST(TableOfTheProgram, IsTheOneThatTheFinderReads)
{
    QFile file(QStringLiteral(DATA_SOURCES "/emuladores.tsv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(finder::TablaDelPrograma().toUtf8(), file.readAll());
}
