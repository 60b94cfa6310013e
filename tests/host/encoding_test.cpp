#include "disktest.h"

#include "host/encoding.h"

#include <QStringDecoder>

#include <map>
#include <random>

using namespace Qt::StringLiterals;
using namespace host;

namespace {

QByteArray recoded(const QByteArray &bytes)
{
    return encodeText(decodeText(bytes));
}

QByteArray encoded(const QString &text, Encoding encoding)
{
    return encodeText({ text, encoding, false });
}

char byteOf(int value)
{
    return static_cast<char>(value);
}

// Bytes from the neighbourhood of all that matters in UTF-8.
QByteArray randomBytes(std::mt19937 &random)
{
    const QByteArray kinds("a\x1A\x7F\x80\x9E\x9F\xA0\xBF\xC1\xC2\xDF\xE0\xED\xEF\xBB\xF0\xF4\xF5\xFF");
    QByteArray bytes;
    for (std::size_t left = random() % 8; left > 0; --left)
        bytes += kinds[qsizetype(random() % std::size_t(kinds.size()))];
    return bytes;
}

} // namespace

TEST(TextEncoding, PlainTextIsWindows1252)
{
    const DecodedText text = decodeText("plain\r\n");
    EXPECT_EQ(text.text, u"plain\r\n"_s);
    EXPECT_EQ(text.encoding, Encoding::Windows1252);
    EXPECT_FALSE(text.endMark);
    EXPECT_EQ(decodeText({}).text, QString());
}

TEST(TextEncoding, BytesThatAreNoUtf8AreWindows1252)
{
    const DecodedText text = decodeText("A\xF1"
                                        "adir \x80 \x93\x94 \xBF");
    EXPECT_EQ(text.text, u"Añadir € “” ¿"_s);
    EXPECT_EQ(text.encoding, Encoding::Windows1252);
}

TEST(TextEncoding, ValidUtf8IsUtf8)
{
    const DecodedText text = decodeText("A\xC3\xB1"
                                        "adir \xF0\x9F\x8E\xAE");
    EXPECT_EQ(text.text, u"Añadir \U0001F3AE"_s);
    EXPECT_EQ(text.encoding, Encoding::Utf8);
}

TEST(TextEncoding, OneInvalidByteMakesItWindows1252)
{
    EXPECT_EQ(decodeText("\xC3\xB1 \xF1").text, u"Ã± ñ"_s);
}

TEST(TextEncoding, ByteOrderMarkIsNoTextButKept)
{
    const DecodedText text = decodeText("\xEF\xBB\xBFplain");
    EXPECT_EQ(text.text, u"plain"_s);
    EXPECT_EQ(text.encoding, Encoding::Utf8WithMark);
    EXPECT_EQ(encodeText(text), "\xEF\xBB\xBFplain");
}

TEST(TextEncoding, SecondByteOrderMarkIsText)
{
    const QByteArray bytes("\xEF\xBB\xBF\xEF\xBB\xBFx");
    EXPECT_EQ(decodeText(bytes).text, u"\uFEFFx"_s);
    EXPECT_EQ(recoded(bytes), bytes);
}

TEST(TextEncoding, Byte26IsNoTextButKept_AtTheEndAlone)
{
    const DecodedText text = decodeText("a\x1A"
                                        "b\x1A");
    EXPECT_EQ(text.text,
        u"a\x1A"
        "b"_s);
    EXPECT_TRUE(text.endMark);
    EXPECT_EQ(encodeText({ u"new\r\n"_s, text.encoding, text.endMark }), "new\r\n\x1A");
    EXPECT_EQ(decodeText("\x1A").text, QString());
}

TEST(TextEncoding, OverlongFormsSurrogatesAndCodesPastTheLastAreNoUtf8)
{
    for (const QByteArray bytes :
        { "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
            "\xF5\x80\x80\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x8E", "\x80",
            "\xC3"
            "A" }) {
        EXPECT_EQ(decodeText(bytes).encoding, Encoding::Windows1252) << bytes.toHex().constData();
        EXPECT_EQ(recoded(bytes), bytes) << bytes.toHex().constData();
    }
    for (const QByteArray bytes : { "\xC2\x80", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
             "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF" })
        EXPECT_EQ(decodeText(bytes).encoding, Encoding::Utf8) << bytes.toHex().constData();
}

TEST(TextEncoding, CodesOfEachLengthAreReadToTheirBorders)
{
    const std::map<QByteArray, char32_t> codes { { "\xC2\x80", 0x80 }, { "\xDF\xBF", 0x7FF },
        { "\xE0\xA0\x80", 0x800 }, { "\xE1\x80\x80", 0x1000 }, { "\xEF\xBF\xBD", 0xFFFD },
        { "\xF0\x90\x80\x80", 0x10000 }, { "\xF1\x80\x80\x80", 0x40000 }, { "\xF4\x8F\xBF\xBD", 0x10FFFD } };
    for (const auto &[bytes, code] : codes) {
        const QString text = QString::fromUcs4(&code, 1);
        EXPECT_EQ(decodeText("<" + bytes + ">").text, u'<' + text + u'>') << bytes.toHex().constData();
        EXPECT_EQ(recoded(bytes), bytes) << bytes.toHex().constData();
        EXPECT_EQ(nameFromDisk(bytes), text) << bytes.toHex().constData();
        EXPECT_EQ(nameToDisk(text), bytes) << bytes.toHex().constData();
    }
}

TEST(TextEncoding, WhatIsUtf8IsDecidedAsTheToolkitDoes)
{
    const QByteArray leads(
        "a\x7F\x80\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xF7\xF8\xFF");
    const QByteArray others("a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xFF");
    QByteArrayList starts { QByteArray() };
    for (int length = 1; length <= 4; ++length) {
        QByteArrayList longer;
        for (const QByteArray &start : starts) {
            for (const char byte : length == 1 ? leads : others)
                longer += start + byte;
        }
        for (const QByteArray &bytes : longer) {
            QStringDecoder toolkit(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            const QString read = toolkit("\xC3\xB1" + bytes);
            const DecodedText text = decodeText("\xC3\xB1" + bytes);
            ASSERT_EQ(text.encoding == Encoding::Utf8, !toolkit.hasError()) << bytes.toHex().constData();
            ASSERT_TRUE(toolkit.hasError() || text.text == read) << bytes.toHex().constData();
        }
        starts = longer;
    }
}

TEST(TextEncoding, EveryByteComesBack)
{
    for (int value = 0; value < 256; ++value) {
        const QByteArray bytes(1, byteOf(value));
        EXPECT_EQ(recoded(bytes), bytes) << value;
        // The 26 is a mark here, and not a character.
        EXPECT_EQ(decodeText(bytes).text.size(), value == 26 ? 0 : 1) << value;
    }
}

TEST(TextEncoding, EveryPairOfBytesComesBack)
{
    for (int value = 0; value < 65536; ++value) {
        QByteArray pair(2, byteOf(value >> 8));
        pair[1] = byteOf(value & 0xFF);
        ASSERT_EQ(recoded(pair), pair) << value;
    }
}

TEST(TextEncoding, RandomBytesComeBack)
{
    std::mt19937 random(1252);
    for (int round = 0; round < 20000; ++round) {
        const QByteArray bytes = randomBytes(random);
        ASSERT_EQ(recoded(bytes), bytes) << bytes.toHex().constData();
    }
}

TEST(TextEncoding, UndefinedBytesStandForThemselves)
{
    EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D").text, u"\u0081\u008D\u008F\u0090\u009D"_s);
}

TEST(TextEncoding, BytesOf1252FromHex80To9FHaveCharactersOfTheirOwn)
{
    QByteArray bytes;
    for (int value = 0x80; value < 0xA0; ++value)
        bytes += byteOf(value);
    const QString text = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s;
    EXPECT_EQ(decodeText(bytes).text, text);
    EXPECT_EQ(encoded(text, Encoding::Windows1252), bytes);
}

TEST(TextEncoding, OtherBytesOf1252StandForTheirOwnCode)
{
    for (int value = 0; value < 256; ++value) {
        if ((value < 0x80 || value >= 0xA0) && value != 26) {
            EXPECT_EQ(decodeText(QByteArray(1, byteOf(value))).text, QString(QChar(value))) << value;
        }
    }
}

TEST(TextEncoding, FileKeepsItsOwn)
{
    EXPECT_EQ(encoded(u"ñ€"_s, Encoding::Windows1252), "\xF1\x80");
    EXPECT_EQ(encoded(u"ñ€"_s, Encoding::Utf8), "\xC3\xB1\xE2\x82\xAC");
    EXPECT_EQ(encoded(u"ñ"_s, Encoding::Utf8WithMark), "\xEF\xBB\xBF\xC3\xB1");
}

TEST(TextEncoding, MovesToUtf8_WhenACharacterIsNotInWindows1252)
{
    EXPECT_EQ(encoded(u"ñ Ω"_s, Encoding::Windows1252), "\xC3\xB1 \xCE\xA9");
    EXPECT_EQ(encoded(u"\uF7F1"_s, Encoding::Windows1252), "\xEF\x9F\xB1");
    EXPECT_EQ(encoded(u"\u0080"_s, Encoding::Windows1252), "\xC2\x80");
    EXPECT_EQ(encoded(u"\u009F"_s, Encoding::Windows1252), "\xC2\x9F");
    EXPECT_EQ(encoded(u"\u00A0ÿ"_s, Encoding::Windows1252), "\xA0\xFF");
    EXPECT_EQ(encoded(u"\u0100"_s, Encoding::Windows1252), "\xC4\x80");
}

TEST(TextEncoding, MovesToUtf8_WhenTheBytesWouldReadAsUtf8)
{
    const QByteArray bytes = encoded(u"Ã±"_s, Encoding::Windows1252);
    EXPECT_EQ(bytes, "\xC3\x83\xC2\xB1");
    EXPECT_EQ(decodeText(bytes).text, u"Ã±"_s);
}

TEST(TextEncoding, EveryTextComesBack)
{
    std::mt19937 random(65001);
    const QString characters = u"aÃ±\u0081€Ω\uF7F1\uFEFF\U0001F3AEï»¿"_s;
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (std::size_t left = random() % 6; left > 0; --left)
            text += characters[qsizetype(random() % std::size_t(characters.size()))];
        if (!text.isValidUtf16() || text.startsWith(u'\uFEFF'))
            continue;
        ASSERT_EQ(decodeText(encoded(text, Encoding::Windows1252)).text, text);
    }
}

TEST(NameEncoding, ValidNamesAreUtf8)
{
    EXPECT_EQ(nameFromDisk("Espa\xC3\xB1"
                           "a.zip"),
        u"España.zip"_s);
    EXPECT_EQ(nameToDisk(u"España.zip"_s),
        "Espa\xC3\xB1"
        "a.zip");
}

TEST(NameEncoding, InvalidBytesArePrivateCharacters)
{
    EXPECT_EQ(nameFromDisk("Espa\xF1"
                           "a.zip"),
        u"Espa\uF7F1a.zip"_s);
    EXPECT_EQ(nameToDisk(u"Espa\uF7F1a.zip"_s),
        "Espa\xF1"
        "a.zip");
    EXPECT_EQ(nameFromDisk("\xC3"), u"\uF7C3"_s);
}

TEST(NameEncoding, BytesOfThePrivateCharactersThemselvesAreTakenOneByOne)
{
    const QByteArray bytes("\xEF\x9F\xB1"); // U+F7F1
    EXPECT_EQ(nameFromDisk(bytes), u"\uF7EF\uF79F\uF7B1"_s);
    EXPECT_EQ(nameToDisk(nameFromDisk(bytes)), bytes);
    EXPECT_EQ(nameFromDisk("\x80\xFF"), u"\uF780\uF7FF"_s);
    EXPECT_EQ(nameToDisk(u"\uF780\uF7FF"_s), "\x80\xFF");
    for (const QByteArray own : { "\xEF\x9E\x80", "\xEF\x9F\xBF" })
        EXPECT_EQ(nameFromDisk(own).size(), 3) << own.toHex().constData();
    // Below and above the range nothing is special.
    EXPECT_EQ(nameFromDisk("\xEF\x9D\xBF"), u"\uF77F"_s);
    EXPECT_EQ(nameToDisk(u"\uF77F"_s), "\xEF\x9D\xBF");
    EXPECT_EQ(nameFromDisk("\xEF\xA0\x80"), u"\uF800"_s);
    EXPECT_EQ(nameToDisk(u"\uF800"_s), "\xEF\xA0\x80");
}

TEST(NameEncoding, CharactersBeyondTheFirstPlaneAreOneCode)
{
    EXPECT_EQ(nameFromDisk("a\xF0\x9F\x8E\xAE\xFF.zip"), u"a\U0001F3AE\uF7FF.zip"_s);
    EXPECT_EQ(nameToDisk(u"a\U0001F3AE\uF7FF.zip"_s), "a\xF0\x9F\x8E\xAE\xFF.zip");
}

TEST(NameEncoding, EveryNameComesBack)
{
    std::mt19937 random(8);
    for (int round = 0; round < 20000; ++round) {
        const QByteArray bytes = randomBytes(random);
        ASSERT_EQ(nameToDisk(nameFromDisk(bytes)), bytes) << bytes.toHex().constData();
    }
}
