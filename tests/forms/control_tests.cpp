#include "drive.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/plaintext.h"
#include "forms/textbox.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Controls : public testing::Test {
protected:
    Controls()
    {
        outer.setGeometry(10, 10, 100, 100);
        inner.setGeometry(20, 20, 40, 15);
        box.setGeometry(10, 130, 100, 20);
        text.setGeometry(10, 155, 100, 40);
    }

    template <class Control> void logButtons(Control &control)
    {
        control.MouseDown = [this](const forms::Mouse &mouse) {
            log.push_back("down " + std::to_string(mouse.button));
        };
        control.MouseUp = [this](const forms::Mouse &mouse) {
            log.push_back("up " + std::to_string(mouse.button));
        };
        control.Click = [this] { log.push_back("click"); };
        control.DblClick = [this] { log.push_back("double"); };
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::Image outer { &form };
    forms::Label inner { &outer };
    forms::TextBox box { &form };
    forms::TextArea text { &form };
    drive::Log log;
};

TEST_F(Controls, ShiftAndF10_AskForTheMenuAsTheKeyForItDoes)
{
    int menus = 0;
    outer.MenuKey = [&] { ++menus; };
    outer.setFocusPolicy(Qt::TabFocus);
    drive::show(form);
    outer.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(menus, 1);
    QTest::keyClick(form.windowHandle(), Qt::Key_F10);
    QTest::keyClick(form.windowHandle(), Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(menus, 1);
    drive::repeatedKey(outer, Qt::Key_F10);
    EXPECT_EQ(menus, 1);
}

TEST_F(Controls, ShiftAndF10_OpenTheMenuOfATextBoxWhereItsCursorStands)
{
    box.setText(u"some text"_s);
    drive::show(form);
    box.setFocus();
    box.end(false);
    const int cursor = box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    QTest::keyClick(form.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    QWidget *menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    EXPECT_EQ(box.mapFromGlobal(menu->pos()).x(), cursor);
    menu->close();
}

TEST_F(Controls, LeftAndMiddleClick_RaisePressReleaseAndClick)
{
    logButtons(inner);
    drive::show(form);
    drive::click(inner, Qt::LeftButton);
    EXPECT_THAT(log, ElementsAre("down 1", "up 1", "click"));
    log.clear();
    drive::click(inner, Qt::MiddleButton);
    EXPECT_THAT(log, ElementsAre("down 4", "up 4", "click"));
}

TEST_F(Controls, TheRightButton_RaisesPressAndReleaseOnly)
{
    logButtons(inner);
    drive::show(form);
    drive::click(inner, Qt::RightButton);
    EXPECT_THAT(log, ElementsAre("down 2", "up 2"));
}

TEST_F(Controls, AReleaseThatGoesElsewhere_IsTold_AndRaisesNothing)
{
    logButtons(inner);
    inner.MouseLost = [this] { log.push_back("lost"); };
    drive::show(form);
    QMenu menu;
    menu.addAction(u"entry"_s);
    drive::press(inner);
    menu.popup(QPoint(400, 400));
    EXPECT_THAT(log, ElementsAre("down 1", "lost"));
    menu.close();
    drive::release(inner);
    EXPECT_THAT(log, ElementsAre("down 1", "lost"));

    log.clear();
    drive::press(inner);
    inner.hide();
    inner.show();
    drive::press(inner, Qt::MiddleButton);
    inner.setEnabled(false);
    inner.setEnabled(true);
    EXPECT_THAT(log, ElementsAre("down 1", "lost", "down 4", "lost"));
    drive::release(inner, Qt::MiddleButton);

    log.clear();
    drive::click(inner);
    menu.popup(QPoint(400, 400));
    menu.close();
    EXPECT_THAT(log, ElementsAre("down 1", "up 1", "click"));
}

TEST_F(Controls, AMenuUnderAHeldImage_RaisesItsRelease)
{
    logButtons(outer);
    drive::show(form);
    QMenu menu;
    menu.addAction(u"entry"_s);
    drive::press(outer, Qt::LeftButton, { 5, 5 });
    menu.popup(QPoint(400, 400));
    EXPECT_THAT(log, ElementsAre("down 1", "up 1"));
    menu.close();
    drive::release(outer, Qt::LeftButton, { 5, 5 });
    EXPECT_THAT(log, ElementsAre("down 1", "up 1"));
}

TEST_F(Controls, TheSecondPressOfADoubleClick_IsAPressToo)
{
    logButtons(inner);
    drive::show(form);
    drive::doubleClick(inner);
    EXPECT_THAT(log, ElementsAre("down 1", "up 1", "click", "down 1", "double", "up 1", "click"));
}

TEST_F(Controls, ADoubleClickOnATextArea_RaisesEachEventOnce)
{
    logButtons(text);
    drive::show(form);
    drive::doubleClick(*text.viewport());
    EXPECT_THAT(log, ElementsAre("down 1", "up 1", "click", "down 1", "double", "up 1", "click"));
}

TEST_F(Controls, TheRelease_ComesWhereverThePointerStands)
{
    logButtons(inner);
    drive::show(form);
    drive::press(inner);
    drive::moveTo(form, { 180, 190 });
    drive::release(form, Qt::LeftButton, { 180, 190 });
    EXPECT_THAT(log, ElementsAre("down 1", "up 1", "click"));
}

TEST_F(Controls, TheMousePosition_IsGivenInTwipsOfTheControl)
{
    std::vector<std::pair<int, int>> points;
    inner.MouseDown = [&](const forms::Mouse &mouse) { points.emplace_back(mouse.x, mouse.y); };
    drive::show(form);
    drive::press(inner, Qt::LeftButton, { 3, 7 });
    drive::release(inner, Qt::LeftButton, { 3, 7 });
    EXPECT_THAT(points, ElementsAre(std::pair(45, 105)));
}

TEST_F(Controls, AnEventWithAHandler_StaysInTheControl)
{
    logButtons(outer);
    int clicks = 0;
    inner.Click = [&] { ++clicks; };
    drive::show(form);
    drive::click(inner);
    EXPECT_EQ(clicks, 1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Controls, AnEventWithoutAHandler_GoesToTheParent)
{
    logButtons(outer);
    drive::show(form);
    drive::press(inner);
    EXPECT_THAT(log, ElementsAre("down 1"));
    drive::release(inner);
}

TEST_F(Controls, MovesWithoutAButton_AreRaised)
{
    drive::Log moves;
    outer.MouseMove = [&](const forms::Mouse &mouse) {
        moves.push_back(
            std::to_string(mouse.button) + " " + std::to_string(mouse.x) + " " + std::to_string(mouse.y));
    };
    drive::show(form);
    drive::moveTo(form, { 190, 190 });
    drive::moveTo(outer, { 5, 6 });
    EXPECT_THAT(moves, ElementsAre("0 75 90"));
}

TEST_F(Controls, AMoveTellsTheSumOfTheButtonsHeld)
{
    std::vector<int> held;
    drive::show(form);
    drive::press(outer, Qt::LeftButton, { 5, 5 });
    drive::press(outer, Qt::MiddleButton, { 5, 5 });
    outer.MouseMove = [&](const forms::Mouse &mouse) { held.push_back(mouse.button); };
    drive::moveTo(outer, { 9, 9 });
    outer.MouseMove = nullptr;
    drive::release(outer, Qt::LeftButton, { 9, 9 });
    drive::release(outer, Qt::MiddleButton, { 9, 9 });
    EXPECT_THAT(held, ElementsAre(forms::LeftButton + forms::MiddleButton));
}

TEST_F(Controls, TheKeysThatScreensListenFor_HaveTheirCodes)
{
    std::vector<int> codes;
    outer.KeyDown = [&](int code) { codes.push_back(code); };
    drive::show(form);
    outer.setFocus();
    for (const Qt::Key key :
        { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Insert, Qt::Key_Delete, Qt::Key_A, Qt::Key_F5 })
        drive::key(form, key);
    EXPECT_THAT(codes, ElementsAre(13, 13, 45, 46));
}

TEST_F(Controls, AKeyHeldDown_RaisesOnce)
{
    std::vector<int> codes;
    outer.KeyDown = [&](int code) { codes.push_back(code); };
    drive::show(form);
    outer.setFocus();
    drive::key(form, Qt::Key_Return);
    drive::repeatedKey(outer, Qt::Key_Return);
    drive::repeatedKey(outer, Qt::Key_Return);
    EXPECT_THAT(codes, ElementsAre(13));
}

TEST_F(Controls, EnterWithAHandler_DoesNotReachTheForm)
{
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    int codes = 0;
    box.KeyDown = [&](int) { ++codes; };
    drive::show(form);
    box.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(codes, 1);
    EXPECT_EQ(enters, 0);
}

TEST_F(Controls, EnterWithAHandlerInATextArea_BeginsNoLine)
{
    int codes = 0;
    text.KeyDown = [&](int) { ++codes; };
    text.SetText(u"ab"_s);
    drive::show(form);
    text.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(codes, 1);
    EXPECT_EQ(text.Text(), u"ab"_s);
}

TEST_F(Controls, EnterWithoutAHandler_ReachesTheForm)
{
    int enters = 0;
    form.KeyEnter = [&] { ++enters; };
    drive::show(form);
    box.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(enters, 1);
}

TEST_F(Controls, DeleteInATextBoxWithAKeyHandler_StillDeletes)
{
    int codes = 0;
    box.KeyDown = [&](int) { ++codes; };
    box.SetText(u"abc"_s);
    drive::show(form);
    box.setFocus();
    box.setCursorPosition(0);
    drive::key(form, Qt::Key_Delete);
    EXPECT_EQ(box.Text(), u"bc"_s);
    EXPECT_EQ(codes, 1);
}

TEST_F(Controls, TypedText_ReachesTheTextBoxes)
{
    box.KeyDown = [](int) {};
    drive::show(form);
    box.setFocus();
    drive::type(form, 'x');
    EXPECT_EQ(box.Text(), u"x"_s);
    text.setFocus();
    drive::type(form, 'y');
    drive::key(form, Qt::Key_Return);
    drive::type(form, 'z');
    EXPECT_EQ(text.Text(), u"y\nz"_s);
}

TEST_F(Controls, TheFocus_IsToldWhenItComes)
{
    int focused = 0;
    drive::show(form);
    text.setFocus();
    box.GotFocus = [&] { ++focused; };
    box.setFocus();
    EXPECT_EQ(focused, 1);
}

TEST_F(Controls, TheFocusThatAMenuGivesBack_IsNotTold)
{
    int focused = 0;
    drive::show(form);
    box.setFocus();
    box.GotFocus = [&] { ++focused; };
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QApplication::sendEvent(&box, &back);
    EXPECT_EQ(focused, 0);
}

TEST_F(Controls, AControlDestroyedInItsHandler_IsNotTouchedAnyMore)
{
    drive::show(form);
    for (const bool onPress : { true, false }) {
        logButtons(outer);
        auto *victim = new forms::Label(&outer);
        victim->setGeometry(60, 60, 20, 20);
        victim->show();
        const QPointer<forms::Label> watch(victim);
        const auto destroy = [victim](const forms::Mouse &) { delete victim; };
        if (onPress)
            victim->MouseDown = destroy;
        else
            victim->MouseUp = destroy;
        drive::click(outer, Qt::LeftButton, { 70, 70 });
        EXPECT_TRUE(watch.isNull());
        EXPECT_THAT(log, IsEmpty());
    }
}

TEST_F(Controls, ATextAreasColours_AreThoseOfItsPaper)
{
    text.SetColours(Qt::black, Qt::yellow);
    EXPECT_EQ(text.palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(text.palette().color(QPalette::Text), QColor(Qt::yellow));
}

TEST_F(Controls, ATextAreaIsPaintedToItsEdge_OnADenseScreenToo)
{
    const QColor below(1, 254, 3);
    form.SetBackColour(below);
    QPixmap picture(form.size() * 2);
    picture.setDevicePixelRatio(2);
    form.render(&picture);
    const QImage image = picture.toImage();
    const QRect area(text.geometry().topLeft() * 2, text.size() * 2);
    for (int x = area.left(); x <= area.right(); ++x)
        ASSERT_NE(image.pixelColor(x, area.top() + 1), below) << x;
    for (int y = area.top(); y <= area.bottom(); ++y)
        ASSERT_NE(image.pixelColor(area.left() + 1, y), below) << y;
    EXPECT_EQ(image.pixelColor(area.left() - 1, area.top()), below);
}

TEST_F(Controls, OfATextSetTooLongForItsBox_TheBeginningShows)
{
    box.SetText(QString(500, u'x'));
    EXPECT_EQ(box.cursorPosition(), 0);
}

TEST_F(Controls, OfATextWithLineBreaks_ATextBoxKeepsTheFirstLine)
{
    box.SetText(u"http://x.example\n-Foo"_s);
    EXPECT_EQ(box.Text(), u"http://x.example"_s);
    QApplication::clipboard()->setText(u"-x\r\n-y"_s);
    box.SetText({});
    box.paste();
    EXPECT_EQ(box.Text(), u"-x"_s);
}

TEST_F(Controls, AnEmptyClipboardPasted_ChangesNothing)
{
    text.SetText(u"text"_s);
    box.SetText(u"box"_s);
    drive::show(form);
    for (const bool cleared : { true, false }) {
        if (cleared)
            QApplication::clipboard()->clear();
        else
            QApplication::clipboard()->setMimeData(new QMimeData);
        for (QWidget *control : { static_cast<QWidget *>(&text), static_cast<QWidget *>(&box) }) {
            control->setFocus();
            QTest::keyClick(form.windowHandle(), Qt::Key_V, Qt::ControlModifier);
            QTest::keyClick(form.windowHandle(), Qt::Key_Insert, Qt::ShiftModifier);
        }
    }
    EXPECT_EQ(text.Text(), u"text"_s);
    EXPECT_EQ(box.Text(), u"box"_s);
}

TEST_F(Controls, OfWhatIsPasted_ATextAreaTakesThePlainTextAlone)
{
    auto *marked = new QMimeData;
    marked->setData(u"application/x-qrichtext"_s, "<b>bold</b>");
    marked->setText(u"<b>plain</b>"_s);
    QApplication::clipboard()->setMimeData(marked);
    text.paste();
    EXPECT_EQ(text.Text(), u"<b>plain</b>"_s);

    auto *picture = new QMimeData;
    picture->setData(u"image/png"_s, "\x89PNG");
    QApplication::clipboard()->setMimeData(picture);
    text.paste();
    EXPECT_EQ(text.Text(), u"<b>plain</b>"_s);
}

TEST_F(Controls, EnterInATextAreaThatTakesNoTyping_StaysThere)
{
    int entered = 0;
    form.KeyEnter = [&] { ++entered; };
    text.setReadOnly(true);
    drive::show(form);
    text.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(entered, 0);
}

} // namespace

class EndlessTextInABox : public testing::Test {
protected:
    EndlessTextInABox() { box.SetText(beginning + rest); }

    const QString beginning = u"Begin"_s + QString(forms::TextBox::LongestShown - 5, u'x');
    const QString rest { 50'000, u'z' };
    forms::TextBox box { nullptr };
};

TEST_F(EndlessTextInABox, IsWhole_ThoughDotsStandForWhatDoesNotShow)
{
    EXPECT_TRUE(box.text() == beginning + u'…');
    EXPECT_TRUE(box.Text() == beginning + rest);
    box.SetText(beginning);
    EXPECT_TRUE(box.text() == beginning);
    EXPECT_TRUE(box.Text() == beginning);
    box.SetText(u"…"_s);
    EXPECT_EQ(box.Text(), u"…"_s);
}

TEST_F(EndlessTextInABox, KeepsTheRestWhereSomethingElseIsEdited)
{
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClick(&box, 'C');
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Exclam);
    EXPECT_TRUE(box.Text() == u'C' + beginning.sliced(1) + rest + u'!');
}

TEST_F(EndlessTextInABox, IsWhatIsTypedOnceTheDotsAreGone)
{
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_TRUE(box.Text() == beginning);
    box.undo();
    EXPECT_TRUE(box.Text() == beginning + rest);
    box.selectAll();
    QTest::keyClicks(&box, u"New"_s);
    EXPECT_EQ(box.Text(), u"New"_s);
    QApplication::clipboard()->setText(u"Newer…"_s);
    box.selectAll();
    box.paste();
    EXPECT_EQ(box.Text(), u"Newer…"_s);
}

TEST_F(EndlessTextInABox, BeginsWithWholeCharacters)
{
    const QString text = u'x' + u"😀"_s.repeated(20'000);
    box.SetText(text);
    EXPECT_TRUE(box.Text() == text);
    EXPECT_TRUE(box.text() == text.first(forms::TextBox::LongestShown - 1) + u'…');
    QApplication::clipboard()->setText(text);
    box.SetText({});
    box.paste();
    EXPECT_TRUE(box.Text() == text.first(box.Text().size()));
    EXPECT_FALSE(box.Text().back().isHighSurrogate());
    EXPECT_GT(box.Text().size(), forms::TextBox::LongestShown);
}

TEST(TextBoxes, ATextTooWideForTheBoxShowsAsItsTip)
{
    forms::TextBox box(nullptr);
    box.resize(100, 19);
    box.SetTip();
    const QString wide(60, u'm');
    box.SetText(wide);
    EXPECT_EQ(box.toolTip(), forms::asTip(wide));
    box.SetText(u"/games"_s);
    EXPECT_EQ(box.toolTip(), QString());

    // Wider dot by dot: it comes with the first that doesn't fit any more.
    box.SetText({});
    QString text;
    while (box.toolTip().isEmpty() && text.size() < 200)
        box.SetText(text += u'.');
    const int room = box.width() - box.fontMetrics().horizontalAdvance(text);
    EXPECT_LT(room, 10); // frame and insets
    EXPECT_GE(room, 0);
}
