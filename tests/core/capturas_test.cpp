// The captures that a run converts, and the words of its report.
#include "directoriodeprograma.h"

#include "core/capturas.h"

using namespace Qt::StringLiterals;

using Capturas = DirectorioDePrograma;

TEST_F(Capturas, AreTheNamesThatEndInPcxInAnyCase_DirectoriesToo)
{
    for (const QString &nombre :
        { u"b.PCX"_s, u"a.pcx"_s, u"Nopcx"_s, u"pcx"_s, u"x.pcxx"_s, u"x.gif"_s, u"cx"_s, u".hidden.pcx"_s })
        Pon(u"cap/"_s + nombre, "x");
    PonDirectorio(u"cap/dir.Pcx"_s);
    PonDirectorio(u"cap/dir"_s);
    EXPECT_EQ(core::CapturasPCX(Ruta(u"cap/"_s)),
        (QStringList { u"a.pcx"_s, u"b.PCX"_s, u"dir.Pcx"_s, u"Nopcx"_s, u"pcx"_s }));
}

TEST_F(Capturas, AreNone_OfAnEmptyPathOrAMissingDirectory)
{
    Pon(u"a.pcx"_s, "x");
    EXPECT_EQ(core::CapturasPCX({}), QStringList());
    EXPECT_EQ(core::CapturasPCX(Ruta(u"none/"_s)), QStringList());
    PonDirectorio(u"cap"_s);
    EXPECT_EQ(core::CapturasPCX(Ruta(u"cap"_s)), QStringList());
}

TEST_F(Capturas, MoreThanOneRunHoldsAreAFailure)
{
    for (int i = 0; i < 5001; ++i)
        Pon(u"cap/%1.pcx"_s.arg(i), {});
    EXPECT_EQ(core::CapturasPCX(Ruta(u"cap"_s)).size(), 5001);
    Pon(u"cap/more.pcx"_s, {});
    EXPECT_EQ(NumeroDeFallo([this] { core::CapturasPCX(Ruta(u"cap"_s)); }), host::OutOfRange);
}

TEST(ReportOfCaptures, HasTheNumberBetweenTheWordsForOneOrForSeveral)
{
    core::TextosIdioma textos;
    textos.Msg_IMGTrans1I = u"One:"_s;
    textos.Msg_IMGTrans1D = u"capture"_s;
    textos.Msg_IMGTransMI = u"Many: "_s;
    textos.Msg_IMGTransMD = u"captures"_s;
    EXPECT_EQ(core::TextoDeConversion(textos, 1), u"One: 1 capture");
    EXPECT_EQ(core::TextoDeConversion(textos, 2), u"Many:  2 captures");
    EXPECT_EQ(core::TextoDeConversion(textos, 5001), u"Many:  5001 captures");
}
