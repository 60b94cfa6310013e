// Controls of the toolkit's that hold the mouse as a modal window or a menu takes it.
#include "drive.h"

#include "forms/checks.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/listbox.h"
#include "forms/textbox.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using forms::Form;
using testing::IsEmpty;

namespace {

constexpr int Rows = 4000;
constexpr int LongerThanItsRepeat = 300; // milliseconds

class ToolkitHolds : public testing::Test {
protected:
    ToolkitHolds()
    {
        list.setGeometry(10, 10, 120, 100);
        QStringList lines;
        for (int i = 0; i < Rows; ++i) {
            list.AddItem(QString::number(i));
            lines += QString::number(i);
        }
        text.setGeometry(150, 10, 120, 100);
        text.SetText(lines.join(u'\n'));
        button.setGeometry(10, 130, 100, 30);
        button.Click = [this] { log.push_back("button"); };
        check.setGeometry(10, 170, 100, 30);
        check.Click = [this] { log.push_back("check"); };
        option.setGeometry(10, 210, 100, 30);
        option.Click = [this] { log.push_back("option"); };
        menu.addAction(u"entry"_s);
        drive::show(form);
    }

    // The release goes nowhere: the form is shut off.
    void openAndCloseABox()
    {
        Form box(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
        QTimer::singleShot(0, qApp, [&] { box.Unload(); });
        box.ShowModal(&form);
    }

    void openAndCloseAMenu()
    {
        menu.popup(QPoint(300, 300));
        menu.close();
    }

    static QPoint lowerArrow(const QScrollBar &bar) { return { bar.width() / 2, bar.height() - 4 }; }

    static bool moves(const QScrollBar &bar)
    {
        const int before = bar.value();
        QTest::qWait(LongerThanItsRepeat);
        return bar.value() != before;
    }

    Form form { u"Form"_s, 4500, 4500, Form::Border::None };
    forms::ListBox list { &form };
    forms::TextArea text { &form };
    forms::CommandButton button { &form };
    forms::CheckBox check { &form };
    forms::OptionButton option { &form };
    QMenu menu;
    drive::Log log;
};

TEST_F(ToolkitHolds, AHeldScrollBar_ScrollsNoMoreOnceABoxOrAMenuHasOpened)
{
    for (QWidget *owner : { static_cast<QWidget *>(&list), static_cast<QWidget *>(&text) }) {
        QScrollBar &bar = *static_cast<QAbstractScrollArea *>(owner)->verticalScrollBar();
        for (const bool byMenu : { false, true }) {
            drive::press(bar, Qt::LeftButton, lowerArrow(bar));
            QTest::qWait(2 * LongerThanItsRepeat); // its first repeat comes after half a second
            EXPECT_TRUE(moves(bar));
            byMenu ? openAndCloseAMenu() : openAndCloseABox();
            EXPECT_FALSE(moves(bar));
            drive::release(bar, Qt::LeftButton, lowerArrow(bar));
        }
    }
}

TEST_F(ToolkitHolds, AHeldScrollBar_ScrollsAgainAtTheNextPress)
{
    QScrollBar &bar = *list.verticalScrollBar();
    drive::press(bar, Qt::LeftButton, lowerArrow(bar));
    openAndCloseABox();
    drive::release(bar, Qt::LeftButton, lowerArrow(bar));
    const int before = bar.value();
    drive::click(bar, Qt::LeftButton, lowerArrow(bar));
    EXPECT_GT(bar.value(), before);
}

TEST_F(ToolkitHolds, AHeldHandleOfABar_NoLongerFollowsThePointer)
{
    QScrollBar &bar = *list.verticalScrollBar();
    const QPoint handle(bar.width() / 2, bar.width() + 4);
    drive::press(bar, Qt::LeftButton, handle);
    ASSERT_TRUE(bar.isSliderDown());
    openAndCloseABox();
    EXPECT_FALSE(bar.isSliderDown());
}

TEST_F(ToolkitHolds, AHeldButton_IsAtRestWithoutActing)
{
    for (QAbstractButton *held : { static_cast<QAbstractButton *>(&button),
             static_cast<QAbstractButton *>(&check), static_cast<QAbstractButton *>(&option) }) {
        for (const bool byMenu : { false, true }) {
            const QPoint point(8, held->height() / 2);
            drive::press(*held, Qt::LeftButton, point);
            ASSERT_TRUE(held->isDown());
            byMenu ? openAndCloseAMenu() : openAndCloseABox();
            EXPECT_FALSE(held->isDown());
            drive::release(*held, Qt::LeftButton, point);
        }
    }
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ToolkitHolds, ATextThatScrollsUnderTheHeldButton_Stops)
{
    QScrollBar &bar = *text.verticalScrollBar();
    drive::press(*text.viewport());
    const QPointF below(20, 140);
    QCursor::setPos(text.viewport()->mapToGlobal(below).toPoint());
    QMouseEvent move(QEvent::MouseMove, below, text.viewport()->mapToGlobal(below), Qt::NoButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(text.viewport(), &move);
    EXPECT_TRUE(moves(bar));
    openAndCloseABox();
    EXPECT_FALSE(moves(bar));
    drive::release(*text.viewport());
}

} // namespace
