#include "drive.h"

#include "forms/combobox.h"
#include "forms/form.h"

#include "host/failure.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

int failureOf(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const host::Failure &failure) {
        return failure.number();
    }
    return 0;
}

class Combos : public testing::Test {
protected:
    Combos()
    {
        combo.setGeometry(10, 10, 129, 22);
        other.setGeometry(10, 50, 129, 22);
        combo.Selection = [this] { selected.push_back(combo.ListIndex()); };
    }

    void fill(std::initializer_list<QString> texts)
    {
        for (const QString &text : texts)
            combo.AddItem(text);
    }

    // Drops the list down and clicks on a row of it.
    void pick(int row)
    {
        drive::click(combo);
        QAbstractItemView *view = combo.view();
        ASSERT_TRUE(view->isVisible());
        const QModelIndex index = view->model()->index(row, 0);
        // A release right after the list has dropped down is taken for the end of the click that did it.
        QTest::qWait(QApplication::doubleClickInterval());
        drive::click(*view->viewport(), Qt::LeftButton, view->visualRect(index).center());
        ASSERT_FALSE(view->isVisible());
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::ComboBox combo { &form };
    forms::ComboBox other { &form };
    std::vector<int> selected; // the index that stood selected at each Selection
};

TEST_F(Combos, TheFirstEntry_IsNotSelectedByItself)
{
    fill({ u"a"_s });
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), QString());
    fill({ u"b"_s, u"A"_s });
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Combos, ASortedCombo_SortsByUpperCasedCodeWithEqualsBehindEquals)
{
    EXPECT_EQ(combo.AddItem(u"beta"_s, 1), 0);
    EXPECT_EQ(combo.AddItem(u"Alpha"_s, 2), 0);
    EXPECT_EQ(combo.AddItem(u"BETA"_s, 3), 2);
    EXPECT_EQ(combo.AddItem(u"alpha"_s, 4), 1);
    std::vector<int> data;
    for (int i = 0; i < combo.ListCount(); ++i)
        data.push_back(combo.ItemData(i));
    EXPECT_THAT(data, ElementsAre(2, 4, 1, 3));
}

TEST_F(Combos, AnUnsortedCombo_Appends)
{
    forms::ComboBox plain(&form, false);
    EXPECT_EQ(plain.AddItem(u"b"_s), 0);
    EXPECT_EQ(plain.AddItem(u"a"_s), 1);
    EXPECT_EQ(plain.List(0), u"b"_s);
}

TEST_F(Combos, TheSelectedEntry_StaysSelectedWhenOthersComeAndGo)
{
    fill({ u"m"_s });
    combo.SetListIndex(0);
    selected.clear();
    fill({ u"a"_s });
    EXPECT_EQ(combo.ListIndex(), 1);
    fill({ u"z"_s });
    EXPECT_EQ(combo.ListIndex(), 1);
    combo.RemoveItem(0);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(combo.Text(), u"m"_s);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Combos, RemovingTheSelectedEntry_SelectsNone)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    for (const int index : { 2, 0, 0 }) {
        combo.SetListIndex(index);
        selected.clear();
        combo.RemoveItem(index);
        EXPECT_EQ(combo.ListIndex(), -1);
        EXPECT_THAT(selected, IsEmpty());
    }
    EXPECT_EQ(combo.ListCount(), 0);
}

TEST_F(Combos, ClearingAndFillingAnew_SelectsNoneAndRaisesNothing)
{
    fill({ u"a"_s, u"b"_s });
    combo.SetListIndex(1);
    selected.clear();
    combo.Clear();
    EXPECT_EQ(combo.ListIndex(), -1);
    fill({ u"c"_s, u"d"_s });
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Combos, SelectingFromCode_RaisesAlsoForTheSelectedEntry)
{
    fill({ u"a"_s, u"b"_s });
    combo.SetListIndex(1);
    combo.SetListIndex(1);
    combo.SetText(u"b"_s);
    EXPECT_THAT(selected, ElementsAre(1, 1, 1));
    combo.SetListIndex(-1);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_THAT(selected, ElementsAre(1, 1, 1));
}

TEST_F(Combos, ATextThatTheComboLacks_Fails)
{
    fill({ u"a"_s });
    combo.SetListIndex(0);
    selected.clear();
    EXPECT_EQ(failureOf([&] { combo.SetText(u"A"_s); }), 383);
    EXPECT_EQ(failureOf([&] { combo.SetText(QString()); }), 383);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Combos, OfEqualTexts_TheFirstIsSelected)
{
    fill({ u"a"_s, u"b"_s, u"b"_s });
    combo.SetText(u"b"_s);
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Combos, IndicesOutOfRange_FailWithTheirNumbers)
{
    fill({ u"a"_s });
    for (const int index : { -1, 1 }) {
        EXPECT_EQ(failureOf([&] { combo.RemoveItem(index); }), 5);
        EXPECT_EQ(failureOf([&] { combo.ItemData(index); }), 380);
        EXPECT_EQ(combo.List(index), QString());
    }
    EXPECT_EQ(failureOf([&] { combo.SetListIndex(1); }), 380);
    EXPECT_EQ(failureOf([&] { combo.SetListIndex(-2); }), 380);
}

TEST_F(Combos, PickingFromTheDroppedList_RaisesAlsoForTheEntryThatShows)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    pick(1);
    EXPECT_THAT(selected, ElementsAre(1));
    pick(1);
    EXPECT_THAT(selected, ElementsAre(1, 1));
}

TEST_F(Combos, AKeyThatMovesTheSelection_RaisesOnce)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    drive::show(form);
    combo.setFocus();
    combo.SetListIndex(0);
    selected.clear();
    drive::key(form, Qt::Key_Down);
    drive::key(form, Qt::Key_Down);
    drive::key(form, Qt::Key_Down);
    EXPECT_THAT(selected, ElementsAre(1, 2));
}

TEST_F(Combos, ATypedLetter_JumpsToItsEntryAndRaises)
{
    fill({ u"Amiga"_s, u"MSX"_s, u"Spectrum"_s });
    drive::show(form);
    combo.setFocus();
    drive::type(form, 's');
    EXPECT_THAT(selected, ElementsAre(2));
}

TEST_F(Combos, Enter_RaisesKeyDownOnceAndGoesNoFurther)
{
    fill({ u"a"_s });
    std::vector<int> codes;
    combo.KeyDown = [&](int code) { codes.push_back(code); };
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    drive::show(form);
    combo.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_THAT(codes, ElementsAre(13));
    EXPECT_EQ(enters, 0);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Combos, EnterWithoutAKeyHandler_ReachesTheForm)
{
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    drive::show(form);
    combo.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(enters, 1);
}

// The toolkit shuts the list before the press itself is delivered, which then finds none open.
TEST_F(Combos, TheKeyThatPicksFromTheDroppedList_GoesNoFurther)
{
    fill({ u"a"_s, u"b"_s });
    std::vector<std::string> log;
    combo.KeyDown = [&](int code) { log.push_back("combo " + std::to_string(code)); };
    form.KeyEnter = [&] { log.push_back("form"); };
    drive::show(form);
    combo.setFocus();
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
        combo.showPopup();
        ASSERT_TRUE(combo.view()->isVisible());
        selected.clear();
        drive::key(form, Qt::Key_Down);
        drive::keyDown(form, key);
        drive::repeatedKey(combo, key);
        drive::keyUp(form, key);
        EXPECT_FALSE(combo.view()->isVisible());
        EXPECT_THAT(selected, testing::SizeIs(1));
        EXPECT_THAT(log, IsEmpty());
    }
    drive::key(form, Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("combo 13"));
}

// Else the next press, of another window perhaps, would be lost.
TEST_F(Combos, TheKeyThatPicked_IsForgottenWithItsRelease)
{
    fill({ u"a"_s });
    int presses = 0;
    combo.KeyDown = [&](int) { ++presses; };
    drive::show(form);
    combo.setFocus();
    combo.showPopup();
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(combo.view(), &override);
    ASSERT_FALSE(combo.view()->isVisible());
    drive::keyUp(form, Qt::Key_Return);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&combo, &press);
    EXPECT_EQ(presses, 1);
}

TEST_F(Combos, TheWheelOverAComboWithoutTheFocus_DoesNothing)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    combo.SetListIndex(0);
    other.setFocus();
    selected.clear();
    drive::wheel(combo);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_THAT(selected, IsEmpty());
    EXPECT_FALSE(combo.hasFocus());
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(Combos, TheWheelOverTheFocusedCombo_MovesOn)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    combo.SetListIndex(0);
    combo.setFocus();
    selected.clear();
    drive::wheel(combo);
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Combos, TheRightButton_DropsNothingDown)
{
    fill({ u"a"_s });
    drive::show(form);
    drive::click(combo, Qt::RightButton);
    EXPECT_FALSE(combo.view()->isVisible());
}

TEST_F(Combos, AComboDestroyedInItsHandler_IsNotTouchedAnyMore)
{
    drive::show(form);
    QPointer<forms::ComboBox> victim(new forms::ComboBox(&form));
    victim->AddItem(u"a"_s);
    victim->AddItem(u"b"_s);
    victim->show();
    victim->setFocus();
    victim->Selection = [&] { delete victim; };
    drive::key(form, Qt::Key_Down);
    EXPECT_TRUE(victim.isNull());
}

TEST_F(Combos, AssistivePrograms_SeeAComboByItsNameAndItsEntry)
{
    combo.Clear();
    combo.AddItem(u"Amiga"_s);
    combo.AddItem(u"MSX"_s);
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&combo);
    EXPECT_EQ(access->role(), QAccessible::ComboBox);
    combo.setAccessibleName(u"Sistema"_s);
    EXPECT_EQ(access->text(QAccessible::Name), u"Sistema"_s);
    combo.SetText(u"MSX"_s);
    EXPECT_EQ(access->text(QAccessible::Name), u"Sistema: MSX"_s);
    EXPECT_EQ(access->text(QAccessible::Value), u"MSX"_s);
    combo.setAccessibleName(u"Sistema:"_s);
    EXPECT_EQ(access->text(QAccessible::Name), u"Sistema: MSX"_s);
    combo.setAccessibleName({});
    EXPECT_EQ(access->text(QAccessible::Name), u"MSX"_s);
}

TEST_F(Combos, AssistivePrograms_DropTheListDownAndReachItsEntries)
{
    drive::show(form);
    combo.Clear();
    combo.AddItem(u"Amiga"_s);
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&combo);
    EXPECT_FALSE(access->state().expanded);
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(combo.view()->isVisible());
    ASSERT_EQ(access->childCount(), 1);
    QAccessibleInterface *list = access->child(0);
    EXPECT_EQ(access->indexOfChild(list), 0);
    EXPECT_EQ(list->child(0)->text(QAccessible::Name), u"Amiga"_s);
    EXPECT_TRUE(access->state().expanded);
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(combo.view()->isVisible());
}

TEST_F(Combos, AssistivePrograms_SeeTheListOnlyWhileItIsOpen)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&combo);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(combo.view());
    EXPECT_EQ(access->childCount(), 0);
    EXPECT_EQ(access->child(0), nullptr);
    EXPECT_EQ(access->indexOfChild(list), -1);
    combo.showPopup();
    EXPECT_EQ(access->childCount(), 1);
    EXPECT_EQ(access->child(0), list);
    EXPECT_EQ(access->indexOfChild(list), 0);
    combo.hidePopup();
    EXPECT_EQ(access->childCount(), 0);
}

} // namespace
