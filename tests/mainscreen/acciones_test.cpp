// Throwing a ROM away: the question, the trash, and what the list shows then.

#include "accionestest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

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
