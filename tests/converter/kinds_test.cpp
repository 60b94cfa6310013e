// How pixels are packed: bits, planes, runs, lines.

#include "pcxfile.h"

namespace {

const QByteArray Sixteen = "000000 110000 220000 330000 440000 550000 660000 770000"
                           "880000 990000 AA0000 BB0000 CC0000 DD0000 EE0000 FF0000";
constexpr auto SixteenInARow = "000000 110000 220000 330000 440000 550000 660000 770000 "
                               "880000 990000 AA0000 BB0000 CC0000 DD0000 EE0000 FF0000\n";

TEST(PcxKinds, HasTheLeftmostPixelInTheUppermostBit_OfOneBit)
{
    EXPECT_EQ(pixelsOf({ .data = "2500" }), "000000 000000 FFFFFF 000000 000000 FFFFFF 000000 FFFFFF\n");
}

TEST(PcxKinds, AddsUpTwoPlanes)
{
    EXPECT_EQ(
        pixelsOf({ .right = 3, .colours = "0000FF00FF00FF0000FFFFFF", .planes = 2, .data = "5000 3000" }),
        "0000FF 00FF00 FF0000 FFFFFF\n");
}

TEST(PcxKinds, AddsUpThreePlanes)
{
    EXPECT_EQ(pixelsOf({ .colours = Sixteen, .planes = 3, .data = "5500 3300 0F00" }),
        "000000 110000 220000 330000 440000 550000 660000 770000\n");
}

TEST(PcxKinds, AddsUpFourPlanes_TheFirstCountingLeast)
{
    EXPECT_EQ(pixelsOf({ .right = 15, .colours = Sixteen, .planes = 4, .data = "5555 3333 0F0F 00C1FF" }),
        SixteenInARow);
}

TEST(PcxKinds, HasFourPixelsInAByte_OfTwoBits)
{
    EXPECT_EQ(pixelsOf({ .bits = 2, .right = 4, .colours = "0000FF00FF00FF0000FFFFFF", .data = "1B80" }),
        "0000FF 00FF00 FF0000 FFFFFF FF0000\n");
}

TEST(PcxKinds, HasTwoPixelsInAByte_OfFourBits)
{
    EXPECT_EQ(pixelsOf({ .bits = 4,
                  .right = 15,
                  .colours = Sixteen,
                  .bytesPerLine = 8,
                  .data = "0123456789ABC1CDC1EF" }),
        SixteenInARow);
}

TEST(PcxKinds, HasAByteForAPixel_OfEightBits)
{
    EXPECT_EQ(pixelsOf({ .bits = 8, .right = 2, .bytesPerLine = 4, .data = "00 10 C1FF 00" + endPalette() }),
        "00FF07 10EF07 FF0007\n");
}

TEST(PcxKinds, HasTheColoursThemselves_InThreePlanesOfEightBits)
{
    EXPECT_EQ(pixelsOf({ .bits = 8, .right = 1, .planes = 3, .data = "0102 0304 0506" }), "010305 020406\n");
}

TEST(PcxKinds, LeavesOutAFourthPlaneOfEightBits)
{
    EXPECT_EQ(
        pixelsOf({ .bits = 8, .right = 1, .planes = 4, .data = "0102 0304 0506 0000" }), "010305 020406\n");
}

TEST(PcxKinds, StretchesFourBitsOfAColourToEight)
{
    EXPECT_EQ(
        pixelsOf({ .bits = 4, .right = 1, .planes = 3, .data = "1200 3400 C1F000" }), "1133FF 224400\n");
    EXPECT_EQ(
        pixelsOf({ .bits = 4, .right = 1, .planes = 4, .data = "1200 3400 C1F000 0000" }), "1133FF 224400\n");
}

TEST(PcxKinds, LeavesOutWhatFillsALine)
{
    EXPECT_EQ(pixelsOf({ .right = 2, .bottom = 1, .bytesPerLine = 3, .data = "BFBFBF 20BFBF" }),
        "FFFFFF 000000 FFFFFF\n000000 000000 FFFFFF\n");
}

TEST(PcxKinds, CountsItsSizeFromItsPlaceOnTheScreen)
{
    EXPECT_EQ(pixelsOf({ .left = 300, .top = 199, .right = 301, .bottom = 200, .data = "8000 4000" }),
        "FFFFFF 000000\n000000 FFFFFF\n");
}

TEST(PcxKinds, TakesBytesAsTheyAre_WhereNothingIsPacked)
{
    EXPECT_EQ(pixelsOf({ .encoding = 0, .right = 3, .bottom = 1, .data = "C300 0000" }),
        "FFFFFF FFFFFF 000000 000000\n000000 000000 000000 000000\n");
}

TEST(PcxKinds, RepeatsTheByteBehindACount)
{
    EXPECT_EQ(pixelsOf({ .right = 1, .bottom = 2, .bytesPerLine = 1, .data = "C280 40" }),
        "FFFFFF 000000\nFFFFFF 000000\n000000 FFFFFF\n");
}

TEST(PcxKinds, HasRunsOfUpTo63)
{
    const std::string line =
        pixelsOf({ .bits = 8, .right = 63, .bytesPerLine = 64, .data = "FF01 02" + endPalette() });
    std::string expected;
    for (int i = 0; i < 63; ++i)
        expected += "01FE07 ";
    EXPECT_EQ(line, expected + "02FD07\n");
}

TEST(PcxKinds, GoesOnWithARun_IntoTheNextPlaneAndTheNextLine)
{
    EXPECT_EQ(pixelsOf({ .bits = 8, .right = 1, .bottom = 1, .planes = 3, .data = "CC11" }),
        "111111 111111\n111111 111111\n");
}

TEST(PcxKinds, TakesARunOfNoneForNothing)
{
    EXPECT_EQ(pixelsOf({ .right = 1, .data = "C080 4000" }), "000000 FFFFFF\n");
}

TEST(PcxKinds, LeavesOutWhatStandsBehindTheLastLine)
{
    EXPECT_EQ(pixelsOf({ .right = 1, .data = "4000 FFFF FFFF 1A" }), "000000 FFFFFF\n");
}

} // namespace
