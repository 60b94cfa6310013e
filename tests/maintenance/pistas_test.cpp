// The second step over a machine with an emulator: what its empty boxes offer, and what its paths lead to.

#include "configuraciontest.h"

#include "tests/support/desktoptools.h"

#include "core/palabras.h"

#include "forms/checks.h"
#include "forms/colours.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QStringList Boxes { u"Casilla1"_s, u"Casilla2"_s, u"Casilla3"_s, u"Casilla4"_s, u"Casilla5"_s };

// Two emulators of the table that the program brings, which both have parameters there.
class PistasTest : public ConfiguracionTest {
protected:
    PistasTest()
    {
        tools.install(u"advmame"_s);
        tools.install(u"atari800"_s);
        database = "' all\r\n-Atari 5200\r\nWEB1=\r\n*.A52\r\n'\r\n+Atari800\r\nWEB2=\r\n" + Closing
            + "-Arcade\r\nWEB1=\r\n*.ZIP\r\n'\r\n+AdvanceMAME\r\nWEB2=\r\n+Own\r\nWEB2=\r\n" + Closing
            + "[EOF]\r\n";
        notes = "Atari 5200\r\n'\r\nArcade\r\n'\r\n[EOF]\r\nParametros "
                "especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    }

    static forms::TextBox &box(const forms::Form &form, const QString &name)
    {
        return controlOf<forms::TextBox>(form, name);
    }
    static QStringList hints(const forms::Form &form)
    {
        QStringList hints;
        for (const QString &name : Boxes)
            hints += box(form, name).Hint();
        return hints;
    }
    static QStringList texts(const forms::Form &form)
    {
        QStringList texts;
        for (const QString &name : Boxes)
            texts += box(form, name).Text();
        return texts;
    }
    static void takeOver(forms::Form &form, const QString &name)
    {
        click(box(form, name));
        strike(form, Qt::Key_Space, Qt::ControlModifier);
    }
    static bool isRed(const forms::Form &form, const QString &name)
    {
        return box(form, name).palette().color(QPalette::Text) == forms::faultColour();
    }
    static QString told(const forms::Form &form, const QString &name)
    {
        return box(form, name).accessibleDescription();
    }

    DesktopTools tools { files };
};

} // namespace

TEST_F(PistasTest, EmptyBoxesOfferWhatIsKnownOfTheEmulator)
{
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [this](forms::Form &form) {
        EXPECT_THAT(hints(form),
            ElementsAre(u"tools/atari800"_s, u"roms/Atari 5200/"_s, u"capturas/Atari 5200/"_s, u"-5200"_s,
                QString()));
        EXPECT_THAT(texts(form), ElementsAre(QString(), QString(), QString(), QString(), QString()));
        EXPECT_EQ(told(form, u"Casilla4"_s), u"Ctrl+Espacio escribe: -5200");
        EXPECT_EQ(told(form, u"Casilla5"_s), QString());
    });
}

// A hint is never saved, and what is refused with empty boxes is refused with hints in them.
TEST_F(PistasTest, WhatIsNotTakenOverIsSavedAsEmpty)
{
    files.makeDirectory(u"roms/Atari 5200"_s);
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [this](forms::Form &form) {
        atWarning(u"Msg_NoEXE"_s);
        click(controlOf<QWidget>(form, u"Disco1"_s));
        EXPECT_TRUE(form.isVisible());
        takeOver(form, u"Casilla1"_s);
        atWarning(u"Msg_NoDIR"_s);
        click(controlOf<QWidget>(form, u"Disco1"_s));
        EXPECT_TRUE(form.isVisible());
        takeOver(form, u"Casilla2"_s);
        atWarning(u"Msg_NingunaROM"_s);
        click(controlOf<QWidget>(form, u"Disco1"_s));
    });
    EXPECT_EQ(files.read(u"Zembro.emu"_s),
        "' mine\r\n-Atari 5200\r\nWEB1=\r\n*.A52\r\n'\r\n+Atari800\r\nWEB2=\r\nEXE="
        "tools/atari800\r\nXDI=0\r\nROM=roms/Atari 5200/\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n"
            + Closing + "[EOF]\r\n");
}

TEST_F(PistasTest, TheMarksMoveTheBlanksOfTheParameters)
{
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [](forms::Form &form) {
        click(controlOf<QWidget>(form, u"Check4"_s));
        EXPECT_EQ(hints(form)[3], u" -5200");
        click(controlOf<QWidget>(form, u"Check4"_s));
        EXPECT_EQ(hints(form)[3], u"-5200");
    });
}

TEST_F(PistasTest, WithoutTheTableOnlyTheDirectoriesAreKnown)
{
    begin();
    configurePair(u"Arcade"_s, u"Own"_s, [this](forms::Form &form) {
        EXPECT_THAT(hints(form),
            ElementsAre(QString(), u"roms/Arcade/"_s, u"capturas/Arcade/"_s, QString(), QString()));
    });
}

// Started by its link, it finds the games by a name without capitals.
TEST_F(PistasTest, AnEmulatorThatGetsBareNamesIsOfferedByItsLink)
{
    files.write(u"arranque/AdvanceMAME/advmame"_s, "x");
    begin();
    configurePair(u"Arcade"_s, u"AdvanceMAME"_s, [this](forms::Form &form) {
        EXPECT_EQ(hints(form)[0], u"arranque/AdvanceMAME/advmame");
        EXPECT_EQ(hints(form)[3], u"-dir_rom roms");
    });
}

TEST_F(PistasTest, APathThatLeadsNowhereIsRedAsItIsTyped)
{
    files.makeDirectory(u"Games"_s);
    files.write(u"emu"_s, "x");
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [this](forms::Form &form) {
        for (const QString &name : { u"Casilla1"_s, u"Casilla2"_s, u"Casilla3"_s }) {
            const bool program = name == u"Casilla1";
            const QString there = files.path(program ? u"EMU"_s : u"games"_s);
            EXPECT_FALSE(isRed(form, name)) << "empty";
            write(form, name, there.chopped(1));
            EXPECT_TRUE(isRed(form, name)) << name.toStdString();
            EXPECT_TRUE(told(form, name).startsWith(u"No se encuentra en este ordenador."));
            type(form, there.right(1));
            EXPECT_FALSE(isRed(form, name)) << name.toStdString();
            EXPECT_FALSE(told(form, name).contains(u"No se encuentra"));
            type(form, u"x"_s);
            EXPECT_TRUE(isRed(form, name)) << name.toStdString();
        }
        write(form, u"Casilla4"_s, u"/no/such"_s);
        EXPECT_FALSE(isRed(form, u"Casilla4"_s));
    });
}

TEST_F(PistasTest, APathFromTheProgramsDirectoryIsJudgedThere)
{
    files.makeDirectory(u"Games"_s);
    files.write(u"bin/emu"_s, "x");
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [](forms::Form &form) {
        for (const auto &[name, there, gone] : { std::tuple(u"Casilla1"_s, u"bin\\EMU"_s, u"emu"_s),
                 std::tuple(u"Casilla2"_s, u"games"_s, u"bin/emu"_s),
                 std::tuple(u"Casilla3"_s, u"Games\\"_s, u"C:games"_s) }) {
            write(form, name, gone);
            EXPECT_TRUE(isRed(form, name)) << name.toStdString();
            write(form, name, there);
            EXPECT_FALSE(isRed(form, name)) << name.toStdString();
        }
    });
}

TEST_F(PistasTest, APathOfTheCatalogueIsJudgedAtOnce)
{
    files.makeDirectory(u"roms"_s);
    catalogue = "' mine\r\n-Arcade\r\nWEB1=\r\n*.ZIP\r\n'\r\n+Own\r\nWEB2=\r\nEXE=/no/such\r\nXDI=3\r\nROM="
        + files.path(u"roms/"_s).toUtf8() + "\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n" + Closing + "[EOF]\r\n";
    begin();
    configurePair(u"Arcade"_s, u"Own"_s, [](forms::Form &form) {
        EXPECT_TRUE(isRed(form, u"Casilla1"_s));
        EXPECT_FALSE(isRed(form, u"Casilla2"_s));
        EXPECT_FALSE(isRed(form, u"Casilla3"_s));
    });
}

// Its letters alone say that it isn't there: it is saved all the same.
TEST_F(PistasTest, ARedPathIsSaved)
{
    begin();
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/no/such"_s);
        write(form, u"Casilla2"_s, u"/none"_s);
        atWarning(u"Msg_NingunaROM"_s);
        click(controlOf<QWidget>(form, u"Disco1"_s));
    });
    EXPECT_TRUE(files.read(u"Zembro.emu"_s).contains("EXE=/no/such\r\nXDI=0\r\nROM=/none/\r\n"));
}

TEST_F(PistasTest, WordsAreThoseOfTheLanguage)
{
    begin();
    M->Palabras.Zem_Pista = u"%2 by %1 <b>"_s;
    M->Palabras.Zem_NoEsta = u"Gone."_s;
    configurePair(u"Atari 5200"_s, u"Atari800"_s, [](forms::Form &form) {
        EXPECT_EQ(told(form, u"Casilla4"_s), u"-5200 by Ctrl+Espacio <b>");
        write(form, u"Casilla1"_s, u"/x"_s);
        EXPECT_EQ(told(form, u"Casilla1"_s), u"Gone.");
    });
}
