// Throwing a ROM away, describing it, giving it parameters: what the list shows then, and Zembro.rom byte for
// byte.

#include "mundotest.h"

#include <QDir>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class AccionesTest : public MundoTest {
protected:
    AccionesTest()
    {
        files.makeDirectory(u"home"_s);
        qputenv("HOME", files.path(u"home"_s).toUtf8());
        qputenv("XDG_DATA_HOME", files.path(u"home"_s).toUtf8());
    }
    ~AccionesTest() override
    {
        qputenv("HOME", m_home);
        qunsetenv("XDG_DATA_HOME");
    }
    void addWords()
    {
        M->Msg_Descripcion0 = u"Descripción"_s;
        M->Msg_Descripcion1 = u"Describe:"_s;
        M->Msg_Parametros0 = u"Parámetros"_s;
        M->Msg_Parametros1 = u"Añade:"_s;
    }
    QStringList trashed() const
    {
        return QDir(files.path(u"home/Trash/files"_s))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    // Runs the action and answers its input box.
    void answer(const QString &text, const std::function<void()> &action, const QString &offered)
    {
        bool shown = false;
        atModal(u"Caja"_s, [&, text](forms::Form &form) {
            shown = true;
            EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla"_s).Text(), offered);
            controlOf<forms::TextBox>(form, u"Casilla"_s).SetText(text);
            click(controlOf<QWidget>(form, u"Aceptar2"_s));
        });
        action();
        EXPECT_TRUE(shown);
    }
    void goBack(const QString &text, const std::function<void()> &action)
    {
        atModal(u"Caja"_s, [text](forms::Form &form) {
            controlOf<forms::TextBox>(form, u"Casilla"_s).SetText(text);
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
        action();
    }
    // The title and the words of the warning that the action shows.
    QStringList toldBy(const std::function<void()> &action)
    {
        QStringList told;
        atModal(u"Caja"_s, [&](forms::Form &form) {
            told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
        action();
        return told;
    }
    void describe() { click(control(u"BotonA2"_s)); }
    void discard() { click(control(u"BotonB2"_s)); }
    void parametersMenu()
    {
        EXPECT_TRUE(popsUp(
            *portada->Menu_Lista1, [&] { clickRow(list(), 0, Qt::RightButton); },
            portada->Menu_Parametros->action()));
    }
    QByteArray notes() const { return files.read(u"Zembro.rom"_s); }
    void setType(size_t system, const QString &type)
    {
        systemsOfCatalogue[system].emulators[0].type = type;
        files.writeCatalogue(systemsOfCatalogue);
    }

private:
    QByteArray m_home = qgetenv("HOME");
};

constexpr size_t ZetaSystem = 0;

} // namespace

TEST_F(AccionesTest, ROMGoesToTheTrashAfterAQuestionThatNamesIt)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(questions.asked, ElementsAre(u"Papelera"_s, u"¿Mover a la papelera?\n\ntwo.nes"_s));
    EXPECT_THAT(trashed(), ElementsAre(u"two.nes"_s));
    EXPECT_FALSE(files.exists(u"zeta/two.nes"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s));
    EXPECT_EQ(list().Text(), u"Juego uno"_s);
    EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
}

TEST_F(AccionesTest, RefusedROMStaysWithListAndSelection)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    questions.yesNo = { false };
    discard();
    EXPECT_TRUE(files.exists(u"zeta/two.nes"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().ListIndex(), 1);
}

TEST_F(AccionesTest, FirstEntryGivesWayToTheNewFirstAndTheThirdToTheSecond)
{
    for (const QString &name : { u"3.nes"_s, u"4.nes"_s })
        files.writeSize(u"zeta/"_s + name, 10);
    startAt(Zeta, 0);
    ASSERT_THAT(listed(), ElementsAre(u"3.nes"_s, u"4.nes"_s, u"Juego uno"_s, u"two.nes"_s));
    questions.yesNo = { true, true };
    clickRow(list(), 2);
    discard();
    EXPECT_EQ(list().Text(), u"4.nes"_s);
    clickRow(list(), 0);
    discard();
    EXPECT_EQ(list().Text(), u"4.nes"_s);
    EXPECT_THAT(listed(), ElementsAre(u"4.nes"_s, u"two.nes"_s));
}

TEST_F(AccionesTest, ROMWithANoteIsFoundByItsKeyAndTheNotesStay)
{
    startAt(Zeta, 0);
    const QByteArray before = notes();
    questions.yesNo = { true };
    clickRow(list(), 0);
    discard();
    EXPECT_THAT(questions.asked, ElementsAre(u"Papelera"_s, u"¿Mover a la papelera?\n\none.nes"_s));
    EXPECT_THAT(trashed(), ElementsAre(u"one.nes"_s));
    EXPECT_EQ(notes(), before);
    EXPECT_EQ(M->Nota_Texto(0), u"Juego uno"_s);
    EXPECT_EQ(M->Nota_CampoTexto, u"ONE.NES"_s);
}

TEST_F(AccionesTest, ZipWithANoteIsFoundWithItsEnding)
{
    startAt(Alfa, 1);
    ASSERT_THAT(listed(), ElementsAre(u"Un juego"_s));
    M->TipoEmu = u"0"_s; // it is read anew
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(trashed(), ElementsAre(u"game.zip"_s));
    EXPECT_THAT(listed(), ElementsAre());
    EXPECT_EQ(list().ListIndex(), -1);
}

TEST_F(AccionesTest, DirectoryOfAGameGoesLikeAFile)
{
    files.write(u"medio/G2/disk"_s, "x");
    startAt(Medio, 0);
    ASSERT_THAT(listed(), ElementsAre(u"Gran uno"_s, u"G2"_s));
    clickRow(list(), 1);
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(trashed(), ElementsAre(u"G2"_s));
    EXPECT_TRUE(files.exists(u"home/Trash/files/G2/disk"_s));
}

TEST_F(AccionesTest, ROMThatIsGoneLeavesTheListWithoutAQuestion)
{
    startAt(Zeta, 0);
    files.remove(u"zeta/two.nes"_s);
    clickRow(list(), 1);
    discard();
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s));
}

TEST_F(AccionesTest, WithoutATrashTheROMStaysAndItIsSaid)
{
    files.write(u"home/Trash"_s, "in the way");
    startAt(Zeta, 0);
    clickRow(list(), 1);
    questions.yesNo = { true };
    bool told = false;
    atModal(u"Caja"_s, [&](forms::Form &form) {
        told = true;
        EXPECT_EQ(form.Caption(), u"Sin papelera"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(),
            u"La papelera no admite este archivo: se queda donde está."_s);
        click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    discard();
    EXPECT_TRUE(told);
    EXPECT_TRUE(files.exists(u"zeta/two.nes"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(AccionesTest, NothingSelectedOrNoEmulatorNothingHappens)
{
    startAt(Zeta, 0);
    list().SetListIndex(-1);
    for (const QString &button : { u"BotonB2"_s, u"BotonA2"_s })
        click(control(button));
    startWithoutEmulator(Alfa);
    for (const QString &button : { u"BotonB2"_s, u"BotonA2"_s })
        click(control(button));
    EXPECT_TRUE(files.exists(u"zeta/one.nes"_s));
}

TEST_F(AccionesTest, DeleteInsertMenuAndButtonsDoTheSame)
{
    startAt(Zeta, 0);
    addWords();
    list().setFocus();
    questions.yesNo = { false, false };
    strike(*portada, Qt::Key_Delete);
    EXPECT_TRUE(popsUp(
        *portada->Menu_Lista1, [&] { clickRow(list(), 0, Qt::RightButton); },
        portada->Menu_Borrar->action()));
    EXPECT_EQ(questions.asked.size(), 4);
    goBack(u"x"_s, [&] { strike(*portada, Qt::Key_Insert); });
    goBack(u"x"_s, [&] {
        popsUp(
            *portada->Menu_Lista1, [&] { clickRow(list(), 0, Qt::RightButton); },
            portada->Menu_Describir->action());
    });
}

TEST_F(AccionesTest, FirstDescriptionIsTheNewestRecordOfItsBlock)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 1);
    atModal(u"Caja"_s, [&](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"Descripción"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto1"_s).Caption(), u"Describe:"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Aceptar"_s).Caption(), u"Aceptar"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Volver"_s).Caption(), u"Volver"_s);
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla"_s).Text(), u"two.nes"_s);
        controlOf<forms::TextBox>(form, u"Casilla"_s).SetText(u"El ñandú"_s);
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    describe();
    QByteArray expected = before;
    expected.replace("Zeta\r\n",
        "Zeta\r\nTWO.NES,\"El \xF1"
        "and\xFA\"\r\n");
    EXPECT_EQ(notes(), expected);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"El ñandú"_s));
    EXPECT_EQ(list().Text(), u"El ñandú"_s);
    EXPECT_EQ(focused(), u"Lista1"_s);
    EXPECT_EQ(M->Nota_Clave(0), u"TWO.NES"_s);
    EXPECT_EQ(M->Nota_Texto(0), u"El ñandú"_s);
}

TEST_F(AccionesTest, SelectionAfterADescriptionRunsWithTheOldNotes)
{
    startAt(Medio, 0);
    addWords();
    clickRow(list(), 1);
    answer(
        u"gran dos"_s, [&] { describe(); }, u"G2"_s);
    EXPECT_EQ(info(), u"GRAN DOS [DIR]"_s);
    EXPECT_EQ(M->Nota_Clave(0), u"G2"_s);
}

TEST_F(AccionesTest, ChangedDescriptionKeepsItsKeyAndPlaceInTheFileAndGoesToTheEndOfTheList)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 0);
    answer(
        u"Otro"_s, [&] { describe(); }, u"Juego uno"_s);
    QByteArray expected = before;
    expected.replace("ONE.NES,\"Juego uno\"", "ONE.NES,\"Otro\"");
    EXPECT_EQ(notes(), expected);
    EXPECT_THAT(listed(), ElementsAre(u"two.nes"_s, u"Otro"_s));
    EXPECT_EQ(M->ArchivoExaminar, u"ONE.NES"_s);
}

TEST_F(AccionesTest, SameDescriptionTypedBackRewritesNothing)
{
    startAt(Zeta, 0);
    addWords();
    files.write(u"Zembro.tmp"_s, "left over");
    answer(
        u"Juego uno"_s, [&] { describe(); }, u"Juego uno"_s);
    goBack(u"Otro"_s, [&] { describe(); });
    EXPECT_EQ(files.read(u"Zembro.tmp"_s), "left over");
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(AccionesTest, EmptyDescriptionIsLegal)
{
    startAt(Zeta, 0);
    addWords();
    answer(
        u""_s, [&] { describe(); }, u"Juego uno"_s);
    EXPECT_TRUE(notes().contains("ONE.NES,\"\"\r\n"));
    EXPECT_THAT(listed(), ElementsAre(u"two.nes"_s, u""_s));
}

TEST_F(AccionesTest, KeyOfAZipLosesFourCharactersAlsoWhereTheyAreNoEnding)
{
    files.writeSize(u"alfazip/other.zip"_s, 10);
    startAt(Alfa, 1);
    addWords();
    clickRow(list(), 1);
    answer(
        u"Otro"_s, [&] { describe(); }, u"other.zip"_s);
    EXPECT_TRUE(notes().contains("alfa\r\nOTHER,\"Otro\"\r\n"));
}

TEST_F(AccionesTest, TypesFiveToEightShareTheKeysOfZeroToThree)
{
    const std::pair<QString, QByteArray> keys[] = { { u"0"_s, "TWO.NES" }, { u"5"_s, "TWO.NES" },
        { u"6"_s, "TWO.NES" }, { u"2"_s, "TWO" }, { u"7"_s, "TWO" }, { u"8"_s, "TWO" } };
    const QByteArray original = notes();
    for (const auto &[type, key] : keys) {
        files.write(u"Zembro.rom"_s, original);
        setType(ZetaSystem, u"0"_s);
        renew();
        startAt(Zeta, 0);
        addWords();
        M->Cat_XDI(0, 1) = u"XDI="_s + type;
        list().AddItem(u"two.nes"_s);
        list().SetText(u"two.nes"_s);
        answer(
            u"Dos"_s, [&] { describe(); }, u"two.nes"_s);
        EXPECT_TRUE(notes().contains("\r\n" + key + ",\"Dos\"\r\n")) << type.toStdString();
        EXPECT_EQ(M->TipoEmu, type);
    }
}

TEST_F(AccionesTest, TypeWithoutAKeyWritesNothing)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    M->Cat_XDI(0, 1) = u"XDI=4"_s;
    answer(
        u"Dos"_s, [&] { describe(); }, u"Juego uno"_s);
    EXPECT_EQ(notes(), before);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(AccionesTest, OfTwoROMsWithOneDescriptionTheFirstInTheTableIsMeant)
{
    files.writeNotes({ { u"Zeta"_s, { { u"TWO.NES"_s, u"Gemelo"_s }, { u"ONE.NES"_s, u"Gemelo"_s } } } });
    startAt(Zeta, 0);
    addWords();
    ASSERT_THAT(listed(), ElementsAre(u"Gemelo"_s, u"Gemelo"_s));
    clickRow(list(), 0);
    answer(
        u"-x"_s, [&] { parametersMenu(); }, u""_s);
    EXPECT_TRUE(notes().contains("TWO.NES,Zeta,Uno,-x\r\n"));
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(trashed(), ElementsAre(u"two.nes"_s));
    answer(
        u"Solo"_s, [&] { describe(); }, u"Gemelo"_s);
    EXPECT_TRUE(notes().contains("TWO.NES,\"Solo\"\r\nONE.NES,\"Gemelo\"\r\n"));
}

TEST_F(AccionesTest, DescriptionThatCannotBeWrittenIsFatalAndLosesNothing)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    files.makeDirectory(u"Zembro.tmp"_s);
    clickRow(list(), 1);
    const auto end = endOf([&] {
        answer(
            u"Dos"_s, [&] { describe(); }, u"two.nes"_s);
    });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"Zembro.rom"_s));
    EXPECT_EQ(notes(), before);
}

TEST_F(AccionesTest, ParametersAreAddedChangedAndRemoved)
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

TEST_F(AccionesTest, ParametersOfAROMWithoutANoteHaveItsNameAsKey)
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

TEST_F(AccionesTest, ItIsSaidWhereParametersWouldNotBeFound)
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

TEST_F(AccionesTest, ParametersOfAllEmulatorsBecomeTheNewRecord)
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

TEST_F(AccionesTest, UnchangedOrRefusedParametersRewriteNothing)
{
    startAt(Zeta, 0);
    addWords();
    files.write(u"Zembro.tmp"_s, "left over");
    answer(
        u""_s, [&] { parametersMenu(); }, u""_s);
    goBack(u"-x"_s, [&] { parametersMenu(); });
    EXPECT_EQ(files.read(u"Zembro.tmp"_s), "left over");
}

TEST_F(AccionesTest, ParametersWithoutTheirSectionAreFatal)
{
    startAt(Zeta, 0);
    files.write(u"Zembro.rom"_s, "Zeta\r\n'\r\n");
    const auto end = endOf([&] { parametersMenu(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"Zembro.rom"_s));
    EXPECT_EQ(files.read(u"Zembro.rom"_s), "Zeta\r\n'\r\n");
}

TEST_F(AccionesTest, EntryWithoutANameNeverThrowsTheDirectoryAway)
{
    startAt(Zeta, 0);
    list().AddItem({});
    list().SetText({});
    ASSERT_EQ(list().ListIndex(), 2);
    discard();
    EXPECT_TRUE(files.exists(u"zeta/one.nes"_s));
    EXPECT_EQ(list().ListCount(), 3);
}

TEST_F(AccionesTest, OfTwoNamesThatDifferInCaseTheOneAskedAboutGoes)
{
    files.write(u"zeta/TWO.NES"_s, "upper");
    startAt(Zeta, 0);
    ASSERT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"TWO.NES"_s, u"two.nes"_s));
    clickRow(list(), 2);
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(questions.asked, ElementsAre(u"Papelera"_s, u"¿Mover a la papelera?\n\ntwo.nes"_s));
    EXPECT_TRUE(files.exists(u"zeta/TWO.NES"_s));
    EXPECT_FALSE(files.exists(u"zeta/two.nes"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"TWO.NES"_s));
}

TEST_F(AccionesTest, EntryGoesWhereItsWholeDirectoryIsGone)
{
    startAt(Zeta, 0);
    files.remove(u"zeta"_s);
    discard();
    EXPECT_THAT(listed(), ElementsAre(u"two.nes"_s));
}

TEST_F(AccionesTest, NameThatWouldNotComeBackFromTheFileIsRefusedWithAWord)
{
    files.writeSize(u"zeta/\"a\".nes"_s, 10);
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    list().SetText(u"\"a\".nes"_s);
    QStringList told;
    const auto refused = [&](const std::function<void()> &action, const QString &offered) {
        const auto refuse = [&] {
            atModal(u"Caja"_s, [&](forms::Form &form) {
                told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
                click(controlOf<QWidget>(form, u"Flecha2"_s));
            });
            action();
        };
        answer(u"Text"_s, refuse, offered);
    };
    refused([&] { describe(); }, u"\"a\".nes"_s);
    refused([&] { portada->Menu_Parametros->Click.raise(); }, QString());
    const QString why = u"Este nombre de archivo no se puede anotar."_s;
    EXPECT_THAT(told, ElementsAre(u"Sin anotar"_s, why, u"Sin anotar"_s, why));
    EXPECT_EQ(notes(), before);
    EXPECT_TRUE(listed().contains(u"\"a\".nes"_s));
}

// Names of a catalogue written by hand, too.
TEST_F(AccionesTest, ParametersUnderANameThatWouldNotComeBackAreRefusedWithAWord)
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

TEST_F(AccionesTest, ParametersUnderANameWithACommaOrQuotesComeBack)
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

TEST_F(AccionesTest, AnEntryWithoutAKeyIsNotDescribed_AndItIsSaid)
{
    files.writeSize(u"alfazip/azip"_s, 10);
    startAt(Alfa, 1);
    addWords();
    const QByteArray before = notes();
    list().SetText(u"azip"_s);
    QStringList told;
    answer(
        u"Text"_s,
        [&] {
            atModal(u"Caja"_s, [&](forms::Form &form) {
                told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
                click(controlOf<QWidget>(form, u"Flecha2"_s));
            });
            describe();
        },
        u"azip"_s);
    EXPECT_THAT(told, ElementsAre(u"Sin anotar"_s, u"Este nombre de archivo no se puede anotar."_s));
    EXPECT_EQ(notes(), before);
    EXPECT_THAT(listed(), ElementsAre(u"azip"_s, u"Un juego"_s));
}

TEST_F(AccionesTest, ADescriptionThatWouldRunIntoTheNextRecordIsRefusedWithAWord)
{
    startAt(Zeta, 0);
    addWords();
    clickRow(list(), 1);
    const QByteArray before = notes();
    QStringList told;
    answer(
        u"El \"dos\", otra vez"_s, [&] { told = toldBy([&] { describe(); }); }, u"two.nes"_s);
    EXPECT_THAT(told, ElementsAre(u"Sin anotar"_s, u"Sin comas detrás de unas comillas."_s));
    EXPECT_EQ(notes(), before);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(AccionesTest, ADescriptionWithQuotesIsWrittenAsTyped_ListedAsReadAndCanBeChanged)
{
    startAt(Zeta, 0);
    addWords();
    QStringList told;
    clickRow(list(), 1);
    answer(
        u"Dos\" y más"_s, [&] { told = toldBy([&] { describe(); }); }, u"two.nes"_s);
    EXPECT_THAT(
        told, ElementsAre(u"Descripción cortada"_s, u"Se lee solo lo que hay delante de las comillas."_s));
    EXPECT_TRUE(notes().contains("Zeta\r\nTWO.NES,\"Dos\" y m\xE1s\"\r\n"));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"Dos"_s));
    EXPECT_EQ(list().Text(), u"Dos"_s);
    const qsizetype lines = notes().count('\n');

    answer(
        u"Otro dos"_s, [&] { describe(); }, u"Dos"_s);
    EXPECT_TRUE(notes().contains("Zeta\r\nTWO.NES,\"Otro dos\"\r\n"));
    EXPECT_EQ(notes().count('\n'), lines);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"Otro dos"_s));
}

TEST_F(AccionesTest, ANoteWhoseLineIsNotInTheFileIsNotChanged_AndItIsSaid)
{
    startAt(Zeta, 0);
    addWords();
    for (const bool block : { true, false }) {
        QByteArray other = notes();
        other.replace("ONE.NES,\"Juego uno\"", "ONE.NES\r\n\"Juego uno\"");
        if (!block)
            other.replace("Zeta\r\n", "Zeta 2\r\n");
        files.write(u"Zembro.rom"_s, other);
        QStringList told;
        clickRow(list(), block ? 0 : 1);
        answer(
            u"Otro"_s, [&] { told = toldBy([&] { describe(); }); }, block ? u"Juego uno"_s : u"two.nes"_s);
        EXPECT_THAT(
            told, ElementsAre(u"Sin anotar"_s, u"Zembro.rom no tiene la línea que habría que cambiar."_s));
        EXPECT_EQ(notes(), other);
        EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    }
}

TEST_F(AccionesTest, ANoteBehindAFirstOneWithoutAKeyIsChangedAndGivenParametersAndThrownAway)
{
    files.writeNotes({ { u"Zeta"_s, { { QString(), u"x"_s }, { u"TWO.NES"_s, u"Dos"_s } } } });
    startAt(Zeta, 0);
    addWords();
    list().SetText(u"Dos"_s);
    answer(
        u"-x"_s, [&] { portada->Menu_Parametros->Click.raise(); }, u""_s);
    EXPECT_TRUE(notes().contains("TWO.NES,Zeta,Uno,-x\r\n"));
    answer(
        u"Otro"_s, [&] { describe(); }, u"Dos"_s);
    EXPECT_TRUE(notes().contains("\r\n,\"x\"\r\nTWO.NES,\"Otro\"\r\n"));
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(trashed(), ElementsAre(u"two.nes"_s));
}

TEST_F(AccionesTest, BoxOfTheParametersHasItsWords)
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

TEST_F(AccionesTest, ParametersThatCannotBeWrittenAreFatalAndLoseNothing)
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

TEST_F(AccionesTest, ParametersThatWouldComeBackCutAreRefusedWithAWord)
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

TEST_F(AccionesTest, ParametersWithoutASelectionHaveAnEmptyKey)
{
    startAt(Zeta, 0);
    addWords();
    list().SetListIndex(-1);
    answer(
        u"-x"_s, [&] { portada->Menu_Parametros->Click.raise(); }, u""_s);
    EXPECT_TRUE(notes().contains("Parametros especificos\r\n,Zeta,Uno,-x\r\n"));
}
