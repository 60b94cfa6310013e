#include "forms/growth.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using forms::frameLines;
using forms::grownPlace;

constexpr QRect Room(0, 0, 200, 100);
constexpr QRect Own(80, 40, 40, 14);

struct Case {
    std::string name;
    Qt::Alignment alignment;
    int width; // of the caption
    QList<QRect> obstacles;
    QRect expected;
};

class Growth : public testing::TestWithParam<Case> { };

TEST_P(Growth, TakesTheFreeRoomAboutItsPointOfAlignment)
{
    const Case &given = GetParam();
    EXPECT_EQ(grownPlace(Own, given.width, given.alignment, Room, given.obstacles), given.expected);
}

const QRect rightOf(130, 30, 30, 30); // leaves 10 pixels
const QRect leftOf(50, 30, 25, 30); // leaves 5 pixels
const QRect above(60, 20, 100, 20); // ends on the line above
const QRect below(60, 54, 100, 20); // begins on the line below
const QRect grazing(130, 53, 30, 30); // shares one line of pixels
const QRect overRight(110, 30, 60, 30);
const QRect within(90, 42, 10, 10);

INSTANTIATE_TEST_SUITE_P(Captions, Growth,
    testing::Values(Case { "LeftAlignedFits", Qt::AlignLeft, 40, {}, Own },
        Case { "LeftAlignedGrowsRight", Qt::AlignLeft, 60, {}, QRect(80, 40, 60, 14) },
        Case { "LeftAlignedStopsAtTheEdge", Qt::AlignLeft, 500, {}, QRect(80, 40, 120, 14) },
        Case { "LeftAlignedStopsAtAControl", Qt::AlignLeft, 60, { rightOf }, QRect(80, 40, 50, 14) },
        Case { "LeftAlignedDoesNotGrowLeft", Qt::AlignLeft, 60, { leftOf }, QRect(80, 40, 60, 14) },
        Case { "RightAlignedGrowsLeft", Qt::AlignRight, 60, {}, QRect(60, 40, 60, 14) },
        Case { "RightAlignedStopsAtTheEdge", Qt::AlignRight, 500, {}, QRect(0, 40, 120, 14) },
        Case { "RightAlignedStopsAtAControl", Qt::AlignRight, 60, { leftOf }, QRect(75, 40, 45, 14) },
        Case { "CentredGrowsEvenly", Qt::AlignHCenter, 60, {}, QRect(70, 40, 60, 14) },
        Case { "CentredGivesTheOddPixelToTheRight", Qt::AlignHCenter, 45, {}, QRect(78, 40, 45, 14) },
        Case { "CentredTakesOnTheLeftWhatTheRightLacks", Qt::AlignHCenter, 80, { rightOf },
            QRect(50, 40, 80, 14) },
        Case { "CentredTakesOnTheRightWhatTheLeftLacks", Qt::AlignHCenter, 80, { leftOf },
            QRect(75, 40, 80, 14) },
        Case { "CentredStopsOnBothSides", Qt::AlignHCenter, 80, { leftOf, rightOf }, QRect(75, 40, 55, 14) },
        Case {
            "ControlsAboveAndBelowDoNotCount", Qt::AlignLeft, 60, { above, below }, QRect(80, 40, 60, 14) },
        Case { "OneSharedLineCounts", Qt::AlignLeft, 60, { grazing }, QRect(80, 40, 50, 14) },
        Case { "TheNearestControlCounts", Qt::AlignLeft, 90,
            { QRect(150, 40, 5, 5), rightOf, QRect(140, 40, 5, 5) }, QRect(80, 40, 50, 14) },
        Case { "AControlUnderTheRightEdgeStopsThatSide", Qt::AlignHCenter, 60, { overRight },
            QRect(60, 40, 60, 14) },
        Case { "AControlWithinDoesNotCount", Qt::AlignLeft, 60, { within }, QRect(80, 40, 60, 14) },
        Case { "AFrameAroundStopsAtItsLines", Qt::AlignHCenter, 180, frameLines(QRect(60, 30, 100, 40)),
            QRect(61, 40, 98, 14) },
        Case { "AFrameBesideStopsAtItsLine", Qt::AlignLeft, 90, frameLines(QRect(140, 20, 50, 60)),
            QRect(80, 40, 60, 14) }),
    [](const auto &tested) { return tested.param.name; });

TEST(GrowthOfPlaces, OutsideTheRoom_ThePlaceStaysAsItIs)
{
    const QRect outside(190, 40, 40, 14);
    EXPECT_EQ(grownPlace(outside, 100, Qt::AlignLeft, Room, {}), outside);
}

TEST(GrowthOfPlaces, AFrame_IsFourLines)
{
    EXPECT_EQ(frameLines(QRect(10, 20, 30, 40)),
        (QList<QRect> {
            QRect(10, 20, 30, 1), QRect(10, 59, 30, 1), QRect(10, 20, 1, 40), QRect(39, 20, 1, 40) }));
}

} // namespace
