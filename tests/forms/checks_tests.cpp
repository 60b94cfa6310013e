#include "drive.h"

#include "forms/checks.h"
#include "forms/form.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Checks : public testing::Test {
protected:
    Checks()
    {
        check.setGeometry(10, 10, 60, 17);
        first.setGeometry(10, 40, 60, 17);
        second.setGeometry(10, 60, 60, 17);
        check.Click = [this] { ++checkClicks; };
        first.Click = [this] { ++firstClicks; };
        second.Click = [this] { ++secondClicks; };
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::CheckBox check { &form };
    forms::OptionButton first { &form };
    forms::OptionButton second { &form };
    int checkClicks = 0;
    int firstClicks = 0;
    int secondClicks = 0;
};

TEST_F(Checks, AClickOnACheckBox_TurnsItAndRaisesClick)
{
    drive::show(form);
    drive::click(check, Qt::LeftButton, { 7, 8 });
    EXPECT_EQ(check.Value(), 1);
    EXPECT_EQ(checkClicks, 1);
    drive::click(check, Qt::LeftButton, { 7, 8 });
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(checkClicks, 2);
}

TEST_F(Checks, AValueSetFromCode_RaisesClickWhenItChanges)
{
    check.SetValue(1);
    EXPECT_EQ(checkClicks, 1);
    check.SetValue(1);
    EXPECT_EQ(checkClicks, 1);
    check.SetValue(0);
    EXPECT_EQ(checkClicks, 2);
}

TEST_F(Checks, ClickSeesTheNewValue)
{
    int seen = -1;
    check.Click = [&] { seen = check.Value(); };
    check.SetValue(1);
    EXPECT_EQ(seen, 1);
}

TEST_F(Checks, AnOptionThatTurnsSet_RaisesItsClickAlone)
{
    drive::show(form);
    drive::click(first, Qt::LeftButton, { 7, 8 });
    EXPECT_TRUE(first.Value());
    EXPECT_EQ(firstClicks, 1);
    drive::click(second, Qt::LeftButton, { 7, 8 });
    EXPECT_FALSE(first.Value());
    EXPECT_TRUE(second.Value());
    EXPECT_EQ(firstClicks, 1);
    EXPECT_EQ(secondClicks, 1);
}

TEST_F(Checks, AnOptionSetFromCode_RaisesClickWhenItChanges)
{
    second.SetValue(true);
    EXPECT_EQ(secondClicks, 1);
    second.SetValue(true);
    EXPECT_EQ(secondClicks, 1);
    first.SetValue(true);
    EXPECT_EQ(firstClicks, 1);
    EXPECT_EQ(secondClicks, 1);
    EXPECT_FALSE(second.Value());
}

TEST_F(Checks, EnterOnACheckBox_IsNothingAndNotTheFormsEither)
{
    int entered = 0;
    form.KeyEnter = [&] { ++entered; };
    drive::show(form);
    check.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(entered, 0);
    EXPECT_EQ(checkClicks, 0);
}

} // namespace
