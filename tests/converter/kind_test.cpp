// What kind of picture a file is, by its first bytes.

#include "converter/kind.h"

#include <QByteArray>
#include <QByteArrayList>

#include <gtest/gtest.h>

using converter::Kind;

namespace {

Kind kindOf(const QByteArray &bytes)
{
    return converter::kindOf(
        { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) });
}

} // namespace

TEST(Kinds, AreToldByTheFirstBytes)
{
    const QByteArray rest(16, '\0');
    EXPECT_EQ(kindOf("\x89PNG\r\n\x1A\n" + rest), Kind::Png);
    EXPECT_EQ(kindOf("\xFF\xD8\xFF\xE0" + rest), Kind::Jpeg);
    EXPECT_EQ(kindOf("GIF87a" + rest), Kind::Gif);
    EXPECT_EQ(kindOf("GIF89a" + rest), Kind::Gif);
    EXPECT_EQ(kindOf("RIFF\x10\x20\x30\x40WEBP" + rest), Kind::WebP);
    EXPECT_EQ(kindOf(QByteArray("II*\0", 4) + rest), Kind::Tiff);
    EXPECT_EQ(kindOf(QByteArray("MM\0*", 4) + rest), Kind::Tiff);
    EXPECT_EQ(kindOf("BM" + QByteArray(12, 'x') + QByteArray("\x28\0", 2)), Kind::Bmp);
    EXPECT_EQ(kindOf(QByteArray::fromHex("0A050108") + rest), Kind::Pcx);
    EXPECT_EQ(kindOf(QByteArray::fromHex("0A000101") + rest), Kind::Pcx);
}

TEST(Kinds, AreNoneOfWhatOnlyBeginsLikeOne)
{
    const QByteArray rest(16, '\0');
    const QByteArrayList others = { QByteArray(), QByteArray("G"), "GIF88a" + rest,
        "RIFF\x10\x20\x30\x40WAVE" + rest, QByteArray("BMW is a car, this is a text"), QByteArray("\x89PNG"),
        "%PDF-1.4" + rest, "<svg " + rest, QByteArray::fromHex("0A010108") + rest,
        QByteArray::fromHex("0A050208") + rest, QByteArray::fromHex("0A050103") + rest, QByteArray("II*"),
        QByteArray("NES\x1A") + rest };
    for (const QByteArray &bytes : others)
        EXPECT_EQ(kindOf(bytes), Kind::None) << bytes.toPercentEncoding().constData();
}
