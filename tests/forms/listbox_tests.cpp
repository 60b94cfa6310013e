#include "drive.h"

#include "forms/form.h"
#include "forms/listbox.h"

#include "host/failure.h"

#include <QAccessible>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

#include <set>

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

class Lists : public testing::Test {
protected:
    Lists()
    {
        list.setGeometry(10, 10, 153, 100);
        list.Selection = [this] { selected.push_back(list.ListIndex()); };
    }

    void fill(std::initializer_list<QString> texts)
    {
        for (const QString &text : texts)
            list.AddItem(text);
    }

    QPoint row(int index) const { return list.visualRect(list.model()->index(index, 0)).center(); }

    std::vector<std::string> texts(const forms::ListBox &of) const
    {
        std::vector<std::string> all;
        for (int i = 0; i < of.ListCount(); ++i)
            all.push_back(of.List(i).toStdString());
        return all;
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::ListBox list { &form };
    std::vector<int> selected; // the index that stood selected at each Selection
};

TEST_F(Lists, AnUnsortedList_Appends)
{
    EXPECT_EQ(list.AddItem(u"b"_s), 0);
    EXPECT_EQ(list.AddItem(u"a"_s), 1);
    EXPECT_THAT(texts(list), ElementsAre("b", "a"));
}

TEST_F(Lists, ASortedList_SortsByUpperCasedCodeWithEqualsBehindEquals)
{
    forms::ListBox sorted(&form, true);
    EXPECT_EQ(sorted.AddItem(u"beta"_s), 0);
    EXPECT_EQ(sorted.AddItem(u"Alpha"_s), 0);
    EXPECT_EQ(sorted.AddItem(u"BETA"_s), 2);
    EXPECT_EQ(sorted.AddItem(u"alpha"_s), 1);
    EXPECT_EQ(sorted.AddItem(u"_x"_s), 4);
    EXPECT_EQ(sorted.AddItem(u"Beta"_s), 4);
    EXPECT_THAT(texts(sorted), ElementsAre("Alpha", "alpha", "beta", "BETA", "Beta", "_x"));
}

TEST_F(Lists, ItemData_StaysWithItsEntry)
{
    forms::ListBox sorted(&form, true);
    sorted.AddItem(u"b"_s, 20);
    sorted.AddItem(u"a"_s, 10);
    EXPECT_EQ(sorted.ItemData(0), 10);
    EXPECT_EQ(sorted.ItemData(1), 20);
}

TEST_F(Lists, AddingAndClearing_RaiseNothingAndSelectNothing)
{
    fill({ u"a"_s, u"b"_s });
    EXPECT_EQ(list.ListIndex(), -1);
    list.SetListIndex(0);
    selected.clear();
    list.Clear();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.ListCount(), 0);
    fill({ u"c"_s });
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, TheSelectedEntry_StaysSelectedWhenOthersComeAndGo)
{
    forms::ListBox sorted(&form, true);
    int events = 0;
    sorted.AddItem(u"m"_s);
    sorted.SetListIndex(0);
    sorted.Selection = [&] { ++events; };
    sorted.AddItem(u"a"_s);
    EXPECT_EQ(sorted.ListIndex(), 1);
    sorted.AddItem(u"z"_s);
    EXPECT_EQ(sorted.ListIndex(), 1);
    sorted.RemoveItem(0);
    EXPECT_EQ(sorted.ListIndex(), 0);
    EXPECT_EQ(sorted.Text(), u"m"_s);
    EXPECT_EQ(events, 0);
}

TEST_F(Lists, RemovingTheSelectedEntry_SelectsNoneAndRaisesNothing)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    list.SetListIndex(1);
    selected.clear();
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(texts(list), ElementsAre("a", "c"));
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, IndicesOutOfRange_FailWithTheirNumbers)
{
    fill({ u"a"_s });
    for (const int index : { -1, 1 }) {
        EXPECT_EQ(failureOf([&] { list.RemoveItem(index); }), 5);
        EXPECT_EQ(failureOf([&] { list.ItemData(index); }), 380);
        EXPECT_EQ(list.List(index), QString());
    }
    EXPECT_EQ(failureOf([&] { list.SetListIndex(-2); }), 380);
    EXPECT_EQ(failureOf([&] { list.SetListIndex(1); }), 380);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lists, SelectingFromCode_RaisesAlsoForTheSelectedEntry)
{
    fill({ u"a"_s, u"b"_s });
    list.SetListIndex(1);
    list.SetListIndex(1);
    EXPECT_THAT(selected, ElementsAre(1, 1));
    list.SetText(u"b"_s);
    EXPECT_THAT(selected, ElementsAre(1, 1, 1));
}

TEST_F(Lists, DeselectingFromCode_RaisesNothing)
{
    fill({ u"a"_s });
    list.SetListIndex(0);
    selected.clear();
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), QString());
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, OfEqualTexts_TheFirstIsSelected)
{
    fill({ u"a"_s, u"b"_s, u"b"_s });
    list.SetText(u"b"_s);
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Lists, ATextThatTheListLacks_DeselectsWithoutAnEvent)
{
    fill({ u"a"_s });
    list.SetListIndex(0);
    selected.clear();
    list.SetText(u"A"_s);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, AFailureInTheHandlerOfASelectionFromCode_EndsTheProcess)
{
    fill({ u"a"_s });
    list.Selection = [] { throw host::Failure(53, u"open"_s); };
    EXPECT_THROW(list.SetListIndex(0), drive::ProcessEnd);
}

TEST_F(Lists, APressOfTheLeftButton_SelectsAndRaisesOnce)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    drive::show(form);
    drive::press(*list.viewport(), Qt::LeftButton, row(1));
    EXPECT_THAT(selected, ElementsAre(1));
    drive::release(*list.viewport(), Qt::LeftButton, row(1));
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Lists, APressOnTheSelectedRow_RaisesToo)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    drive::click(*list.viewport(), Qt::LeftButton, row(1));
    drive::click(*list.viewport(), Qt::LeftButton, row(1));
    EXPECT_THAT(selected, ElementsAre(1, 1));
}

TEST_F(Lists, ADoubleClick_RaisesDblClickOnTheRowPressed)
{
    fill({ u"a"_s, u"b"_s });
    std::vector<int> doubled;
    list.DblClick = [&] { doubled.push_back(list.ListIndex()); };
    drive::show(form);
    drive::doubleClick(*list.viewport(), Qt::LeftButton, row(1));
    EXPECT_THAT(doubled, ElementsAre(1));
    EXPECT_THAT(selected, ElementsAre(1, 1));
}

TEST_F(Lists, ASelectionFromCodeInTheHandlerOfAPress_ScrollsToItsRow)
{
    for (int i = 0; i < 40; ++i)
        list.AddItem(QString::number(i));
    drive::show(form);
    list.Selection = [&] {
        list.Selection = nullptr;
        list.SetListIndex(35);
    };
    drive::click(*list.viewport(), Qt::LeftButton, row(0));
    EXPECT_EQ(list.ListIndex(), 35);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(35, 0))));
}

TEST_F(Lists, RightAndMiddleButton_NeverSelect)
{
    fill({ u"a"_s, u"b"_s });
    drive::Log buttons;
    list.MouseDown = [&](const forms::Mouse &mouse) { buttons.push_back(std::to_string(mouse.button)); };
    drive::show(form);
    list.SetListIndex(0);
    selected.clear();
    drive::click(*list.viewport(), Qt::RightButton, row(1));
    drive::click(*list.viewport(), Qt::MiddleButton, row(1));
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_THAT(selected, IsEmpty());
    EXPECT_THAT(buttons, ElementsAre("2", "4"));
}

TEST_F(Lists, APressWithControlHeld_DoesNotDeselect)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    list.SetListIndex(1);
    QTest::mouseClick(
        form.windowHandle(), Qt::LeftButton, Qt::ControlModifier, list.viewport()->mapTo(&form, row(1)));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(Lists, APressBelowTheLastEntry_ChangesNothing)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    list.SetListIndex(0);
    selected.clear();
    drive::click(*list.viewport(), Qt::LeftButton, { 5, 90 });
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, ThePointerMovedWithTheButtonHeld_DoesNotSelect)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    std::vector<int> moves;
    list.MouseMove = [&](const forms::Mouse &mouse) { moves.push_back(mouse.button); };
    drive::show(form);
    drive::press(*list.viewport(), Qt::LeftButton, row(0));
    moves.clear();
    drive::moveTo(*list.viewport(), row(2));
    drive::release(*list.viewport(), Qt::LeftButton, row(2));
    EXPECT_THAT(selected, ElementsAre(0));
    EXPECT_THAT(moves, ElementsAre(1));
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(Lists, MovesWithoutAButton_AreToldInPointsOfTheClientArea)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    std::vector<int> rows;
    list.MouseMove = [&](const forms::Mouse &mouse) {
        rows.push_back(list.ItemFromPoint(forms::pixels(mouse.x), forms::pixels(mouse.y)));
    };
    drive::show(form);
    drive::moveTo(form, { 190, 190 });
    drive::moveTo(*list.viewport(), row(2));
    EXPECT_THAT(rows, ElementsAre(2));
}

TEST_F(Lists, AnArrowWhereNoneIsSelected_SelectsTheFirstAndThenGoesOn)
{
    for (const Qt::Key arrow : { Qt::Key_Down, Qt::Key_Up }) {
        list.Clear();
        selected.clear();
        fill({ u"a"_s, u"b"_s });
        drive::show(form);
        list.setFocus();
        drive::key(form, arrow);
        EXPECT_THAT(selected, ElementsAre(0));
        drive::key(form, Qt::Key_Down);
        EXPECT_THAT(selected, ElementsAre(0, 1));
        list.clearFocus();
    }
}

TEST_F(Lists, HomeAndEndWhereNoneIsSelected_SelectTheirRow)
{
    for (const auto &[key, row] : { std::pair(Qt::Key_Home, 0), std::pair(Qt::Key_End, 2) }) {
        list.Clear();
        selected.clear();
        fill({ u"a"_s, u"b"_s, u"c"_s });
        drive::show(form);
        list.setFocus();
        drive::key(form, key);
        EXPECT_THAT(selected, ElementsAre(row));
        list.clearFocus();
    }
}

TEST_F(Lists, TheRowOfTheFocusIsFramed_WithTheFocusAlone)
{
    forms::ListBox other(&form);
    fill({ u"a"_s, u"b"_s });
    list.SetListIndex(1);
    drive::show(form);
    other.setFocus();
    const QRect place = list.visualRect(list.model()->index(1, 0));
    const auto edge = [&] {
        const QImage picture = list.viewport()->grab(place).toImage();
        std::set<QRgb> colours;
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, 0));
        return colours;
    };
    const QRgb marked = list.palette().color(QPalette::Highlight).rgb();
    EXPECT_THAT(edge(), ElementsAre(marked));
    list.setFocus();
    EXPECT_THAT(edge(), testing::UnorderedElementsAre(marked, qRgb(255, 255, 255)));
}

TEST_F(Lists, AKeyThatMovesTheSelection_RaisesOnce)
{
    fill({ u"a"_s, u"b"_s, u"c"_s });
    drive::show(form);
    list.setFocus();
    list.SetListIndex(0);
    selected.clear();
    drive::key(form, Qt::Key_Down);
    drive::key(form, Qt::Key_End);
    drive::key(form, Qt::Key_End);
    drive::key(form, Qt::Key_Home);
    EXPECT_THAT(selected, ElementsAre(1, 2, 0));
}

TEST_F(Lists, TheFocusAlone_SelectsNothing)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    list.clearFocus();
    list.setFocus();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(Lists, ATypedLetter_JumpsToItsEntryAndRaises)
{
    fill({ u"Asteroids"_s, u"Berzerk"_s, u"Combat"_s });
    drive::show(form);
    list.setFocus();
    drive::type(form, 'c');
    EXPECT_THAT(selected, ElementsAre(2));
}

TEST_F(Lists, Enter_RaisesKeyDownOnceAndGoesNoFurther)
{
    fill({ u"a"_s });
    std::vector<int> codes;
    list.KeyDown = [&](int code) { codes.push_back(code); };
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    drive::show(form);
    list.setFocus();
    list.SetListIndex(0);
    drive::key(form, Qt::Key_Return);
    EXPECT_THAT(codes, ElementsAre(13));
    EXPECT_EQ(enters, 0);
}

TEST_F(Lists, EnterWithoutAKeyHandler_ReachesTheForm)
{
    fill({ u"a"_s });
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    drive::show(form);
    list.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(enters, 1);
}

TEST_F(Lists, ASelectionMadeInAKeyHandler_RaisesOnce)
{
    fill({ u"a"_s, u"b"_s });
    list.KeyDown = [&](int) { list.SetListIndex(1); };
    drive::show(form);
    list.setFocus();
    drive::key(form, Qt::Key_Delete);
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Lists, AnAssistiveProgramsSelection_RaisesOnce)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::List);
    QAccessibleTableInterface *table = interface->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->selectRow(1));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(selected, ElementsAre(1));
}

TEST_F(Lists, ItemFromPoint_TellsTheEntryTheCountBelowAndMinusOneOutside)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    EXPECT_EQ(list.ItemFromPoint(5, row(0).y()), 0);
    EXPECT_EQ(list.ItemFromPoint(5, row(1).y()), 1);
    EXPECT_EQ(list.ItemFromPoint(5, 90), 2);
    EXPECT_EQ(list.ItemFromPoint(5, 200), -1);
    EXPECT_EQ(list.ItemFromPoint(-1, 5), -1);
    list.Clear();
    EXPECT_EQ(list.ItemFromPoint(5, 5), 0);
}

TEST_F(Lists, TopIndex_FollowsTheScrolling)
{
    for (int i = 0; i < 100; ++i)
        list.AddItem(QString::number(i));
    drive::show(form);
    EXPECT_EQ(list.TopIndex(), 0);
    list.SetListIndex(60);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(60, 0))));
    const int top = list.TopIndex();
    EXPECT_GT(top, 50);
    EXPECT_EQ(list.ItemFromPoint(5, 0), top);
}

TEST_F(Lists, RowsAreAsHighAsTheFont)
{
    fill({ u"a"_s, u"b"_s });
    drive::show(form);
    const int height = list.fontMetrics().height();
    EXPECT_EQ(list.visualRect(list.model()->index(0, 0)).height(), height);
    EXPECT_EQ(
        list.visualRect(list.model()->index(1, 0)).top() - list.visualRect(list.model()->index(0, 0)).top(),
        height);
}

TEST_F(Lists, AListDestroyedInItsHandlers_IsNotTouchedAnyMore)
{
    drive::show(form);
    const auto freshList = [&] {
        auto *fresh = new forms::ListBox(&form);
        fresh->setGeometry(10, 120, 100, 60);
        fresh->AddItem(u"a"_s);
        fresh->AddItem(u"b"_s);
        fresh->show();
        fresh->setFocus();
        return QPointer<forms::ListBox>(fresh);
    };
    auto victim = freshList();
    victim->Selection = [&] { delete victim; };
    drive::doubleClick(form, Qt::LeftButton, { 15, 128 });
    EXPECT_TRUE(victim.isNull());
    victim = freshList();
    victim->Selection = [&] { delete victim; };
    drive::key(form, Qt::Key_End);
    EXPECT_TRUE(victim.isNull());
    victim = freshList();
    victim->KeyDown = [&](int) { delete victim; };
    drive::key(form, Qt::Key_Return);
    EXPECT_TRUE(victim.isNull());
}

TEST_F(Lists, IndexZeroOfAnEmptyList_IsNoFailureAndNoEvent)
{
    int raised = 0;
    list.Clear();
    list.Selection = [&] { ++raised; };
    list.SetListIndex(0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(raised, 0);
    EXPECT_THROW(list.SetListIndex(1), host::Failure);
}

TEST_F(Lists, ADoubleClickOfAnotherButtonThanTheLeft_IsNone)
{
    int raised = 0;
    list.DblClick = [&] { ++raised; };
    drive::show(form);
    drive::doubleClick(*list.viewport(), Qt::MiddleButton, { 5, 5 });
    drive::doubleClick(*list.viewport(), Qt::RightButton, { 5, 5 });
    EXPECT_EQ(raised, 0);
    drive::doubleClick(*list.viewport(), Qt::LeftButton, { 5, 5 });
    EXPECT_EQ(raised, 1);
}

} // namespace

TEST_F(Lists, WhatIsLeftBelowTheWholeRowsIsNoRow)
{
    const int high = list.fontMetrics().height();
    list.setFrameShape(QFrame::NoFrame);
    for (int i = 0; i < 20; ++i)
        list.AddItem(QString::number(i));
    drive::show(form);
    for (const int rest : { 1, high - 1 }) {
        list.resize(153, 5 * high + rest);
        EXPECT_EQ(list.ItemFromPoint(5, 5 * high - 1), 4);
        EXPECT_EQ(list.ItemFromPoint(5, 5 * high), 20);
        selected.clear();
        drive::doubleClick(*list.viewport(), Qt::LeftButton, { 5, 5 * high + rest - 1 });
        EXPECT_TRUE(selected.empty());
    }
    list.SetListIndex(19);
    EXPECT_EQ(list.TopIndex(), 15);
    EXPECT_EQ(list.ItemFromPoint(5, 5 * high - 1), 19);
}
