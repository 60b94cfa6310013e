// What isn't whole is refused, in plain words, and costs nothing.

#include "pcxfile.h"

namespace {

constexpr auto CutShort = "the file ends before the picture does";
constexpr auto NoPalette = "the palette of 256 colours at its end is missing";

// The sixteen colours of four planes, with a run, two lines.
PcxFile planes()
{
    return { .right = 15, .bottom = 1, .planes = 4, .data = "5555 3333 0F0F 00C1FF C255 C233 C20F 00C1FF" };
}

PcxFile eightBits()
{
    return { .bits = 8, .right = 1, .data = "0180" + endPalette() };
}

TEST(PcxDamage, IsNoPicture)
{
    EXPECT_EQ(complaintAbout(QByteArray()), "it is empty");
    EXPECT_EQ(complaintAbout("GIF89a"), "it is no PCX picture");
    EXPECT_EQ(complaintAbout(PcxFile { .maker = 11, .data = "0000" }), "it is no PCX picture");
    EXPECT_EQ(complaintAbout(QByteArray(200, '\n')), "it is no PCX picture, or of an unknown version");
}

TEST(PcxDamage, IsOfAnUnknownVersion)
{
    constexpr auto unknown = "it is no PCX picture, or of an unknown version";
    EXPECT_EQ(complaintAbout(PcxFile { .version = 1, .data = "0000" }), unknown);
    EXPECT_EQ(complaintAbout(PcxFile { .version = 6, .data = "0000" }), unknown);
    EXPECT_EQ(complaintAbout(PcxFile { .encoding = 2, .data = "0000" }), unknown);
}

TEST(PcxDamage, IsOfAKindThatDoesNotExist)
{
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 3 }), "no PCX picture has 3 bits in 1 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 0 }), "no PCX picture has 0 bits in 1 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 255 }), "no PCX picture has 255 bits in 1 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .planes = 0 }), "no PCX picture has 1 bits in 0 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .planes = 5 }), "no PCX picture has 1 bits in 5 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 2, .planes = 4 }), "no PCX picture has 2 bits in 4 planes");
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 8, .planes = 2 }), "no PCX picture has 8 bits in 2 planes");
}

TEST(PcxDamage, HasNoPixels)
{
    constexpr auto none = "its header says that it has no pixels";
    EXPECT_EQ(complaintAbout(PcxFile { .left = 8, .data = "0000" }), none);
    EXPECT_EQ(complaintAbout(PcxFile { .top = 1, .data = "0000" }), none);
    EXPECT_EQ(complaintAbout(PcxFile { .left = 65535, .right = 0, .data = "0000" }), none);
}

TEST(PcxDamage, IsTooLarge)
{
    EXPECT_EQ(complaintAbout(PcxFile { .right = 65535, .bottom = 65535, .bytesPerLine = 8192 }),
        "it is too large: 65536 by 65536 pixels");
    EXPECT_EQ(complaintAbout(PcxFile { .right = 7999, .bottom = 5000, .bytesPerLine = 1000 }),
        "it is too large: 8000 by 5001 pixels");
    EXPECT_EQ(complaintAbout(PcxFile { .right = 7999, .bottom = 4999, .bytesPerLine = 1000 }), CutShort);
}

TEST(PcxDamage, HasASideThatNoGifCanHave)
{
    EXPECT_EQ(complaintAbout(PcxFile { .right = 65535, .bytesPerLine = 8192 }),
        "it is too large: 65536 by 1 pixels");
    EXPECT_EQ(complaintAbout(PcxFile { .right = 0, .bottom = 65535 }), "it is too large: 1 by 65536 pixels");
    EXPECT_EQ(complaintAbout(PcxFile { .right = 65534, .bytesPerLine = 8192 }), CutShort);
    EXPECT_EQ(complaintAbout(PcxFile { .right = 0, .bottom = 65534 }), CutShort);
}

TEST(PcxDamage, HasLinesShorterThanItsWidth)
{
    constexpr auto shorter = "its lines are shorter than its width";
    EXPECT_EQ(complaintAbout(PcxFile { .right = 16, .data = "0000" }), shorter);
    EXPECT_EQ(
        complaintAbout(PcxFile { .bits = 8, .right = 2, .planes = 3, .data = "000000000000" }), shorter);
    EXPECT_EQ(complaintAbout(PcxFile { .bytesPerLine = 0, .data = "0000" }), shorter);
}

TEST(PcxDamage, IsCutShort_WithinTheHeader)
{
    for (int length = 1; length < 128; ++length)
        EXPECT_EQ(complaintAbout(planes().bytes().first(length)), CutShort) << length;
}

TEST(PcxDamage, IsCutShort_WithinThePixels)
{
    const QByteArray whole = planes().bytes();
    for (qsizetype length = 128; length < whole.size(); ++length)
        EXPECT_EQ(complaintAbout(whole.first(length)), CutShort) << length;
    EXPECT_EQ(complaintAbout(whole), "");
}

TEST(PcxDamage, IsCutShort_WithinUnpackedPixels)
{
    const QByteArray whole = PcxFile { .encoding = 0, .bottom = 2, .data = "112233445566" }.bytes();
    for (qsizetype length = 128; length < whole.size(); ++length)
        EXPECT_EQ(complaintAbout(whole.first(length)), CutShort) << length;
    EXPECT_EQ(complaintAbout(whole), "");
}

TEST(PcxDamage, IsCutShort_BetweenACountAndItsByte)
{
    EXPECT_EQ(complaintAbout(PcxFile { .data = "C2" }), CutShort);
}

TEST(PcxDamage, IsCutShort_WithinThePalette)
{
    const QByteArray whole = eightBits().bytes();
    for (qsizetype length = 130; length < whole.size(); ++length)
        EXPECT_EQ(complaintAbout(whole.first(length)), NoPalette) << length;
    EXPECT_EQ(complaintAbout(whole), "");
}

TEST(PcxDamage, HasNoPalette)
{
    EXPECT_EQ(complaintAbout(PcxFile { .bits = 8, .right = 1, .data = "0180" }), NoPalette);
    QByteArray withoutMark = eightBits().bytes();
    withoutMark[130] = 0x0B;
    EXPECT_EQ(complaintAbout(withoutMark), NoPalette);
}

// A palette is no pixels: with some of them gone it would be taken for the rest.
TEST(PcxDamage, HasLostPixelsAheadOfThePalette)
{
    PcxFile file = { .encoding = 0, .bits = 8, .right = 1, .bottom = 9, .data = "0180018001800180" };
    file.data += endPalette();
    EXPECT_EQ(complaintAbout(file), NoPalette);
    file.bottom = 2000;
    EXPECT_EQ(complaintAbout(file), CutShort);
}

// No byte of the header, whatever it says, leads the reader out of its bounds.
TEST(PcxDamage, YieldsAWholePictureOrNone_WhateverTheHeaderSays)
{
    for (const PcxFile &file : { planes(), eightBits() }) {
        QByteArray bytes = file.bytes();
        for (int i = 0; i < 128; ++i) {
            const char original = bytes[i];
            for (int value = 0; value < 256; value += 3) { // 0 and 255 among them
                bytes[i] = char(value);
                try {
                    const converter::Picture picture = converter::readPcx(span(bytes));
                    const int bytesPerPixel = picture.palette.empty() ? 3 : 1;
                    ASSERT_EQ(
                        picture.pixels.size(), std::size_t(picture.width * picture.height * bytesPerPixel));
                    ASSERT_FALSE(pixelsOf(picture).empty());
                } catch (const converter::Unreadable &complaint) {
                    ASSERT_STRNE(complaint.what(), "");
                }
            }
            bytes[i] = original;
        }
    }
}

} // namespace
