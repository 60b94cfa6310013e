// Lists of other makers.
#include "mesadepruebas.h"

#include "companion/fuentes.h"

#include <QStringConverter>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using companion::LectorDeFuente;
using Textos = QHash<QString, QString>;

namespace {

struct Leido {
    Textos textos;
    bool deCatalogo;
    qint64 lineaDelError;
    bool ajeno;
};

Leido lee(const QByteArray &bytes, const QSet<QString> &buscados, qsizetype trozo)
{
    LectorDeFuente lector(buscados);
    for (qsizetype i = 0; i < bytes.size(); i += trozo)
        lector.Trozo(bytes.sliced(i, std::min(trozo, bytes.size() - i)));
    lector.Fin();
    return { lector.Textos(), lector.EsDeCatalogo(), lector.ElError() ? lector.ElError()->linea : 0,
        lector.EsAjeno() };
}

// The same in pieces of every kind.
void espera(const QByteArray &bytes, const QSet<QString> &buscados, const Textos &textos)
{
    for (const qsizetype trozo : { 1, 2, 7, 100000 })
        EXPECT_EQ(lee(bytes, buscados, trozo).textos, textos) << trozo;
}

} // namespace

TEST(LectorDeFuente, ReadsADat)
{
    const QByteArray dat =
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE datafile PUBLIC \"-//X//DTD ROM//EN\" "
        "\"http://x/y.dtd\">\n"
        "<datafile><header><name>Sys</name><description>Sys DAT</description></header>\n"
        "<game name=\"Foo, The (EU)\"><description>Foo, The (EU) &amp; &#233;</description>"
        "<rom name=\"foo.nes\" size=\"1\"/></game>\n"
        "<machine name=\"parts\"><description>Parts</description><rom name=\"p1\"/><rom name=\"p2\"/>"
        "<disk><description>inner</description></disk></machine>\n"
        "<game name=\"parts\"><description>Second</description></game></datafile>\n\n";
    espera(dat, { u"FOO, THE (EU)"_s, u"FOO.NES"_s, u"PARTS"_s, u"P1"_s, u"SYS"_s },
        { { u"FOO, THE (EU)"_s, u"Foo, The (EU) & é"_s }, { u"FOO.NES"_s, u"Foo, The (EU) & é"_s },
            { u"PARTS"_s, u"Parts"_s } });
    espera(dat, { u"NONE"_s }, {});
    EXPECT_TRUE(lee(dat, {}, 100).deCatalogo);
}

TEST(LectorDeFuente, ReadsAListOfMameAndOfItsSoftware)
{
    espera("<?xml version=\"1.0\"?><!DOCTYPE mame [<!ELEMENT mame (machine+)><!ATTLIST mame build CDATA "
           "#IMPLIED>]>"
           "<mame build=\"0.1\"><machine name=\"puckman\" sourcefile=\"p.cpp\"><description>PuckMan (Japan "
           "set 1)"
           "</description><year>1980</year></machine></mame>",
        { u"PUCKMAN"_s }, { { u"PUCKMAN"_s, u"PuckMan (Japan set 1)"_s } });
    espera("<softwarelist name=\"nes\" description=\"x\"><software "
           "name=\"zelda\"><description>Zelda</description>"
           "<part name=\"cart\"><rom name=\"a\"/></part></software></softwarelist>",
        { u"ZELDA"_s, u"A"_s, u"CART"_s }, { { u"ZELDA"_s, u"Zelda"_s } });
}

TEST(LectorDeFuente, ReadsAGamelist)
{
    const QByteArray lista =
        "<gameList><folder><path>./d</path><name>D</name></folder><game id=\"1\"><path>./sub/Foo (EU).zip"
        "</path><name>Foo &lt;b&gt;</name><desc>Long\ntext</desc></game>"
        "<game><path>./bar.zip</path><name></name></game></gameList>";
    espera(lista, { u"FOO (EU).ZIP"_s, u"BAR.ZIP"_s, u"D"_s }, { { u"FOO (EU).ZIP"_s, u"Foo <b>"_s } });
    EXPECT_FALSE(lee(lista, {}, 100).deCatalogo);
}

TEST(LectorDeFuente, ReadsLinesOfNameTabDescription)
{
    espera("mario.nes\tSuper  Mario\tBros\r\n\nno tab\n\tno "
           "name\nb\xF1\tEspa\xF1ol\nmario.nes\tagain\nlast\tLast",
        { u"MARIO.NES"_s, u"BÑ"_s, u"LAST"_s, u"NO TAB"_s, u""_s },
        { { u"MARIO.NES"_s, u"Super Mario Bros"_s }, { u"BÑ"_s, u"Español"_s }, { u"LAST"_s, u"Last"_s } });
    espera("a\t" + QByteArray(200000, 'x') + "\nb\tB\n", { u"A"_s, u"B"_s }, { { u"B"_s, u"B"_s } });
    espera("", { u"A"_s }, {});
    espera(" \r\n\n", { u"A"_s }, {});
    espera(BytesSinOrden() + BytesSinOrden(), { u"A"_s }, {});
}

// As some editors write every text.
TEST(LectorDeFuente, ReadsUTF16WithItsMark)
{
    const QString listas[] = {
        u"mario.nes\tSuper Mario\r\nfoo\tEspañol 漢字 \U0001F3AE\r\n"_s,
        u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<gameList><game><path>./mario.nes</path><name>Super "
        "Mario</name></game><game><path>foo</path><name>Español 漢字 \U0001F3AE</name></game></gameList>"_s,
    };
    for (const QString &lista : listas) {
        for (const auto orden : { QStringConverter::Utf16LE, QStringConverter::Utf16BE }) {
            QStringEncoder enBytes(orden, QStringConverter::Flag::WriteBom);
            const QByteArray bytes = enBytes.encode(lista);
            ASSERT_EQ(bytes.first(2), orden == QStringConverter::Utf16LE ? "\xFF\xFE" : "\xFE\xFF");
            espera(bytes, { u"MARIO.NES"_s, u"FOO"_s },
                { { u"MARIO.NES"_s, u"Super Mario"_s }, { u"FOO"_s, u"Español 漢字 \U0001F3AE"_s } });
        }
    }
    espera("\xFF\xFE", { u"A"_s }, {});
    EXPECT_FALSE(lee("\xFF\xFE", {}, 1).ajeno);
}

TEST(LectorDeFuente, KnowsWhatIsNoText)
{
    const QByteArray png("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\tx\n", 19);
    const QByteArray sinMarca("a\0\t\0b\0\n\0", 8);
    const QByteArray sinNulos("\x01\x02\x9f\x07\tb\x03\n", 8);
    for (const qsizetype trozo : { 1, 100000 }) {
        for (const QByteArray &bytes : { png, sinMarca, sinNulos, BytesSinOrden() })
            EXPECT_TRUE(lee(bytes, { u"A"_s }, trozo).ajeno) << bytes.left(8).toHex().toStdString();
        for (const QByteArray bytes : { "", "a\tb\r\n\x1a", "a\tb\f\n", "no tab\n", "<a/>" })
            EXPECT_FALSE(lee(bytes, { u"A"_s }, trozo).ajeno) << bytes.toStdString();
    }
}

TEST(LectorDeFuente, TellsTheLineWhereAListIsBroken)
{
    const std::pair<QByteArray, int> casos[] = {
        { "<datafile>\n<game name=\"a\"><description>A</description>\n", 3 },
        { "<datafile>\n<game name=\"a\"></datafile>", 2 },
        { "<datafile>\n\n<game name=\"a></datafile>", 3 },
        { "<a>&unknown;</a>", 1 },
        { "<", 1 },
    };
    for (const auto &[bytes, linea] : casos) {
        for (const qsizetype trozo : { 1, 100000 })
            EXPECT_EQ(lee(bytes, { u"A"_s }, trozo).lineaDelError, linea) << bytes.toStdString() << trozo;
    }
}

// Entities that stand for one another thousands of times over.
TEST(LectorDeFuente, StopsAtEntitiesWithoutEnd)
{
    QByteArray bomba = "<!DOCTYPE a [<!ENTITY e0 \"xxxxxxxxxx\">";
    for (int i = 1; i < 30; ++i)
        bomba += "<!ENTITY e" + QByteArray::number(i) + " \""
            + ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
    bomba += "]><datafile><game name=\"a\"><description>&e29;</description></game></datafile>";
    const qint64 antes = TiempoDeTrabajo();
    EXPECT_NE(lee(bomba, { u"A"_s }, 100000).lineaDelError, 0);
    EXPECT_LT(TiempoDeTrabajo() - antes, 2000);
}

// What the installed MAME says of its machines is 280 MB by now. Under the sanitizer memory is given back
// late.
TEST(LectorDeFuente, TakesLittleRoomForAListOfAnyLength)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "memory isn't given back at once here";
#endif
    LectorDeFuente lector({ u"M7"_s, u"M19999"_s });
    lector.Trozo("<?xml version=\"1.0\"?><!DOCTYPE mame [<!ELEMENT mame (machine+)>]><mame>");
    const QByteArray fichas =
        QByteArray("<rom name=\"r\" size=\"1\" crc=\"0\"/><dipswitch name=\"d\"/>").repeated(20);
    struct rusage antes;
    getrusage(RUSAGE_SELF, &antes);
    for (int i = 0; i < 20000; ++i) {
        const QByteArray nombre = "m" + QByteArray::number(i);
        lector.Trozo("<machine name=\"" + nombre + "\"><description>D " + nombre + "</description>" + fichas
            + "</machine>\n");
    }
    lector.Trozo("</mame>\n");
    lector.Fin();
    struct rusage despues;
    getrusage(RUSAGE_SELF, &despues);
    EXPECT_EQ(lector.Textos(), (Textos { { u"M7"_s, u"D m7"_s }, { u"M19999"_s, u"D m19999"_s } }));
    EXPECT_FALSE(lector.ElError());
    EXPECT_LT(despues.ru_maxrss - antes.ru_maxrss, 10000) << "of 22 MB, in kB";
}
