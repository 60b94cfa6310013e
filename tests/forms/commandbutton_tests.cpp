#include "drive.h"

#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/textbox.h"

#include <QAccessible>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CommandButtons : public testing::Test {
protected:
    CommandButtons()
    {
        button.setGeometry(10, 10, 60, 20);
        button.SetCaption(u"Examinar..."_s);
        box.setGeometry(10, 40, 60, 20);
        button.Click = [this] { ++clicks; };
        form.KeyEnter = [this] { ++entered; };
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::CommandButton button { &form };
    forms::TextBox box { &form };
    int clicks = 0;
    int entered = 0;
};

TEST_F(CommandButtons, ALeftClick_RaisesClickOnce)
{
    drive::show(form);
    drive::click(button);
    EXPECT_EQ(clicks, 1);
}

TEST_F(CommandButtons, ARightClickOrAReleaseBesideIt_RaisesNothing)
{
    drive::show(form);
    drive::click(button, Qt::RightButton);
    drive::press(button);
    drive::release(button, Qt::LeftButton, { 100, 100 });
    EXPECT_EQ(clicks, 0);
}

TEST_F(CommandButtons, SpaceAndEnter_PressTheOneThatHasTheFocus)
{
    drive::show(form);
    button.setFocus();
    drive::key(form, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(clicks, 2);
    drive::key(form, Qt::Key_Enter);
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(entered, 0);
}

TEST_F(CommandButtons, EnterHeldDown_PressesOnce)
{
    drive::show(form);
    button.setFocus();
    drive::repeatedKey(button, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
}

TEST_F(CommandButtons, EnterInAnotherControl_IsTheFormsAndPressesNothing)
{
    drive::show(form);
    box.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(entered, 1);
}

TEST_F(CommandButtons, TheCaption_IsShownAsItStandsAndRead)
{
    button.SetCaption(u"Sí & no"_s);
    EXPECT_EQ(button.Caption(), u"Sí & no"_s);
    EXPECT_EQ(button.text(), u"Sí && no"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), u"Sí & no"_s);
}

} // namespace
