// What zembro check finds in the notes.
#include "mesaderevision.h"

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Check, RecordsThatNameNothing_OpenQuotesAndBlocksOfNobodyAreSaid)
{
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n'\r\n",
        "Super Mario\"\r\n,\"Nothing\"\r\nZELDA.NES,\"Zelda\r\n'\r\nSiss\r\nA.NES,\"A\"\r\n'\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"no-name"_s, u"open-quotes"_s, u"unknown-system"_s));
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains("Zembro.rom:3: This record names no game")) << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zembro.rom:4: The double quotes of this record aren't closed"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zembro.rom:6: No system of the catalogue or of the database is called so"))
        << todo.toStdString();
}

TEST_F(Check, WithoutADatabaseNoBlockIsSaidToBeNobodys)
{
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n'\r\n", "Super Mario\"\r\n'\r\nOther\r\n'\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"unknown-system"_s));
    Borra(u"Zembro.sye"_s);
    EXPECT_THAT(clases(), testing::Not(Contains(u"unknown-system"_s)));
}

TEST_F(Check, ParametersOfNobodyAndOfNothingAreSaid)
{
    Cambia(u"Zembro.rom"_s, "especificos\r\n",
        "especificos\r\nZELDA.NES,Sis,Tres,-a\r\nGONE.NES,Sis,Uno,-a\r\n,Sis,Uno,-a\r\nZELDA.NES,SIS,uno,-"
        "b\r\n");
    EXPECT_THAT(clases(),
        ElementsAre(
            u"parameters-of-nobody"_s, u"parameters-without-file"_s, u"no-name"_s, u"parameters-twice"_s));
    EXPECT_TRUE(dicho().startsWith("Zembro.rom:8: The parameters of ZELDA.NES are for Sis / Tres"))
        << dicho().toStdString();
}

TEST_F(Check, ParametersOfADescribedGameWhoseNameNeedsQuotesAreFound)
{
    Pon(u"roms/A, B.nes"_s, "x");
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n", "Super Mario\"\r\n\"A, B.NES\",\"A and B\"\r\n");
    Cambia(u"Zembro.rom"_s, "especificos\r\n", "especificos\r\n\"A, B.NES\",Sis,Uno,-a\r\n");
    EXPECT_THAT(clases(), IsEmpty());
}

TEST_F(Check, ANoteThatBeginsAsAMarkEndsNothing)
{
    Pon(u"roms/[x].nes"_s, "x");
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\n[X].NES,\"X\"\r\nGONE.NES,\"Gone\"\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"note-without-file"_s));
}

TEST_F(Check, NotesWithoutTheMarkOfTheirEndAreSaid)
{
    Cambia(u"Zembro.rom"_s, "[EOF]\r\n", "");
    EXPECT_THAT(clases(), ElementsAre(u"missing-mark"_s));
    const qsizetype cabecera = Bytes(u"Zembro.rom"_s).split('\n').indexOf("Parametros especificos\r");
    ASSERT_GE(cabecera, 0);
    EXPECT_TRUE(dicho().startsWith("Zembro.rom:" + QByteArray::number(cabecera + 1) + ": "))
        << dicho().toStdString();
}

// The quotes within a text aren't doubled for anybody.
TEST_F(Check, TextBehindClosingQuotesIsSaid)
{
    for (const QByteArray descripcion : { "\"A \"\"quoted\"\" one\"", "\"A \"quoted\" one\"", "\"A\" b" }) {
        const QByteArray antes = Bytes(u"Zembro.rom"_s);
        Cambia(u"Zembro.rom"_s, "\"Super Mario\"", descripcion);
        EXPECT_THAT(clases(), ElementsAre(u"cut-record"_s)) << descripcion.toStdString();
        EXPECT_TRUE(
            dicho().startsWith("Zembro.rom:2: Behind the second double quotes of a field nobody reads on"))
            << dicho().toStdString();
        Pon(u"Zembro.rom"_s, antes);
    }
    Cambia(u"Zembro.rom"_s, "Mario\"\r\n", "Mario\"  \r\n");
    EXPECT_THAT(clases(), IsEmpty());
    Cambia(u"Zembro.rom"_s, "-fast\r\n", "\"-a \"b c\" -d\"\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"cut-record"_s));
}

TEST_F(Check, MoreNotesThanTheProgramTakesAreSaid)
{
    QByteArray notas;
    for (int i = 0; i < 6665; ++i)
        notas += "GAME" + QByteArray::number(i) + ".NES,\"Game\"\r\n";
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\n" + notas);
    EXPECT_FALSE(clases().contains(u"too-many-notes"_s));
    Pon(u"Zembro.rom"_s, antes);
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\nONE.NES,\"One\"\r\n" + notas);
    EXPECT_EQ(clases().count(u"too-many-notes"_s), 1);
    EXPECT_TRUE(dicho().contains(
        "Zembro.rom:6668: From here on the notes of Sis are more than the 6666 that the program "
        "takes, so not all of its games are listed; remove some.\n"));
}
