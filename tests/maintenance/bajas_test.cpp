// The two small buttons that take a system or an emulator out of the catalogue: the question, the file, and
// what the screen shows then.

#include "tests/support/ordinaryuser.h"
#include "tests/support/portadatest.h"

#include "maintenance/bajas.h"

#include <memory>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QByteArray Closing = "'----------------------------------------------------------------------\r\n";
const QByteArray Top = "' caf\xE9\n";
const QByteArray End = "[EOF]\r\nlast";

class BajasTest : public PortadaTest {
protected:
    BajasTest()
    {
        files.writeLines(u"LNG/ZB-ESP.LNG"_s,
            languageLines()
                + QStringList { languageLine(u"Msg_BorrarSis0"_s, u"Borrar sistema"_s),
                    languageLine(u"Msg_BorrarSis1"_s, u"Se borra "_s),
                    languageLine(u"Msg_BorrarEmu0"_s, u"Borrar emulador"_s),
                    languageLine(u"Msg_BorrarEmu1"_s, u"Se quita "_s) });
        for (const QString &game : { u"a/one.rom"_s, u"b/two.rom"_s, u"b/three.rom"_s })
            files.writeSize(game, 2048);
        files.writeGif(u"cap/ONE.GIF"_s, Qt::red);
        // A system without a block of notes would leave its file open.
        files.writeNotes({ { u"Alfa"_s, {} }, { u"beta"_s, {} }, { u"Gamma"_s, {} }, { u"Delta"_s, {} },
            { u"One"_s, {} }, { u"Two"_s, {} } });
    }

    QByteArray block(const QByteArray &name, const QString &roms, const QByteArray &type = "0") const
    {
        return "'\r\n+" + name + "\r\nWEB2=\r\nEXE=/bin/emu\r\nXDI=" + type
            + "\r\nROM=" + files.path(roms).toUtf8() + "\r\nIMG=" + files.path(u"cap/"_s).toUtf8()
            + "\r\nPAR1=\r\nPAR2=\r\n";
    }

    static QByteArray system(const QByteArray &name, const QByteArray &blocks)
    {
        return '-' + name + "\r\nWEB1=http://w\r\n*.ROM\r\n*.ZIP\r\n" + blocks + Closing;
    }

    // Starts over this catalogue with these places in the sorted lists selected.
    void begin(const QByteArray &catalogue, int systemAt, int emulatorAt)
    {
        files.write(u"Zembro.emu"_s, catalogue);
        Settings settings;
        settings.LastSisUsed = QString::number(systemAt);
        settings.LastEmuUsed = QString::number(emulatorAt);
        files.writeSettings(settings);
        m_others = otherFiles();
        m_bajas = std::make_unique<maintenance::Bajas>(*M, *portada);
        start();
    }

    // Presses a button, and answers the question that comes.
    void remove(const QString &button, const QString &answer = u"Aceptar2"_s)
    {
        atModal(u"Caja"_s, [this, answer](forms::Form &box) {
            m_title = box.Caption();
            m_question = controlOf<forms::Label>(box, u"Texto1"_s).Caption();
            m_answers = { controlOf<forms::Label>(box, u"TXT_Aceptar"_s).Caption(),
                controlOf<forms::Label>(box, u"TXT_Volver"_s).Caption() };
            click(controlOf<QWidget>(box, answer));
        });
        click(control(button));
    }
    void removeSystem() { remove(u"Menos2a"_s); }
    void removeEmulator() { remove(u"Menos2b"_s); }

    QByteArray catalogue()
    {
        EXPECT_EQ(otherFiles(), m_others); // they never change
        return files.read(u"Zembro.emu"_s);
    }

    void expectNothingToPlay()
    {
        EXPECT_THAT(listed(), IsEmpty());
        EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
        EXPECT_EQ(word(), u"-----"_s);
        EXPECT_FALSE(control(u"Graf_Imagen"_s).isHidden());
        EXPECT_EQ(capture(), QColor(Qt::black));
        EXPECT_EQ(zoomed(), QColor(Qt::black));
    }

    const QByteArray Alfa =
        system("Alfa", block("A1", u"a/"_s) + block("A2", u"b/"_s) + block("A3", u"a/"_s));
    const QByteArray Beta = system("beta", block("B1", u"b/"_s));
    const QByteArray Gamma = system("Gamma", block("G1", u"a/"_s) + block("G2", u"b/"_s));

    QString m_title;
    QString m_question;
    QStringList m_answers;

private:
    QByteArray otherFiles() const { return files.read(u"Zembro.sye"_s) + files.read(u"Zembro.rom"_s); }

    QByteArray m_others;
    std::unique_ptr<maintenance::Bajas> m_bajas;
};

} // namespace

TEST_F(BajasTest, TheQuestionNamesTheSystem)
{
    begin(Top + Gamma + Beta + Alfa + End, 1, 0);
    removeSystem();
    EXPECT_EQ(m_title, u"Borrar sistema"_s);
    EXPECT_EQ(m_question, u"Se borra beta?"_s);
    EXPECT_THAT(m_answers, ElementsAre(u"Aceptar"_s, u"Volver"_s));
}

TEST_F(BajasTest, TheQuestionNamesTheEmulator)
{
    begin(Top + Gamma + Beta + Alfa + End, 2, 1);
    removeEmulator();
    EXPECT_EQ(m_title, u"Borrar emulador"_s);
    EXPECT_EQ(m_question, u"Se quita G2?"_s);
    EXPECT_THAT(m_answers, ElementsAre(u"Aceptar"_s, u"Volver"_s));
}

TEST_F(BajasTest, GoingBackChangesNothingAndGivesTheComboTheFocus)
{
    const QByteArray before = Top + Gamma + Beta + Alfa + End;
    begin(before, 1, 0);
    for (const auto &[button, combo] :
        { std::pair { u"Menos2a"_s, u"Combo1"_s }, std::pair { u"Menos2b"_s, u"Combo2"_s } }) {
        list().setFocus();
        remove(button, u"Flecha2"_s);
        EXPECT_EQ(focused(), combo);
        EXPECT_EQ(catalogue(), before);
        EXPECT_EQ(systems().Text(), u"beta"_s);
        EXPECT_EQ(emulators().Text(), u"B1"_s);
        EXPECT_THAT(listed(), ElementsAre(u"three.rom"_s, u"two.rom"_s));
        EXPECT_EQ(word(), u"Jugar"_s);
    }
}

TEST_F(BajasTest, WhereNothingCanBeWrittenItIsTold_AndNothingGoes)
{
    begin(Top + Gamma + Beta + Alfa + End, 2, 1);
    const QByteArray before = catalogue();
    const QStringList games = listed();
    QStringList told;
    for (const QString &button : { u"Menos2b"_s, u"Menos2a"_s }) {
        atModal(u"Caja"_s, [](forms::Form &box) { click(controlOf<QWidget>(box, u"Aceptar2"_s)); });
        atModal(u"Caja"_s, [&told](forms::Form &box) {
            told << controlOf<forms::Label>(box, u"Texto2"_s).Caption();
            click(controlOf<QWidget>(box, u"Flecha2"_s));
        });
        const AsOrdinaryUser user(files.path());
        click(control(button));
    }
    const QString words = u"No se puede escribir en el directorio del programa."_s;
    EXPECT_THAT(told, ElementsAre(words, words));
    EXPECT_EQ(catalogue(), before);
    EXPECT_EQ(systems().Text(), u"Gamma"_s);
    EXPECT_EQ(emulators().Text(), u"G2"_s);
    EXPECT_EQ(listed(), games);
}

TEST_F(BajasTest, TheFirstSystemGivesWayToTheNewFirst)
{
    begin(Top + Alfa + Gamma + End, 0, 0);
    removeSystem();
    EXPECT_EQ(catalogue(), Top + Gamma + End);
    EXPECT_THAT(entries(systems()), ElementsAre(u"Gamma"_s));
    EXPECT_EQ(systems().Text(), u"Gamma"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"G1"_s, u"G2"_s));
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(BajasTest, TheLastSystemGivesWayToTheNewLast)
{
    begin(Top + Gamma + Alfa + End, 1, 1);
    removeSystem();
    EXPECT_EQ(catalogue(), Top + Alfa + End);
    EXPECT_EQ(systems().Text(), u"Alfa"_s);
    EXPECT_EQ(emulators().Text(), QString());
}

TEST_F(BajasTest, ASystemInTheMiddleGivesWayToItsSuccessor)
{
    begin(Top + Beta + Gamma + Alfa + End, 1, 0);
    removeSystem();
    EXPECT_EQ(catalogue(), Top + Gamma + Alfa + End);
    EXPECT_EQ(systems().Text(), u"Gamma"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_EQ(M->UltimoSistema, u"1"_s);
    EXPECT_EQ(M->UltimoEmulador, u"696969"_s);
}

TEST_F(BajasTest, TheOneEmulatorOfTheNewSystemIsSelectedAndListed)
{
    begin(Top + Beta + Alfa + End, 0, 0);
    ASSERT_THAT(listed(), ElementsAre(u"one.rom"_s));
    removeSystem();
    EXPECT_EQ(systems().Text(), u"beta"_s);
    EXPECT_EQ(emulators().Text(), u"B1"_s);
    EXPECT_THAT(listed(), ElementsAre(u"three.rom"_s, u"two.rom"_s));
    EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(BajasTest, TheOnlySystemLeavesNothing)
{
    begin(Top + Alfa + End, 0, 0);
    ASSERT_EQ(capture(), QColor(Qt::red));
    control(u"Graf_Imagen"_s).hide();
    removeSystem();
    EXPECT_EQ(catalogue(), Top + End);
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_THAT(entries(emulators()), IsEmpty());
    expectNothingToPlay();
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(BajasTest, WithoutASystemNothingIsAsked)
{
    begin(Top + End, 0, 0);
    control<forms::Label>(u"TXT_InfoRoms"_s).SetCaption(u"x"_s);
    control<forms::Label>(u"TXT_Boton"_s).SetCaption(u"x"_s);
    click(control(u"Menos2a"_s));
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(focused(), u"Combo1"_s);
    EXPECT_EQ(catalogue(), Top + End);
}

TEST_F(BajasTest, WithoutAnEmulatorNothingIsAsked)
{
    begin(Top + Alfa + End, 0, 696969);
    click(control(u"Menos2b"_s));
    EXPECT_EQ(focused(), u"Combo2"_s);
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(catalogue(), Top + Alfa + End);
}

TEST_F(BajasTest, TheOnlyEmulatorLeavesAnEmptySystem)
{
    begin(Top + Beta + Gamma + End, 0, 0);
    control(u"Graf_Imagen"_s).hide();
    removeEmulator();
    EXPECT_EQ(catalogue(), Top + system("beta", "") + Gamma + End);
    EXPECT_THAT(entries(systems()), ElementsAre(u"beta"_s, u"Gamma"_s));
    EXPECT_EQ(systems().Text(), u"beta"_s);
    EXPECT_THAT(entries(emulators()), IsEmpty());
    expectNothingToPlay();
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(focused(), u"Combo2"_s);
    EXPECT_EQ(M->UltimoSistema, u"0"_s);
    EXPECT_EQ(M->UltimoEmulador, u"696969"_s);
}

TEST_F(BajasTest, TheOnlyEmulatorTakesTheFirstSlotOfTheRomLines_WhereNoneWasInUse)
{
    begin(Top + Beta + Gamma + End, 0, 0);
    M->IndiceRutas = 0;
    M->RutasROM(1) = u"ROM=/OLD/"_s;
    removeEmulator();
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), QString());
}

TEST_F(BajasTest, TheNextEmulatorIsListed_AfterTheOnlyOneOfTheSameDirectoryHasGone)
{
    const QByteArray delta = system("Delta", block("D1", u"b/"_s));
    begin(Top + delta + Beta + End, 0, 0);
    removeEmulator();
    ASSERT_THAT(listed(), IsEmpty());
    pick(systems(), u"Delta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"three.rom"_s, u"two.rom"_s));
}

TEST_F(BajasTest, BehindAnEmptySystemTheNextOneOfTheFileListsNothing)
{
    const QByteArray delta = system("Delta", block("D1", u"b/"_s));
    begin(Top + Beta + delta + End, 0, 0);
    removeEmulator();
    pick(systems(), u"Delta"_s);
    EXPECT_EQ(emulators().Text(), u"D1"_s);
    EXPECT_THAT(listed(), IsEmpty()); // its extensions stand further back, and it has none
}

TEST_F(BajasTest, AnEmptySystemIsRemovedByItsOwnButtonAlone)
{
    begin(Top + Beta + Gamma + End, 0, 0);
    removeEmulator();
    click(control(u"Menos2b"_s));
    removeSystem();
    EXPECT_EQ(catalogue(), Top + Gamma + End);
    EXPECT_THAT(entries(systems()), ElementsAre(u"Gamma"_s));
}

TEST_F(BajasTest, OfThreeEmulatorsAnyCanGo_AndNoneIsSelectedThen)
{
    const QByteArray blocks[] = { block("A1", u"a/"_s), block("A2", u"b/"_s), block("A3", u"a/"_s) };
    const QByteArray rest[] = { blocks[1] + blocks[2], blocks[0] + blocks[2], blocks[0] + blocks[1] };
    for (int i = 0; i < 3; ++i) {
        renew();
        begin(Top + Beta + Alfa + Gamma + End, 0, i);
        ASSERT_EQ(emulators().Text(), u"A%1"_s.arg(i + 1));
        control(u"Graf_Imagen"_s).hide();
        removeEmulator();
        EXPECT_EQ(catalogue(), Top + Beta + system("Alfa", rest[i]) + Gamma + End) << i;
        EXPECT_EQ(systems().Text(), u"Alfa"_s);
        EXPECT_EQ(emulators().ListCount(), 2);
        EXPECT_EQ(emulators().Text(), QString());
        expectNothingToPlay();
        EXPECT_EQ(focused(), u"Combo2"_s);
        EXPECT_EQ(M->UltimoEmulador, u"696969"_s);
    }
}

TEST_F(BajasTest, TheOrderOfTheFileSaysWhichEmulatorIsTheLast)
{
    const QByteArray zeta = block("Zeta", u"a/"_s);
    const QByteArray eta = block("eta", u"b/"_s);
    const QByteArray mu = block("Mu", u"b/"_s);
    begin(Top + system("Delta", zeta + eta + mu) + Beta + End, 1, 2);
    ASSERT_EQ(emulators().Text(), u"Zeta"_s);
    removeEmulator();
    EXPECT_EQ(catalogue(), Top + system("Delta", eta + mu) + Beta + End);
    pick(emulators(), u"Mu"_s);
    removeEmulator();
    EXPECT_EQ(catalogue(), Top + system("Delta", eta) + Beta + End);
}

TEST_F(BajasTest, OfTwoEmulatorsTheOtherIsSelectedAndListed)
{
    for (const int gone : { 0, 1 }) {
        renew();
        begin(Top + Gamma + Alfa + End, 1, gone);
        removeEmulator();
        EXPECT_EQ(catalogue(),
            Top + system("Gamma", gone == 0 ? block("G2", u"b/"_s) : block("G1", u"a/"_s)) + Alfa + End);
        EXPECT_EQ(systems().Text(), u"Gamma"_s);
        EXPECT_EQ(emulators().Text(), gone == 0 ? u"G2"_s : u"G1"_s);
        EXPECT_EQ(listed().size(), gone == 0 ? 2 : 1);
        EXPECT_EQ(word(), u"Jugar"_s);
        EXPECT_EQ(focused(), u"Combo2"_s);
        EXPECT_EQ(M->UltimoEmulador, u"0"_s);
    }
}

TEST_F(BajasTest, TheOtherEmulatorIsntListed_WhereTheTwoRomLinesRememberedAreItsOwn)
{
    begin(Top + system("Delta", block("E1", u"b/"_s) + block("E2", u"b/"_s, "5")) + End, 0, 0);
    pick(emulators(), u"E2"_s);
    ASSERT_EQ(M->RutasROM(1), M->RutasROM(2));
    files.writeSize(u"b/four.rom"_s, 1024);
    removeEmulator();
    EXPECT_EQ(emulators().Text(), u"E1"_s);
    EXPECT_THAT(listed(), ElementsAre(u"three.rom"_s, u"two.rom"_s));
}

TEST_F(BajasTest, TheRomLineOfTheOtherEmulatorIsRemembered)
{
    begin(Top + Gamma + End, 0, 0);
    pick(emulators(), u"G2"_s);
    ASSERT_EQ(M->IndiceRutas, 0);
    removeEmulator();
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), u"ROM="_s + files.path(u"a/"_s).toUpper());
    EXPECT_EQ(M->RutasROM(2), u"ROM="_s + files.path(u"b/"_s).toUpper());
    EXPECT_THAT(listed(), ElementsAre(u"one.rom"_s));
}

TEST_F(BajasTest, OfTwoEmulatorsOfOneNameTheFirstInTheFileGoes)
{
    const QByteArray e = block("E", u"a/"_s);
    begin(
        Top + system("One", e + block("O2", u"b/"_s)) + system("Two", e + block("T2", u"b/"_s)) + End, 1, 0);
    ASSERT_EQ(emulators().Text(), u"E"_s);
    removeEmulator();
    EXPECT_EQ(catalogue(),
        Top + system("One", block("O2", u"b/"_s)) + system("Two", e + block("T2", u"b/"_s)) + End);
    EXPECT_EQ(systems().Text(), u"Two"_s);
}

TEST_F(BajasTest, AFullTableOfSystemsEndsTheProgram_AndTheCatalogueStays)
{
    QByteArray before = Top;
    for (int i = 0; i < 151; ++i)
        before += system("S" + QByteArray::number(i).rightJustified(3, '0'), block("E", u"a/"_s));
    begin(before + End, 0, 0);
    for (const QString &button : { u"Menos2a"_s, u"Menos2b"_s }) {
        const std::optional<ProcessEnd> end = endOf([&] { click(control(button)); });
        ASSERT_TRUE(end);
        EXPECT_EQ(end->status, 1);
        EXPECT_THAT(end->text.toStdString(), testing::HasSubstr("(ERR9)"));
    }
    EXPECT_EQ(catalogue(), before + End);
}

TEST_F(BajasTest, ANumberInUseEndsTheProgram_AndTheCatalogueStays)
{
    begin(Top + Gamma + End, 0, 0);
    M->Ficheros.openForInput(1, files.path(u"Zembro.cfg"_s));
    const std::optional<ProcessEnd> end = endOf([this] { removeSystem(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_THAT(end->text.toStdString(), testing::HasSubstr("Zembro.emu"));
    EXPECT_EQ(catalogue(), Top + Gamma + End);
}

TEST_F(BajasTest, AnEmptyCatalogueEndsTheProgram)
{
    begin(Top + system("One", block("O", u"a/"_s)) + End, 0, 0);
    files.write(u"Zembro.emu"_s, {});
    const std::optional<ProcessEnd> end = endOf([this] { removeSystem(); });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), testing::HasSubstr("(ERR62)"));
}
