#include "forms/units.h"

#include <QFontInfo>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Units, TwipsBecomePixels_RoundedToTheNearest)
{
    EXPECT_EQ(forms::pixels(0), 0);
    EXPECT_EQ(forms::pixels(15), 1);
    EXPECT_EQ(forms::pixels(7), 0);
    EXPECT_EQ(forms::pixels(8), 1);
    EXPECT_EQ(forms::pixels(4460), 297);
    EXPECT_EQ(forms::pixels(-7), 0);
    EXPECT_EQ(forms::pixels(-8), -1);
    EXPECT_EQ(forms::pixels(-2520), -168);
}

TEST(Units, APlaceInTwips_IsTheControlsGeometry)
{
    QWidget control;
    forms::move(control, { 150, 4980, 2280, 600 });
    EXPECT_EQ(control.geometry(), QRect(10, 332, 152, 40));
    const forms::Place place = forms::placeOf(control);
    EXPECT_EQ(place.left, 150);
    EXPECT_EQ(place.top, 4980);
    EXPECT_EQ(place.width, 2280);
    EXPECT_EQ(place.height, 600);
}

TEST(Units, Fonts_AreSetInDesignPixels)
{
    EXPECT_EQ(forms::arial(8.25).pixelSize(), 11);
    EXPECT_EQ(forms::courier(9.75).pixelSize(), 13);
    EXPECT_EQ(forms::terminal(6, true).pixelSize(), 8);
    EXPECT_FALSE(forms::arial(8.25).bold());
    EXPECT_TRUE(forms::terminal(6, true).bold());
}

TEST(Units, Fonts_AreTheFreeOnesOfTheSameMeasures)
{
    EXPECT_EQ(QFontInfo(forms::arial(8.25)).family(), u"Liberation Sans"_s);
    EXPECT_EQ(QFontInfo(forms::courier(9.75)).family(), u"Liberation Mono"_s);
    EXPECT_EQ(QFontInfo(forms::terminal(6)).family(), u"Liberation Mono"_s);
}

TEST(Units, AColourNumber_IsReadBlueGreenRed)
{
    EXPECT_EQ(forms::colourFromNumber(0x0000C0), QColor(192, 0, 0));
    EXPECT_EQ(forms::colourFromNumber(65535), QColor(255, 255, 0));
    EXPECT_EQ(forms::colourFromNumber(0x800000), QColor(0, 0, 128));
}

TEST(Units, SystemColours_AreThoseOfTheOwnPalette)
{
    EXPECT_EQ(forms::colourFromNumber(0x80000005), QColor(255, 255, 255));
    EXPECT_EQ(forms::colourFromNumber(0x80000012), QColor(0, 0, 0));
}

} // namespace
