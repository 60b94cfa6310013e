#include "tests/support/input.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

constexpr int Bound = 20000; // milliseconds; nothing is waited for in vain but in a test that fails

// A window system gives the window back what its drop-down list took.
void activate(QWidget &window)
{
    if (!window.isVisible() || QApplication::activeModalWidget())
        return;
    window.activateWindow();
    EXPECT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
}

QWindow *windowOf(QWidget &widget)
{
    return widget.window()->windowHandle();
}

QPoint inWindow(QWidget &widget, QPoint point)
{
    return widget.mapTo(widget.window(), point);
}

QPoint middle(QWidget &widget)
{
    return inWindow(widget, widget.rect().center());
}

QPoint middleOfRow(QAbstractItemView &view, int row)
{
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    const QRect seen = view.visualRect(index) & view.viewport()->rect();
    return inWindow(*view.viewport(), seen.center());
}

} // namespace

void press(QWidget &widget, Qt::MouseButton button)
{
    QTest::mousePress(windowOf(widget), button, {}, middle(widget));
}

void release(QWidget &widget, Qt::MouseButton button)
{
    QTest::mouseRelease(windowOf(widget), button, {}, middle(widget));
}

void releaseAt(QWidget &widget, QPoint point, Qt::MouseButton button)
{
    QTest::mouseRelease(windowOf(widget), button, {}, inWindow(widget, point));
}

void click(QWidget &widget, Qt::MouseButton button)
{
    QTest::mouseClick(windowOf(widget), button, {}, middle(widget));
}

void doubleClick(QWidget &widget)
{
    QTest::mouseDClick(windowOf(widget), Qt::LeftButton, {}, middle(widget));
}

void clickAt(QWidget &widget, QPoint point, Qt::MouseButton button)
{
    QTest::mouseClick(windowOf(widget), button, {}, inWindow(widget, point));
}

void moveTo(QWidget &widget, QPoint point)
{
    QTest::mouseMove(windowOf(widget), inWindow(widget, point));
}

void turnWheel(QWidget &widget, QPoint point, int eighths, Qt::KeyboardModifiers modifiers)
{
    const QPoint place = inWindow(widget, point);
    QWheelEvent turn(place, widget.mapToGlobal(point), {}, QPoint(0, eighths), Qt::NoButton, modifiers,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(windowOf(widget), &turn);
}

void strike(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(windowOf(widget), key, modifiers);
}

void type(QWidget &widget, const QString &text)
{
    for (const QChar letter : text)
        QTest::keyClick(windowOf(widget), letter.toLatin1());
}

void repeatKey(QWidget &widget, Qt::Key key)
{
    QWidget *focused = widget.window()->focusWidget();
    ASSERT_TRUE(focused);
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(focused, &again);
}

void clickRow(forms::ListBox &list, int row, Qt::MouseButton button)
{
    QTest::mouseClick(windowOf(list), button, {}, middleOfRow(list, row));
}

void doubleClickRow(forms::ListBox &list, int row)
{
    QTest::mouseDClick(windowOf(list), Qt::LeftButton, {}, middleOfRow(list, row));
}

void dropDown(forms::ComboBox &combo)
{
    QKeyEvent open(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
    QCoreApplication::sendEvent(&combo, &open);
    ASSERT_TRUE(waitUntil([&combo] { return combo.view()->isVisible(); })) << "the list didn't drop down";
}

void pick(forms::ComboBox &combo, const QString &text)
{
    const int row = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    ASSERT_GE(row, 0) << "no entry " << text.toStdString();
    ASSERT_TRUE(combo.isEnabled());
    dropDown(combo);
    QTest::mouseClick(windowOf(*combo.view()), Qt::LeftButton, {}, middleOfRow(*combo.view(), row));
    EXPECT_FALSE(combo.view()->isVisible()) << "the list stayed open";
    activate(*combo.window());
}

void wishClose(QWidget &window)
{
    window.windowHandle()->close();
}

bool popsUp(QMenu &menu, const std::function<void()> &open, QAction *entry)
{
    bool shown = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &menu, [&] {
        QWidget *popup = QApplication::activePopupWidget();
        if (!popup)
            return;
        watch.stop();
        if (popup != &menu) {
            popup->close();
            return;
        }
        shown = true;
        // The press that opened it is over for the user, and so it is for the box that an entry may show.
        QTest::mouseRelease(windowOf(menu), Qt::RightButton, {}, QPoint(-1, -1));
        menu.setActiveAction(entry);
        QTest::keyClick(windowOf(menu), entry ? Qt::Key_Return : Qt::Key_Escape);
    });
    watch.start(0);
    open();
    return shown;
}

bool waitUntil(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, Bound);
}
