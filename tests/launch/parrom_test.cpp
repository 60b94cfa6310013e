// The parameters of a single ROM, out of the text of Zembro.rom.
#include "core/parrom.h"

#include "tests/host/disktest.h"

using namespace Qt::StringLiterals;

namespace {

QString parametrosDe(const QString &clave, const QString &texto)
{
    host::TextSource fuente(texto);
    return core::ParametrosDe(fuente, clave);
}

const QString Almacen = u"Sys\r\nMARIO.NES,\"The plumber\"\r\n'\r\n[\r\nParametros especificos\r\n"
                        "MARIO.NES,Sys,Emu,-Fast 2\r\nZELDA.NES,Sys,Emu,-z\r\nMARIO.NES,Sys,Otro,-o\r\n"
                        "'\r\nfin\r\nfin,\"fin\"\r\n"_s;

TEST(ParametrosDe, AreTheFourthFieldAsStored)
{
    EXPECT_EQ(parametrosDe(u"ZELDA.NES"_s, Almacen), u"-z"_s);
    EXPECT_EQ(parametrosDe(u"MARIO.NES"_s, Almacen), u"-Fast 2"_s);
}

TEST(ParametrosDe, ComeFromTheFirstRecord_WhateverItsSystemAndEmulator)
{
    EXPECT_EQ(parametrosDe(u"MARIO.NES"_s, Almacen), u"-Fast 2"_s);
}

TEST(ParametrosDe, KeysAreComparedCaseApart_OnBothSides)
{
    EXPECT_EQ(parametrosDe(u"mario.nes"_s, Almacen), u"-Fast 2"_s);
    EXPECT_EQ(parametrosDe(u"A GAME"_s, u"Parametros\na game,s,e,-x\n'\n"_s), u"-x"_s);
}

TEST(ParametrosDe, AreEmpty_WhereTheRomHasNone)
{
    EXPECT_EQ(parametrosDe(u"OTHER.NES"_s, Almacen), QString());
}

TEST(ParametrosDe, AreEmpty_WhereThereIsNoSectionOrNoFileAtAll)
{
    EXPECT_EQ(parametrosDe(u"MARIO.NES"_s, u"Sys\nMARIO.NES,\"x\"\n'\n"_s), QString());
    EXPECT_EQ(parametrosDe(u"MARIO.NES"_s, QString()), QString());
}

TEST(ParametrosDe, TheSectionIsFoundByTheBeginningOfItsLine)
{
    EXPECT_EQ(parametrosDe(u"A"_s, u"ParametrosXYZ\nA,s,e,-x\n'\n"_s), u"-x"_s);
    EXPECT_EQ(parametrosDe(u"A"_s, u" Parametros\nA,s,e,-x\n'\n"_s), QString());
    EXPECT_EQ(parametrosDe(u"A"_s, u"parametros\nA,s,e,-x\n'\n"_s), QString());
}

TEST(ParametrosDe, TheSearchEndsAtALoneApostrophe_NotAtALineThatBeginsWithOne)
{
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\n'\nfin\nfin,fin\nA,s,e,-x\n"_s), QString());
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\n'---,s,e,p\nA,s,e,-x\n"_s), u"-x"_s);
}

TEST(ParametrosDe, TheEndOfTheFileEndsTheSearch)
{
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\nB,s,e,-x\n"_s), QString());
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\nA,s"_s), QString());
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\n'"_s), QString());
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros"_s), QString());
}

TEST(ParametrosDe, ALineEndSeparatesFieldsLikeAComma)
{
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\nA,s\ne\n-x\n'\n"_s), u"-x"_s);
}

TEST(ParametrosDe, ParametersWithACommaAreCutThere)
{
    EXPECT_EQ(parametrosDe(u"A"_s, u"Parametros\nA,s,e,-x 1,2\n'\n"_s), u"-x 1"_s);
}

TEST(ParametrosDe, AKeyInQuotesMayHoldAComma)
{
    EXPECT_EQ(parametrosDe(u"GAME, THE.NES"_s, u"Parametros\n\"GAME, THE.NES\",s,e,-x\n'\n"_s), u"-x"_s);
}

} // namespace
