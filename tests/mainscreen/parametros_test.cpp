// Parameters of a ROM: the box, and Zembro.rom byte for byte.

#include "accionestest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

using ParametrosTest = AccionesTest;

TEST_F(ParametrosTest, ParametersAreAddedChangedAndRemoved)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 0);
    answer(
        u"-full"_s, [&] { parametersMenu(); }, u""_s);
    QByteArray expected = before;
    expected.replace("Parametros especificos\r\n", "Parametros especificos\r\nONE.NES,Zeta,Uno,-full\r\n");
    EXPECT_EQ(notes(), expected);
    answer(
        u"-small"_s, [&] { parametersMenu(); }, u"-full"_s);
    expected.replace("-full", "-small");
    EXPECT_EQ(notes(), expected);
    answer(
        u""_s, [&] { parametersMenu(); }, u"-small"_s);
    EXPECT_EQ(notes(), before);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(ParametrosTest, ParametersOfAROMWithoutANoteHaveItsNameAsKey)
{
    startAt(Zeta, 0);
    addWords();
    clickRow(list(), 1);
    answer(
        u"-x"_s, [&] { parametersMenu(); }, u""_s);
    EXPECT_TRUE(notes().contains("two.nes,Zeta,Uno,-x\r\n"));
    answer(
        u"-x"_s, [&] { parametersMenu(); }, u"-x"_s);
}

TEST_F(ParametrosTest, ItIsSaidWhereParametersWouldNotBeFound)
{
    files.write(u"zeta/two games.nes"_s, "x");
    startAt(Zeta, 0);
    addWords();
    const auto words = [this](const QString &entry) {
        list().SetText(entry);
        EXPECT_EQ(list().Text(), entry);
        QString shown;
        atModal(u"Caja"_s, [&shown](forms::Form &form) {
            shown = controlOf<forms::Label>(form, u"Texto1"_s).Caption();
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
        portada->Menu_Parametros->Click.raise();
        return shown;
    };
    EXPECT_EQ(words(u"two games.nes"_s), M->Palabras.Zem_PideNota);
    EXPECT_EQ(words(u"two.nes"_s), u"Añade:"_s);
    EXPECT_EQ(words(u"Juego uno"_s), u"Añade:"_s);
}

TEST_F(ParametrosTest, ParametersOfAllEmulatorsBecomeTheNewRecord)
{
    QByteArray text = notes();
    text.replace("Parametros especificos\r\n",
        "Parametros especificos\r\none.nes,Zeta,Otro,-a\r\nONE.NES,ZETA,UNO,-b\r\nTWO.NES,Zeta,Uno,-c\r\n");
    files.write(u"Zembro.rom"_s, text);
    startAt(Zeta, 0);
    addWords();
    clickRow(list(), 0);
    answer(
        u"-new"_s, [&] { parametersMenu(); }, u"-b"_s);
    EXPECT_TRUE(
        notes().contains("Parametros especificos\r\nONE.NES,Zeta,Uno,-new\r\nONE.NES,Zeta,Uno,-new\r\n"
                         "TWO.NES,Zeta,Uno,-c\r\n"));
}

TEST_F(ParametrosTest, UnchangedOrRefusedParametersRewriteNothing)
{
    startAt(Zeta, 0);
    addWords();
    files.write(u"Zembro.tmp"_s, "left over");
    answer(
        u""_s, [&] { parametersMenu(); }, u""_s);
    goBack(u"-x"_s, [&] { parametersMenu(); });
    EXPECT_EQ(files.read(u"Zembro.tmp"_s), "left over");
}

TEST_F(ParametrosTest, ParametersWithoutTheirSectionAreFatal)
{
    startAt(Zeta, 0);
    files.write(u"Zembro.rom"_s, "Zeta\r\n'\r\n");
    const auto end = endOf([&] { parametersMenu(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"Zembro.rom"_s));
    EXPECT_EQ(files.read(u"Zembro.rom"_s), "Zeta\r\n'\r\n");
}

// Names of a catalogue written by hand, too.
TEST_F(ParametrosTest, ParametersUnderANameThatWouldNotComeBackAreRefusedWithAWord)
{
    for (const bool emulator : { false, true }) {
        auto &system = systemsOfCatalogue[ZetaSystem];
        (emulator ? system.emulators[0].name : system.name) = u"Zeta \"AGA\", CD32"_s;
        files.writeCatalogue(systemsOfCatalogue);
        files.writeNotes({ { system.name, {} }, { u"alfa"_s, {} } });
        renew();
        start();
        systems().SetText(system.name);
        emulators().SetText(system.emulators[0].name);
        addWords();
        const QByteArray before = notes();
        QStringList told;
        answer(
            u"-x"_s,
            [&] {
                atModal(u"Caja"_s, [&](forms::Form &form) {
                    told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
                    click(controlOf<QWidget>(form, u"Flecha2"_s));
                });
                portada->Menu_Parametros->Click.raise();
            },
            u""_s);
        EXPECT_THAT(
            told, ElementsAre(u"Sin anotar"_s, u"El nombre de sistema o emulador no se puede anotar."_s));
        EXPECT_EQ(notes(), before);
        system.name = u"Zeta"_s;
    }
}

TEST_F(ParametrosTest, ParametersUnderANameWithACommaOrQuotesComeBack)
{
    systemsOfCatalogue[ZetaSystem].emulators[0].name = u"Uno \"AGA\""_s;
    systemsOfCatalogue[ZetaSystem].name = u"Zeta, CD32 "_s;
    files.writeCatalogue(systemsOfCatalogue);
    files.writeNotes({ { u"Zeta, CD32 "_s, {} }, { u"alfa"_s, {} } });
    renew();
    start();
    systems().SetText(u"Zeta, CD32 "_s);
    emulators().SetText(u"Uno \"AGA\""_s);
    addWords();
    answer(
        u"-x"_s, [&] { portada->Menu_Parametros->Click.raise(); }, u""_s);
    EXPECT_TRUE(notes().contains(",\"Zeta, CD32 \",Uno \"AGA\",-x\r\n"));
    answer(
        u"-x"_s, [&] { portada->Menu_Parametros->Click.raise(); }, u"-x"_s);
}

TEST_F(ParametrosTest, BoxOfTheParametersHasItsWords)
{
    startAt(Zeta, 0);
    addWords();
    bool shown = false;
    atModal(u"Caja"_s, [&](forms::Form &form) {
        shown = true;
        EXPECT_EQ(form.Caption(), u"Parámetros"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto1"_s).Caption(), u"Añade:"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Aceptar"_s).Caption(), u"Aceptar"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Volver"_s).Caption(), u"Volver"_s);
        click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    parametersMenu();
    EXPECT_TRUE(shown);
}

TEST_F(ParametrosTest, ParametersThatCannotBeWrittenAreFatalAndLoseNothing)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    files.makeDirectory(u"Zembro.tmp"_s);
    const auto end = endOf([&] {
        answer(
            u"-x"_s, [&] { parametersMenu(); }, u""_s);
    });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"Zembro.rom"_s));
    EXPECT_EQ(notes(), before);
}

TEST_F(ParametrosTest, ParametersThatWouldComeBackCutAreRefusedWithAWord)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 0);
    for (const QString &text : { u"-res 640,480"_s, u" \"-config\" x"_s }) {
        QStringList told;
        answer(
            text,
            [&] {
                atModal(u"Caja"_s, [&](forms::Form &form) {
                    told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
                    click(controlOf<QWidget>(form, u"Flecha2"_s));
                });
                parametersMenu();
            },
            u""_s);
        EXPECT_THAT(told, ElementsAre(u"Sin grabar"_s, u"Sin comas, y sin comillas al principio."_s));
        EXPECT_EQ(notes(), before);
    }
    answer(
        u"-config \"x y\""_s, [&] { parametersMenu(); }, u""_s);
    EXPECT_TRUE(notes().contains("ONE.NES,Zeta,Uno,-config \"x y\"\r\n"));
}

TEST_F(ParametrosTest, ParametersWithoutASelectionHaveAnEmptyKey)
{
    startAt(Zeta, 0);
    addWords();
    list().SetListIndex(-1);
    answer(
        u"-x"_s, [&] { portada->Menu_Parametros->Click.raise(); }, u""_s);
    EXPECT_TRUE(notes().contains("Parametros especificos\r\n,Zeta,Uno,-x\r\n"));
}
