// With a window system and a window manager, and input that comes from outside the process.
#include "drive.h"

#include "tests/support/devices.h"

#include "forms/combobox.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"
#include "forms/popupmenu.h"
#include "forms/textbox.h"
#include "forms/yield.h"

#include "host/windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using forms::Form;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Left, right, top and bottom of the manager's frame, as it tells them.
QString frameOf(const QWidget &window)
{
    const QString told =
        outputOf(u"xprop"_s, { u"-id"_s, QString::number(window.winId()), u"_NET_FRAME_EXTENTS"_s });
    return told.section(u" = "_s, 1).trimmed();
}

// The windows that the manager knows, the lowest first.
std::vector<WId> stacking()
{
    static const QRegularExpression number(u"0x[0-9a-f]+"_s);
    std::vector<WId> windows;
    auto found = number.globalMatch(outputOf(u"xprop"_s, { u"-root"_s, u"_NET_CLIENT_LIST_STACKING"_s }));
    while (found.hasNext())
        windows.push_back(found.next().captured().toULongLong(nullptr, 16));
    return windows;
}

bool standsOver(const QWidget &upper, const QWidget &lower)
{
    const std::vector<WId> windows = stacking();
    const auto place = [&](const QWidget &widget) {
        return std::find(windows.begin(), windows.end(), widget.effectiveWinId());
    };
    return place(lower) < place(upper) && place(upper) != windows.end();
}

class Screen : public testing::Test {
protected:
    Screen()
    {
        pair.SetPlace({ 150, 150, 450, 300 });
        pair.Press = [this] { log.push_back("press"); };
        pair.Release = [this] { log.push_back("release"); };
        list.setGeometry(10, 60, 150, 120);
        for (const QString &text : { u"Asteroids"_s, u"Berzerk"_s, u"Combat"_s })
            list.AddItem(text);
        list.Selection = [this] { log.push_back("list " + std::to_string(list.ListIndex())); };
        combo.setGeometry(10, 200, 129, 22);
        for (const QString &text : { u"Amiga"_s, u"MSX"_s })
            combo.AddItem(text);
        combo.Selection = [this] { log.push_back("combo " + std::to_string(combo.ListIndex())); };
        owner.KeyEnter = [this] { log.push_back("enter"); };
    }

    // In the middle of the screen, so that the window manager doesn't look for a place.
    void show()
    {
        owner.ShowModeless(nullptr);
        ASSERT_TRUE(comes([this] { return hasFocus(owner); }));
    }

    // Runs once the form is the active window, while it is modal.
    template <class Work> static void whenActive(Form &form, Work work)
    {
        QTimer::singleShot(0, qApp, [&form, work] {
            EXPECT_TRUE(comes([&form] { return hasFocus(form); }));
            work();
            form.Unload();
        });
    }

    QPoint row(int index) const { return list.visualRect(list.model()->index(index, 0)).center(); }

    Form owner { u"Owner"_s, 4500, 4500, Form::Border::None };
    forms::PictureButton pair { u"Rest2"_s, u"Rest1"_s, &owner };
    forms::ListBox list { &owner };
    forms::ComboBox combo { &owner };
    drive::Log log;
};

TEST_F(Screen, AFormWithoutABorder_HasNoFrameOfTheWindowManager)
{
    show();
    EXPECT_EQ(frameOf(owner), u"0, 0, 0, 0"_s);
    EXPECT_EQ(owner.size(), QSize(300, 300));
}

bool hasOwnEdge(QWidget &window)
{
    const QImage picture = window.grab().toImage();
    const QColor frame = window.palette().color(QPalette::Dark);
    const QPoint last = picture.rect().bottomRight();
    return picture.pixelColor(0, 0) == frame && picture.pixelColor(last) == frame
        && picture.pixelColor(last.x(), 0) == frame && picture.pixelColor(0, last.y() / 2) == frame;
}

TEST_F(Screen, AFormWithABorderHasAnEdgeOfItsOwnWhereNoWindowManagerFramesIt)
{
    for (const bool framed : { true, false }) {
        Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
        if (!framed)
            form.setWindowFlag(Qt::X11BypassWindowManagerHint);
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        if (framed) {
            EXPECT_TRUE(comes([&] { return frameOf(form).section(u", "_s, 2, 2).toInt() > 0; }));
        }
        EXPECT_NE(hasOwnEdge(form), framed);
    }
    EXPECT_FALSE(hasOwnEdge(owner));
}

TEST_F(Screen, ABoxOfTheDesktopHasAnEdgeOfItsOwnWhereNoWindowManagerFramesIt)
{
    for (const bool framed : { true, false }) {
        QMessageBox box(QMessageBox::NoIcon, u"T"_s, u"text"_s);
        if (!framed)
            box.setWindowFlag(Qt::X11BypassWindowManagerHint);
        box.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
        if (framed) {
            EXPECT_TRUE(comes([&] { return frameOf(box).section(u", "_s, 2, 2).toInt() > 0; }));
        }
        EXPECT_NE(hasOwnEdge(box), framed);
    }
}

TEST_F(Screen, AFormWithABorder_HasATitleBarAndStandsCentredOverItsOwner)
{
    show();
    owner.move(200, 150);
    ASSERT_TRUE(comes([&] { return owner.geometry().topLeft() == QPoint(200, 150); }));
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    whenActive(form, [&] {
        EXPECT_TRUE(comes([&] { return frameOf(form).section(u", "_s, 2, 2).toInt() > 0; }));
        EXPECT_TRUE(comes([&] { return form.geometry().center() == owner.geometry().center(); }));
        EXPECT_EQ(form.size(), QSize(100, 100));
    });
    form.ShowModal(&owner);
}

TEST_F(Screen, AModalForm_KeepsTheInputFromTheOthers)
{
    show();
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    whenActive(form, [&] {
        input(at(pair) + u" click 1"_s);
        input(at(*list.viewport(), row(1)) + u" click 1"_s);
        // The key comes behind the clicks; when it is there, they have been.
        int enters = 0;
        form.KeyEnter = [&] { ++enters; };
        input(u"key Return"_s);
        EXPECT_TRUE(comes([&] { return enters == 1; }));
    });
    form.ShowModal(&owner);
    EXPECT_THAT(log, IsEmpty());
    input(at(pair) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(Screen, AfterAModalForm_TheScreenBelowHasTheFocusAgain)
{
    show();
    list.setFocus();
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    forms::TextBox box(&form);
    whenActive(form, [&] {
        box.setFocus();
        EXPECT_TRUE(comes([&] { return box.hasFocus(); }));
    });
    form.ShowModal(&owner);
    EXPECT_TRUE(comes([&] { return list.hasFocus(); }));
}

TEST_F(Screen, AModalForm_StaysOverTheScreenBelow)
{
    show();
    for (QWidget *given : { static_cast<QWidget *>(&owner), static_cast<QWidget *>(nullptr) }) {
        Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
        whenActive(form, [&] {
            EXPECT_TRUE(comes([&] { return standsOver(form, owner); }));
            owner.raise();
            owner.activateWindow();
            QTest::qWait(0);
            EXPECT_TRUE(comes([&] { return standsOver(form, owner); }));
        });
        form.ShowModal(given);
    }
}

TEST_F(Screen, ABoxOverAModalForm_StandsOverThatFormThoughItsOwnerIsTheMainOne)
{
    show();
    Form outer(u"Configuracion1"_s, 4000, 4000, Form::Border::FixedSingle);
    Form box(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    whenActive(outer, [&] {
        whenActive(box,
            [&] { EXPECT_TRUE(comes([&] { return standsOver(box, outer) && standsOver(outer, owner); })); });
        box.ShowModal(&owner);
        EXPECT_TRUE(comes([&] { return hasFocus(outer); }));
    });
    outer.ShowModal(nullptr);
}

TEST_F(Screen, TheWindowManagersWish_ClosesAFormWithATitleOnly)
{
    owner.SetCaption(u"forms: the owner"_s);
    show();
    host::closeWindow(static_cast<host::WindowId>(owner.winId()));
    Form form(u"Opciones1"_s, 1500, 1500, Form::Border::FixedSingle);
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_TRUE(comes([&] { return hasFocus(form); }));
        host::closeWindow(static_cast<host::WindowId>(form.winId()));
    });
    form.ShowModal(nullptr);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(owner.isVisible());
}

TEST_F(Screen, AModalFormUnderAHeldPair_LeavesItAtRest_AndItsReleaseWithoutEffect)
{
    show();
    list.setFocus();
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    list.KeyDown = [&](int) {
        whenActive(form, [&] {
            EXPECT_FALSE(pair.ShowsPressed());
            input(u"mouseup 1"_s);
        });
        form.ShowModal(&owner);
        log.push_back("closed");
    };
    input(at(pair) + u" mousedown 1"_s);
    ASSERT_TRUE(comes([&] { return pair.ShowsPressed(); }));
    input(u"key Return"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    EXPECT_THAT(log, ElementsAre("press", "closed"));
    input(at(pair) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 4; }));
    EXPECT_THAT(log, ElementsAre("press", "closed", "press", "release"));
}

TEST_F(Screen, ARelease_ActsOutsideTheWindowToo)
{
    show();
    input(at(pair) + u" mousedown 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 1; }));
    input(at(owner, { 500, 400 }) + u" mouseup 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(Screen, AQuickSecondClick_PressesAPairAgain)
{
    show();
    input(at(pair) + u" click --repeat 2 --delay 20 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 4; }));
    EXPECT_THAT(log, ElementsAre("press", "release", "press", "release"));
}

TEST_F(Screen, AClickOnAPair_LeavesTheFocusOnTheList)
{
    show();
    input(at(*list.viewport(), row(1)) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return list.hasFocus() && log.size() == 1; }));
    input(at(pair) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 3; }));
    EXPECT_TRUE(list.hasFocus());
    EXPECT_THAT(log, ElementsAre("list 1", "press", "release"));
}

TEST_F(Screen, ADoubleClickOnTheList_ComesAsSuch)
{
    list.DblClick = [this] { log.push_back("double " + std::to_string(list.ListIndex())); };
    show();
    input(at(*list.viewport(), row(2)) + u" click --repeat 2 --delay 20 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 3; }));
    EXPECT_THAT(log, ElementsAre("list 2", "list 2", "double 2"));
}

TEST_F(Screen, Enter_GoesToTheKeyHandlerOfTheControlWithTheFocus)
{
    list.KeyDown = [this](int code) { log.push_back("list key " + std::to_string(code)); };
    combo.KeyDown = [this](int code) { log.push_back("combo key " + std::to_string(code)); };
    show();
    list.setFocus();
    input(u"key Return"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 1; }));
    combo.setFocus();
    input(u"key KP_Enter"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    pair.setFocus();
    input(u"key Return"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 3; }));
    EXPECT_THAT(log, ElementsAre("list key 13", "combo key 13", "enter"));
}

TEST_F(Screen, TheMiddleButtonWithNothingSelectedAnywhere_PastesNothing)
{
    forms::TextArea text(&owner);
    text.setGeometry(170, 60, 120, 60);
    text.SetText(u"text"_s);
    forms::TextBox box(&owner);
    box.setGeometry(170, 130, 120, 20);
    QApplication::clipboard()->clear(QClipboard::Selection);
    show();
    input(at(*text.viewport()) + u" click 2"_s);
    input(at(box) + u" click 2"_s);
    input(at(pair) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    EXPECT_EQ(text.Text(), u"text"_s);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(Screen, AnEntryPickedWithTheMouse_RaisesSelectionOnce)
{
    show();
    input(at(combo) + u" click 1"_s);
    ASSERT_TRUE(
        comes([&] { return combo.view()->isVisible() && QTest::qWaitForWindowExposed(combo.view()); }));
    const QRect second = combo.view()->visualRect(combo.model()->index(1, 0));
    // A release right after the list has dropped down is taken for the end of the click that did it.
    EXPECT_TRUE(comes([&] {
        input(at(*combo.view()->viewport(), second.center()) + u" click 1"_s);
        QTest::qWait(50);
        return !combo.view()->isVisible();
    }));
    EXPECT_THAT(log, ElementsAre("combo 1"));
}

TEST_F(Screen, TheWheelOverAComboWithoutTheFocus_NeitherMovesNorFocusesIt)
{
    show();
    combo.SetListIndex(0);
    list.setFocus();
    log.clear();
    input(at(combo) + u" click 5"_s);
    input(at(pair) + u" click 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() >= 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(Screen, AMenuOpenedByTheRightButton_StaysUntilAnEntryIsChosen)
{
    forms::PopupMenu menu(u"Menu_Lista1"_s, &owner);
    forms::MenuEntry *entry = menu.AddEntry(u"Menu_Borrar"_s, u"&Borrar la ROM"_s);
    entry->Click = [this] { log.push_back("chosen"); };
    const auto choose = [&] {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
        EXPECT_EQ(menu.pos(), QCursor::pos());
        input(at(menu, menu.actionGeometry(entry->action()).center()) + u" click 1"_s);
    };
    list.MouseDown = [&](const forms::Mouse &mouse) {
        if (mouse.button != forms::RightButton)
            return;
        QTimer::singleShot(0, qApp, choose);
        menu.Popup();
        log.push_back("closed");
    };
    show();
    list.setFocus();
    list.SetListIndex(0);
    log.clear();
    input(at(*list.viewport(), row(1)) + u" click 3"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 2; }));
    EXPECT_THAT(log, ElementsAre("chosen", "closed"));
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(Screen, WithoutInput_TheYieldLeavesAKeyForLater)
{
    list.KeyDown = [this](int code) { log.push_back("key " + std::to_string(code)); };
    show();
    list.setFocus();
    forms::DoEvents();
    input(u"key Delete"_s);
    for (int i = 0; i < 20; ++i)
        forms::DoEventsWithoutInput();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_TRUE(comes([&] { return log.size() == 1; }));
    EXPECT_THAT(log, ElementsAre("key 46"));
}

TEST_F(Screen, AYieldWithinAnother_LeavesTheKeysToTheOuterOne)
{
    int depth = 0;
    int deepest = 0;
    int keys = 0;
    list.KeyDown = [&](int) {
        ++keys;
        deepest = std::max(deepest, ++depth);
        QTest::qSleep(50); // the next keys are there by then
        forms::DoEvents();
        --depth;
    };
    show();
    list.setFocus();
    forms::DoEvents();
    input(u"key --delay 1 Delete Insert Delete Insert Delete Insert"_s);
    EXPECT_TRUE(comes([&] { return keys == 6; }));
    EXPECT_LE(deepest, 2);
}

TEST_F(Screen, AnotherWindowUnderTheHeldButton_DoesNotTakeTheRelease)
{
    Form zoom(u"Aumento"_s, 3000, 3000, Form::Border::None);
    forms::Label capture(&owner);
    capture.setGeometry(180, 60, 100, 100);
    capture.MouseDown = [&](const forms::Mouse &) { zoom.ShowAside(owner); };
    capture.MouseUp = [&](const forms::Mouse &) {
        zoom.hide();
        log.push_back("hidden");
    };
    show();
    input(at(capture) + u" mousedown 1"_s);
    ASSERT_TRUE(comes([&] { return zoom.isVisible() && QTest::qWaitForWindowExposed(&zoom); }));
    EXPECT_TRUE(zoom.geometry().contains(QCursor::pos()));
    input(u"mouseup 1"_s);
    EXPECT_TRUE(comes([&] { return log.size() == 1; }));
    EXPECT_FALSE(zoom.isVisible());
    EXPECT_TRUE(comes([&] { return hasFocus(owner); }));
}

} // namespace
