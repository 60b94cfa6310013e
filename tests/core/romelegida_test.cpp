// The selected ROM: its file, its keys, and its parameters as they are offered for changing.
#include "directoriodeprograma.h"

#include "core/romelegida.h"

using namespace Qt::StringLiterals;

namespace {

class RomElegida : public DirectorioDePrograma {
protected:
    RomElegida()
    {
        M.Nota_Clave(0) = u"pong"_s;
        M.Nota_Texto(0) = u"Tennis for two"_s;
        M.Nota_Clave(1) = u"first"_s;
        M.Nota_Texto(1) = u"Twins"_s;
        M.Nota_Clave(2) = u"second"_s;
        M.Nota_Texto(2) = u"Twins"_s;
        M.Nota_Texto(3) = u"Behind the end"_s;
    }
};

const QString Seccion =
    u"Console\nA,\"B\"\n'\nParametros especificos de cada ROM\n"
    "PONG,Console,Emu,-x -y\nPong,Console,Other,-z\nPONG,Handheld,Emu,-h\nEMPTY,Console,Emu,\n'\nfin\nfin,\"fin\"\n"_s;

QString Escritos(const QString &clave, const QString &sistema, const QString &emulador)
{
    host::TextSource fuente(Seccion);
    return core::ParametrosEscritos(fuente, clave, sistema, emulador);
}

} // namespace

TEST_F(RomElegida, ParametersAreFound_ByANoteOrANameThatIsItsOwnShortForm)
{
    for (const QString &entrada : { u"Tennis for two"_s, u"Twins"_s, u"pong.nes"_s, u"PONG"_s, u""_s })
        EXPECT_TRUE(core::SeEncuentranSusParametros(M, entrada)) << entrada.toStdString();
    for (const QString &entrada :
        { u"my pong.nes"_s, u"pong v1.1.nes"_s, u"pong.1.nes"_s, u"Behind the end"_s })
        EXPECT_FALSE(core::SeEncuentranSusParametros(M, entrada)) << entrada.toStdString();
}

TEST_F(RomElegida, FileIsTheKeyOfTheFirstNoteWithItsTextInUpperCase)
{
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Tennis for two"_s), u"PONG"_s);
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Twins"_s), u"FIRST"_s);
}

TEST_F(RomElegida, FileOfTheTypesWithZipsEndsInZipWhereItHasANote)
{
    for (const int tipo : { 2, 3, 7, 8 }) {
        EXPECT_EQ(core::FicheroDeEntrada(M, tipo, u"Twins"_s), u"FIRST.zip"_s);
        EXPECT_EQ(core::FicheroDeEntrada(M, tipo, u"Other.Zip"_s), u"Other.Zip"_s);
    }
    for (const int tipo : { 0, 1, 4, 5, 6, -1 })
        EXPECT_EQ(core::FicheroDeEntrada(M, tipo, u"Twins"_s), u"FIRST"_s);
}

TEST_F(RomElegida, EntryWithoutANoteIsTheFileItself)
{
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Some Game.bin"_s), u"Some Game.bin"_s);
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"twins"_s), u"twins"_s);
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Behind the end"_s), u"Behind the end"_s);
}

TEST_F(RomElegida, NewKeyIsTheEntryInUpperCaseWithoutTheEndingOfTheTypesWithZips)
{
    for (const int tipo : { 0, 1, 5, 6 })
        EXPECT_EQ(core::ClaveNueva(tipo, u"pequeño.nes"_s), u"PEQUEÑO.NES"_s);
    for (const int tipo : { 2, 3, 7, 8 }) {
        EXPECT_EQ(core::ClaveNueva(tipo, u"game.zip"_s), u"GAME"_s);
        EXPECT_EQ(core::ClaveNueva(tipo, u"no ending"_s), u"NO EN"_s);
        EXPECT_EQ(core::ClaveNueva(tipo, u"abc"_s), QString());
        EXPECT_EQ(core::ClaveNueva(tipo, u"game 😀zip"_s), u"GAME "_s);
        EXPECT_EQ(core::ClaveNueva(tipo, u"😀😀😀😀😀"_s), u"😀"_s);
        EXPECT_EQ(core::ClaveNueva(tipo, u"😀😀😀"_s), QString());
    }
}

TEST_F(RomElegida, KeyOfParametersIsTheNotesKeyAsItStandsOrTheEntry)
{
    EXPECT_EQ(core::ClaveDeParametros(M, u"Twins"_s), u"first"_s);
    EXPECT_EQ(core::ClaveDeParametros(M, u"Some Game.bin"_s), u"Some Game.bin"_s);
    EXPECT_EQ(core::ClaveDeParametros(M, u""_s), QString());
}

TEST_F(RomElegida, WrittenParametersAreThoseOfKeySystemAndEmulatorCaseApart)
{
    EXPECT_EQ(Escritos(u"pong"_s, u"CONSOLE"_s, u"emu"_s), u"-x -y"_s);
    EXPECT_EQ(Escritos(u"pong"_s, u"Console"_s, u"Other"_s), u"-z"_s);
    EXPECT_EQ(Escritos(u"pong"_s, u"Console"_s, u"Third"_s), QString());
    EXPECT_EQ(Escritos(u"pong"_s, u"Handheld"_s, u"Emu"_s), u"-h"_s);
    EXPECT_EQ(Escritos(u"pong"_s, u"Handheld"_s, u"Other"_s), QString());
    EXPECT_EQ(Escritos(u"quest"_s, u"Console"_s, u"Emu"_s), QString());
}

TEST_F(RomElegida, WrittenParametersNeedTheSectionAndItsEnd)
{
    const QString falta[] = { u""_s, u"Console\n'\n"_s, u"Parametros\nPONG,s,e,-x\n'\n"_s,
        u"Parametros especificos\n"_s, u"Parametros especificos\nQUEST,s,e,-x\n"_s };
    for (const QString &texto : falta) {
        EXPECT_EQ(NumeroDeFallo([&] {
            host::TextSource fuente(texto);
            core::ParametrosEscritos(fuente, u"PONG"_s, u"s"_s, u"e"_s);
        }),
            host::PastEndOfFile)
            << texto.toStdString();
    }
}

TEST_F(RomElegida, ClosingRecordMayEndTheFileCutShort)
{
    host::TextSource fuente(u"Parametros especificos\nQUEST,s,e,-x\n'"_s);
    EXPECT_EQ(core::ParametrosEscritos(fuente, u"PONG"_s, u"s"_s, u"e"_s), QString());
}

TEST_F(RomElegida, LastRecordMayBeCutShort)
{
    host::TextSource fuente(u"Parametros especificos\nPONG,s,e"_s);
    EXPECT_EQ(core::ParametrosEscritos(fuente, u"PONG"_s, u"s"_s, u"e"_s), QString());
}

TEST_F(RomElegida, ANoteBehindAFirstOneWithoutAKeyIsFound)
{
    M.Nota_Clave(0) = QString();
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Twins"_s), u"FIRST"_s);
    EXPECT_EQ(core::ClaveDeParametros(M, u"Twins"_s), u"first"_s);
    EXPECT_EQ(core::FicheroDeEntrada(M, 0, u"Tennis for two"_s), QString());
    EXPECT_EQ(core::FicheroDeEntrada(M, 2, u"Tennis for two"_s), u".zip"_s);
    EXPECT_EQ(core::ClaveDeParametros(M, u"Tennis for two"_s), QString());
}
