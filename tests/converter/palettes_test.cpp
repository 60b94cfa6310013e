// Where a picture's colours come from.

#include "pcxfile.h"

namespace {

constexpr auto EgaInARow = "000000 0000AA 00AA00 00AAAA AA0000 AA00AA AA5500 AAAAAA "
                           "555555 5555FF 55FF55 55FFFF FF5555 FF55FF FFFF55 FFFFFF\n";
const QByteArray Four = "0000FF 00FF00 FF0000 FFFFFF";

// All sixteen colours in a line, in four planes.
PcxFile sixteenColours(int version, const QByteArray &colours)
{
    return {
        .version = version, .right = 15, .colours = colours, .planes = 4, .data = "5555 3333 0F0F 00C1FF"
    };
}

// The four colours in a line.
PcxFile fourColours(int version, const QByteArray &colours)
{
    return { .version = version, .bits = 2, .right = 3, .colours = colours, .data = "1B00" };
}

// The two colours in a line.
PcxFile twoColours(int version, const QByteArray &colours)
{
    return { .version = version, .right = 1, .colours = colours, .data = "4000" };
}

TEST(PcxPalettes, AreTheEgas_InVersionsWithoutAPalette)
{
    EXPECT_EQ(pixelsOf(sixteenColours(0, "111111 222222")), EgaInARow);
    EXPECT_EQ(pixelsOf(sixteenColours(3, "111111 222222")), EgaInARow);
}

TEST(PcxPalettes, AreTheEgas_InPackedPixelsAndFewerPlanesToo)
{
    EXPECT_EQ(
        pixelsOf({ .version = 3, .bits = 4, .right = 15, .bytesPerLine = 8, .data = "0123456789ABC1CDC1EF" }),
        EgaInARow);
    EXPECT_EQ(pixelsOf({ .version = 3, .planes = 3, .data = "5500 3300 0F00" }),
        "000000 0000AA 00AA00 00AAAA AA0000 AA00AA AA5500 AAAAAA\n");
    EXPECT_EQ(pixelsOf({ .version = 0, .right = 3, .planes = 2, .data = "5000 3000" }),
        "000000 0000AA 00AA00 00AAAA\n");
}

TEST(PcxPalettes, AreTheHeaders_InVersionsWithAPalette)
{
    const QByteArray colours = "000001 000002 000003 000004 000005 000006 000007 000008"
                               "000009 00000A 00000B 00000C 00000D 00000E 00000F 000010";
    for (const int version : { 2, 4, 5 }) {
        EXPECT_EQ(pixelsOf(sixteenColours(version, colours)),
            "000001 000002 000003 000004 000005 000006 000007 000008 "
            "000009 00000A 00000B 00000C 00000D 00000E 00000F 000010\n");
    }
}

TEST(PcxPalettes, AreTheEgas_WhereTheHeaderHasNone)
{
    EXPECT_EQ(pixelsOf(sixteenColours(5, {})), EgaInARow);
}

TEST(PcxPalettes, AreGreys_WhereTheHeaderSaysSoAndHasNone)
{
    PcxFile file = sixteenColours(5, {});
    file.paletteKind = 2;
    EXPECT_EQ(pixelsOf(file),
        "000000 111111 222222 333333 444444 555555 666666 777777 "
        "888888 999999 AAAAAA BBBBBB CCCCCC DDDDDD EEEEEE FFFFFF\n");
}

TEST(PcxPalettes, AreTheHeaders_OfTwoBitsWithFourColours)
{
    EXPECT_EQ(pixelsOf(fourColours(5, Four)), "0000FF 00FF00 FF0000 FFFFFF\n");
    EXPECT_EQ(pixelsOf(fourColours(2, Four)), "0000FF 00FF00 FF0000 FFFFFF\n");
}

TEST(PcxPalettes, AreTheCgas_OfTwoBitsInVersionsWithoutAPalette)
{
    EXPECT_EQ(pixelsOf(fourColours(0, Four)), "000000 00AA00 AA0000 AA5500\n");
    EXPECT_EQ(pixelsOf(fourColours(3, Four)), "000000 00AA00 AA0000 AA5500\n");
}

struct Cga {
    const char *mode; // the first byte of the second colour
    const char *colours;
};

TEST(PcxPalettes, FollowTheCgasRegisters)
{
    for (const auto &[mode, colours] : {
             Cga { "00", "000000 00AA00 AA0000 AA5500\n" }, Cga { "20", "000000 55FF55 FF5555 FFFF55\n" },
             Cga { "40", "000000 00AAAA AA00AA AAAAAA\n" }, Cga { "60", "000000 55FFFF FF55FF FFFFFF\n" },
             Cga { "80", "000000 00AAAA AA0000 AAAAAA\n" }, Cga { "A0", "000000 55FFFF FF5555 FFFFFF\n" },
             Cga { "C0", "000000 00AAAA AA0000 AAAAAA\n" }, Cga { "E0", "000000 55FFFF FF5555 FFFFFF\n" },
             Cga { "1F", "000000 00AA00 AA0000 AA5500\n" }, // the lower bits say nothing
         }) {
        EXPECT_EQ(pixelsOf(fourColours(5, QByteArray("000000") + mode)), colours) << mode;
    }
}

TEST(PcxPalettes, HaveTheCgasBackgroundInTheUpperHalfOfTheFirstByte)
{
    EXPECT_EQ(pixelsOf(fourColours(2, "1F0000 60")), "0000AA 55FFFF FF55FF FFFFFF\n");
    EXPECT_EQ(pixelsOf(fourColours(2, "E00000 40")), "FFFF55 00AAAA AA00AA AAAAAA\n");
}

TEST(PcxPalettes, HaveTwoColoursOfTheirOwn)
{
    EXPECT_EQ(pixelsOf(twoColours(5, "800000 00FFFF")), "800000 00FFFF\n");
    EXPECT_EQ(pixelsOf(twoColours(2, "FFFFFF 000000")), "FFFFFF 000000\n");
}

TEST(PcxPalettes, AreBlackAndWhite_WhereTwoColoursAreLeftToChance)
{
    EXPECT_EQ(pixelsOf(twoColours(0, "800000 00FFFF")), "000000 FFFFFF\n");
    EXPECT_EQ(pixelsOf(twoColours(3, "800000 00FFFF")), "000000 FFFFFF\n");
    EXPECT_EQ(pixelsOf(twoColours(5, "000000 0000AA 00AA00")), "000000 FFFFFF\n");
    EXPECT_EQ(pixelsOf(twoColours(5, "0F0F0F 0E0E0E")), "000000 FFFFFF\n");
    EXPECT_EQ(pixelsOf(twoColours(5, {})), "000000 FFFFFF\n");
}

PcxFile eightBits(int version, int paletteKind, const QByteArray &tail)
{
    return { .version = version, .bits = 8, .right = 1, .paletteKind = paletteKind, .data = "0180" + tail };
}

TEST(PcxPalettes, StandAtTheEnd_OfEightBits)
{
    EXPECT_EQ(pixelsOf(eightBits(5, 1, endPalette())), "01FE07 807F07\n");
    EXPECT_EQ(pixelsOf(eightBits(5, 2, endPalette())), "01FE07 807F07\n");
    EXPECT_EQ(pixelsOf(eightBits(3, 1, endPalette())), "01FE07 807F07\n");
}

TEST(PcxPalettes, StandAtTheEnd_BehindFurtherLines)
{
    EXPECT_EQ(pixelsOf(eightBits(5, 1, "0C0C C40C" + endPalette())), "01FE07 807F07\n");
}

TEST(PcxPalettes, StandBehindThePixels_WhereTheFileGoesOn)
{
    EXPECT_EQ(pixelsOf(eightBits(5, 1, endPalette() + "1A1A")), "01FE07 807F07\n");
}

TEST(PcxPalettes, AreGreys_OfEightBitsWithoutColours)
{
    EXPECT_EQ(pixelsOf(eightBits(5, 2, {})), "010101 808080\n");
    EXPECT_EQ(pixelsOf(eightBits(3, 1, {})), "010101 808080\n");
    EXPECT_EQ(pixelsOf(eightBits(0, 0, {})), "010101 808080\n");
}

} // namespace
