// Names of any kind on a terminal and in JSON.
#include "mesadepruebas.h"

#include "companion/imprimible.h"

#include "host/encoding.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;
using companion::ComoJson;
using companion::Imprimible;

TEST(Imprimible, TextsStayAsTheyAre)
{
    for (const QString &texto : { u"Mario \\ 3"_s, u"Año ñandú 日本 𐐨"_s, QString() })
        EXPECT_EQ(Imprimible(texto), texto);
}

TEST(Imprimible, NothingThatATerminalObeysIsLeft)
{
    EXPECT_EQ(Imprimible(u"\x1b[2Ja\rb\nc\td\x7f\a"_s), u"\\x1B[2Ja\\x0Db\\x0Ac\\x09d\\x7F\\x07"_s);
    EXPECT_EQ(Imprimible(u"\u009b31m\u0085"_s), u"\\u{009B}31m\\u{0085}"_s);
    EXPECT_EQ(
        Imprimible(u"a\u202egnp.exe\u2069\u2028\ufeff"_s), u"a\\u{202E}gnp.exe\\u{2069}\\u{2028}\\u{FEFF}"_s);
}

TEST(Imprimible, BytesThatAreNoTextShowTheirNumbers)
{
    EXPECT_EQ(Imprimible(host::nameFromDisk("a\xff\x9b z")), u"a\\xFF\\x9B z"_s);
}

TEST(ComoJson, GivesBackWhatItWasGiven_AndHoldsNothingThatATerminalObeys)
{
    QString todo;
    for (char16_t c = 1; c < 0xD800; ++c)
        todo += QChar(c);
    const QByteArray json = ComoJson({ { u"a"_s, todo } });
    EXPECT_EQ(QJsonDocument::fromJson(json)[u"a"_s].toString(), todo);
    EXPECT_TRUE(json.endsWith("}\n"));
    const QString texto = QString::fromUtf8(json).remove(u'\n');
    EXPECT_EQ(Imprimible(texto), texto);
}
