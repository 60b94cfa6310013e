// The language files on offer and their credit lines.
#include "directoriodeprograma.h"

#include "core/idiomas.h"

using namespace Qt::StringLiterals;

namespace {

class Idiomas : public DirectorioDePrograma {
protected:
    QString Credito(const QByteArray &bytes)
    {
        Pon(u"LNG/X.LNG"_s, bytes);
        return core::CreditoDeIdioma(M, u"X.LNG"_s);
    }
};

} // namespace

TEST_F(Idiomas, AreTheFilesWithTheirEndingInAnyCase_SortedByName)
{
    for (const QString &nombre : { u"zb-esp.lng"_s, u"ZB-ENG.LNG"_s, u"Árabe.Lng"_s, u"ZB_X.lng"_s })
        Pon(u"LNG/"_s + nombre, "'\r\n");
    for (const QString &nombre : { u"readme.txt"_s, u"x.lngx"_s, u"lng"_s, u".hidden.lng"_s })
        Pon(u"LNG/"_s + nombre, "'\r\n");
    PonDirectorio(u"LNG/dir.lng"_s);
    EXPECT_EQ(core::FicherosDeIdioma(),
        (QStringList { u"ZB-ENG.LNG"_s, u"zb-esp.lng"_s, u"ZB_X.lng"_s, u"Árabe.Lng"_s }));
}

TEST_F(Idiomas, AreFoundInADirectoryOfAnyCase)
{
    Pon(u"lng/A.LNG"_s, "TXT_InfoLNG.......=\"Lng: A\"\r\n");
    EXPECT_EQ(core::FicherosDeIdioma(), QStringList { u"A.LNG"_s });
    EXPECT_EQ(core::CreditoDeIdioma(M, u"a.lng"_s), u"Lng: A");
}

TEST_F(Idiomas, AreAtMostAHundredAndOne)
{
    for (int i = 0; i < 103; ++i)
        Pon(u"LNG/L%1.LNG"_s.arg(i, 3, 10, QChar(u'0')), "'\r\n");
    const QStringList ficheros = core::FicherosDeIdioma();
    EXPECT_EQ(ficheros.size(), 101);
    EXPECT_EQ(ficheros.first(), u"L000.LNG");
    EXPECT_EQ(ficheros.last(), u"L100.LNG");
}

TEST_F(Idiomas, ThatTheSettingsWouldNotGiveBackAreLeftOutAheadOfTheLimit)
{
    for (const QString &nombre : { u"A=B.LNG"_s, u"A,VACIO,B.LNG"_s, u"A\nB.LNG"_s })
        Pon(u"LNG/"_s + nombre, "'\r\n");
    for (int i = 0; i < 101; ++i)
        Pon(u"LNG/L%1.LNG"_s.arg(i, 3, 10, QChar(u'0')), "'\r\n");
    const QStringList ficheros = core::FicherosDeIdioma();
    EXPECT_EQ(ficheros.size(), 101);
    EXPECT_EQ(ficheros.first(), u"L000.LNG");
    EXPECT_EQ(ficheros.last(), u"L100.LNG");
}

TEST_F(Idiomas, FailAsAPathNotFound_WithoutTheirDirectory)
{
    EXPECT_EQ(NumeroDeFallo([] { core::FicherosDeIdioma(); }), host::PathNotFound);
}

TEST_F(Idiomas, CreditIsTheTextOfItsKey)
{
    EXPECT_EQ(
        Credito(
            "' x\r\nTXT_Jugar.........=\"Play\"\r\nTXT_InfoLNG.......=\"Lng: Espa\xF1ol - Autor: X\"\r\n"),
        u"Lng: Español - Autor: X");
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Idiomas, CreditIsToldByElevenCharactersAndCutByPosition)
{
    EXPECT_EQ(Credito("TXT_InfoLNGxxxxxxxxxText."), u"Text");
    EXPECT_EQ(Credito("TXT_InfoLNG=\"Lng: English\"\r\n"), u"glish");
}

TEST_F(Idiomas, CreditIsThatOfTheFirstSuchLine)
{
    EXPECT_EQ(
        Credito("'TXT_InfoLNG......=\"No\"\r\nTXT_InfoLNG.......=\"One\"\r\nTXT_InfoLNG.......=\"Two\"\r\n"),
        u"One");
}

TEST_F(Idiomas, CreditIsEmpty_WithoutSuchALine)
{
    EXPECT_EQ(Credito("TXT_Jugar.........=\"Play\"\r\nshort\r\n\r\n txt_InfoLNG.....=\"x\"\r\n"), QString());
    EXPECT_EQ(Credito(""), QString());
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Idiomas, CreditFailsAsInvalid_OnALineTooShortForAText)
{
    EXPECT_EQ(NumeroDeFallo([this] { Credito("TXT_InfoLNG.......=\"\r\n"); }), host::InvalidArgument);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(Idiomas, CreditFailsAsNotFound_WithoutTheFile)
{
    EXPECT_EQ(NumeroDeFallo([this] { core::CreditoDeIdioma(M, u"None.LNG"_s); }), host::FileNotFound);
}

TEST_F(Idiomas, AreOfferedInCapitals)
{
    for (const QString &nombre : { u"zb-esp.lng"_s, u"ZB-ENG.LNG"_s, u"readme.txt"_s })
        Pon(u"LNG/"_s + nombre, "'\r\n");
    EXPECT_EQ(core::IdiomasEnMayusculas(), (QStringList { u"ZB-ENG.LNG"_s, u"ZB-ESP.LNG"_s }));
}

TEST_F(Idiomas, NoneAreOffered_OfADirectoryThatIsEmptyOrMissing)
{
    EXPECT_EQ(core::IdiomasEnMayusculas(), QStringList());
    PonDirectorio(u"LNG"_s);
    EXPECT_EQ(core::IdiomasEnMayusculas(), QStringList());
}

TEST_F(Idiomas, MoreThanAHundredAndOneAreAFailure)
{
    for (int i = 0; i < 101; ++i)
        Pon(u"LNG/A%1.LNG"_s.arg(i, 3, 10, QChar(u'0')), "'\r\n");
    const QStringList idiomas = core::IdiomasEnMayusculas();
    EXPECT_EQ(idiomas.size(), 101);
    EXPECT_EQ(idiomas.last(), u"A100.LNG");
    Pon(u"LNG/A101.LNG"_s, "'\r\n");
    EXPECT_EQ(NumeroDeFallo([] { core::IdiomasEnMayusculas(); }), host::OutOfRange);
}

TEST(IdiomaEnUso, IsLookedForByItsExactNameAmongTheFirstHundred)
{
    QStringList idiomas;
    for (int i = 0; i < 101; ++i)
        idiomas << u"A%1.LNG"_s.arg(i);
    EXPECT_EQ(core::PosicionDeIdioma(idiomas, u"A0.LNG"_s), 0);
    EXPECT_EQ(core::PosicionDeIdioma(idiomas, u"A99.LNG"_s), 99);
    EXPECT_EQ(core::PosicionDeIdioma(idiomas, u"A100.LNG"_s), -1);
    EXPECT_EQ(core::PosicionDeIdioma(idiomas, u"a0.lng"_s), -1);
    EXPECT_EQ(core::PosicionDeIdioma({}, u"A0.LNG"_s), -1);
}
