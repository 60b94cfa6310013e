#include "forms/application.h"
#include "forms/units.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QStyle>

#include <QToolTip>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Application, ClosingTheLastWindow_DoesNotEndTheProcess)
{
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST(Application, ListsAndBoxes_AreBlackOnWhite)
{
    const QListWidget list;
    const QLineEdit box;
    for (const QPalette &palette : { list.palette(), box.palette() }) {
        EXPECT_EQ(palette.color(QPalette::Base), QColor(Qt::white));
        EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::black));
    }
}

TEST(Application, EveryRoleOfThePalette_IsTheProgramsOwn)
{
    // A role left open would take the colour of the desktop's theme.
    const QPalette palette = QApplication::palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role == QPalette::NoRole)
            continue;
        EXPECT_TRUE(palette.isBrushSet(QPalette::Active, static_cast<QPalette::ColorRole>(role))) << role;
        EXPECT_TRUE(palette.isBrushSet(QPalette::Disabled, static_cast<QPalette::ColorRole>(role))) << role;
    }
}

TEST(Application, EveryControl_HasTheProgramsFont)
{
    const QMenu menu;
    const QCheckBox check;
    EXPECT_EQ(menu.font().pixelSize(), 11);
    EXPECT_EQ(menu.font().family(), u"Liberation Sans"_s);
    EXPECT_EQ(check.font().pixelSize(), 11);
}

TEST(Application, AHiddenTipMakesRoomForOneElsewhere)
{
    QWidget window;
    window.show();
    QToolTip::showText({ 10, 10 }, u"one"_s, &window);
    ASSERT_TRUE(QToolTip::isVisible());
    forms::hideTip();
    EXPECT_FALSE(QToolTip::isVisible());
    QToolTip::showText({ 300, 300 }, u"other"_s, &window);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), u"other"_s);
    forms::hideTip();
}

TEST(Application, DropDownLists_DropDown)
{
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
}

} // namespace
