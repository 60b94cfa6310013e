#include "disktest.h"

#include "host/numbers.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace host;

namespace {

const NumberSigns Spanish { u","_s, u"."_s };
const NumberSigns English { u"."_s, u","_s };

} // namespace

TEST(Numbers, GroupsAreOfThreeDigits)
{
    EXPECT_EQ(formatGrouped(1, English), u"1"_s);
    EXPECT_EQ(formatGrouped(999, English), u"999"_s);
    EXPECT_EQ(formatGrouped(1000, English), u"1,000"_s);
    EXPECT_EQ(formatGrouped(123456, English), u"123,456"_s);
    EXPECT_EQ(formatGrouped(1234567, Spanish), u"1.234.567"_s);
    EXPECT_EQ(formatGrouped(-1234567, Spanish), u"-1.234.567"_s);
}

TEST(Numbers, HalvesOfWholeNumbersAreRoundedAwayFromZero)
{
    EXPECT_EQ(formatGrouped(512.0 / 1024, English), u"1"_s);
    EXPECT_EQ(formatGrouped(1.5, English), u"2"_s);
    EXPECT_EQ(formatGrouped(2.5, English), u"3"_s);
    EXPECT_EQ(formatGrouped(2.4999, English), u"2"_s);
    EXPECT_EQ(formatGrouped(-2.5, English), u"-3"_s);
    EXPECT_EQ(formatGrouped(999.5, English), u"1,000"_s);
    EXPECT_EQ(formatGrouped(999999.5, English), u"1,000,000"_s);
}

TEST(Numbers, WhatRoundsToZeroIsNothing_InGroups)
{
    EXPECT_EQ(formatGrouped(0, English), QString());
    EXPECT_EQ(formatGrouped(511.0 / 1024, English), QString());
    EXPECT_EQ(formatGrouped(-0.4, English), QString());
}

TEST(Numbers, OneOrTwoPlacesStandBehindTheDecimalSign)
{
    EXPECT_EQ(formatTwoDecimals(0, English), u"0.0"_s);
    EXPECT_EQ(formatTwoDecimals(2, English), u"2.0"_s);
    EXPECT_EQ(formatTwoDecimals(1.5, Spanish), u"1,5"_s);
    EXPECT_EQ(formatTwoDecimals(0.25, Spanish), u"0,25"_s);
    EXPECT_EQ(formatTwoDecimals(1234567.89, English), u"1234567.89"_s);
    EXPECT_EQ(formatTwoDecimals(-1.25, English), u"-1.25"_s);
}

TEST(Numbers, HalvesOfHundredthsAreRoundedAwayFromZero)
{
    EXPECT_EQ(formatTwoDecimals(0.125, English), u"0.13"_s);
    EXPECT_EQ(formatTwoDecimals(0.375, English), u"0.38"_s);
    EXPECT_EQ(formatTwoDecimals(0.124999, English), u"0.12"_s);
    EXPECT_EQ(formatTwoDecimals(0.004, English), u"0.0"_s);
    EXPECT_EQ(formatTwoDecimals(-0.004, English), u"0.0"_s);
    EXPECT_EQ(formatTwoDecimals(0.005, English), u"0.01"_s);
    EXPECT_EQ(formatTwoDecimals(0.095, English), u"0.1"_s);
    EXPECT_EQ(formatTwoDecimals(0.995, English), u"1.0"_s);
    EXPECT_EQ(formatTwoDecimals(9.999, English), u"10.0"_s);
}

TEST(Numbers, ANumberOfOnlyNinesGainsADigit)
{
    EXPECT_EQ(formatGrouped(9.5, English), u"10"_s);
    EXPECT_EQ(formatGrouped(99.5, English), u"100"_s);
    EXPECT_EQ(formatGrouped(-999.5, Spanish), u"-1.000"_s);
    EXPECT_EQ(formatTwoDecimals(99.999, Spanish), u"100,0"_s);
    EXPECT_EQ(formatTwoDecimals(-9.996, English), u"-10.0"_s);
}

TEST(Numbers, RoundingGoesByTheDecimalDigits_WhereTheBitsLieBelowTheHalf)
{
    EXPECT_EQ(formatTwoDecimals(1.005, English), u"1.01"_s);
    EXPECT_EQ(formatTwoDecimals(8.345, English), u"8.35"_s);
}

TEST(Numbers, LargestAndSmallestValuesAreWritten)
{
    EXPECT_EQ(formatTwoDecimals(std::numeric_limits<double>::min(), English), u"0.0"_s);
    EXPECT_EQ(formatTwoDecimals(std::numeric_limits<double>::denorm_min(), English), u"0.0"_s);
    EXPECT_EQ(formatGrouped(std::numeric_limits<double>::max(), { u"."_s, QString() }).size(), 309);
}

TEST(Numbers, SystemsSignsArePointAndComma_InTheLocaleC)
{
    EXPECT_EQ(systemNumberSigns().decimal, u"."_s);
    EXPECT_EQ(systemNumberSigns().group, u","_s);
    EXPECT_EQ(formatGrouped(1234), u"1,234"_s);
    EXPECT_EQ(formatTwoDecimals(0.5), u"0.5"_s);
}
