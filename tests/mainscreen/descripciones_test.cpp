// Describing a ROM: what the list shows then, and Zembro.rom byte for byte.

#include "accionestest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

using DescripcionesTest = AccionesTest;

TEST_F(DescripcionesTest, FirstDescriptionIsTheNewestRecordOfItsBlock)
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

TEST_F(DescripcionesTest, SelectionAfterADescriptionRunsWithTheOldNotes)
{
    startAt(Medio, 0);
    addWords();
    clickRow(list(), 1);
    answer(
        u"gran dos"_s, [&] { describe(); }, u"G2"_s);
    EXPECT_EQ(info(), u"GRAN DOS [DIR]"_s);
    EXPECT_EQ(M->Nota_Clave(0), u"G2"_s);
}

TEST_F(DescripcionesTest, ChangedDescriptionKeepsItsKeyAndPlaceInTheFileAndGoesToTheEndOfTheList)
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

TEST_F(DescripcionesTest, SameDescriptionTypedBackRewritesNothing)
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

TEST_F(DescripcionesTest, EmptyDescriptionIsLegal)
{
    startAt(Zeta, 0);
    addWords();
    answer(
        u""_s, [&] { describe(); }, u"Juego uno"_s);
    EXPECT_TRUE(notes().contains("ONE.NES,\"\"\r\n"));
    EXPECT_THAT(listed(), ElementsAre(u"two.nes"_s, u""_s));
}

TEST_F(DescripcionesTest, KeyOfAZipLosesFourCharactersAlsoWhereTheyAreNoEnding)
{
    files.writeSize(u"alfazip/other.zip"_s, 10);
    startAt(Alfa, 1);
    addWords();
    clickRow(list(), 1);
    answer(
        u"Otro"_s, [&] { describe(); }, u"other.zip"_s);
    EXPECT_TRUE(notes().contains("alfa\r\nOTHER,\"Otro\"\r\n"));
}

TEST_F(DescripcionesTest, TypesFiveToEightShareTheKeysOfZeroToThree)
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

TEST_F(DescripcionesTest, TypeWithoutAKeyWritesNothing)
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

TEST_F(DescripcionesTest, OfTwoROMsWithOneDescriptionTheFirstInTheTableIsMeant)
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

TEST_F(DescripcionesTest, DescriptionThatCannotBeWrittenIsFatalAndLosesNothing)
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

TEST_F(DescripcionesTest, NameThatWouldNotComeBackFromTheFileIsRefusedWithAWord)
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

TEST_F(DescripcionesTest, AnEntryWithoutAKeyIsNotDescribed_AndItIsSaid)
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

TEST_F(DescripcionesTest, ADescriptionThatWouldRunIntoTheNextRecordIsRefusedWithAWord)
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

TEST_F(DescripcionesTest, ADescriptionWithQuotesIsWrittenAsTyped_ListedAsReadAndCanBeChanged)
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

TEST_F(DescripcionesTest, ANoteWhoseLineIsNotInTheFileIsNotChanged_AndItIsSaid)
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

TEST_F(DescripcionesTest, ANoteBehindAFirstOneWithoutAKeyIsChangedAndGivenParametersAndThrownAway)
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
