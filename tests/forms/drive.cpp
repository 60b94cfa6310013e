#include "drive.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace drive {

namespace {

QWindow *windowOf(const QWidget &widget)
{
    return widget.window()->windowHandle();
}

QPoint inWindow(const QWidget &widget, const QPoint &point)
{
    return widget.mapTo(widget.window(), point);
}

} // namespace

void show(QWidget &window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        ADD_FAILURE() << "the window did not get active";
}

void press(QWidget &widget, Qt::MouseButton button, const QPoint &point)
{
    QTest::mousePress(windowOf(widget), button, {}, inWindow(widget, point));
}

void release(QWidget &widget, Qt::MouseButton button, const QPoint &point)
{
    QTest::mouseRelease(windowOf(widget), button, {}, inWindow(widget, point));
}

void click(QWidget &widget, Qt::MouseButton button, const QPoint &point)
{
    QTest::mouseClick(windowOf(widget), button, {}, inWindow(widget, point));
}

void doubleClick(QWidget &widget, Qt::MouseButton button, const QPoint &point)
{
    QTest::mouseDClick(windowOf(widget), button, {}, inWindow(widget, point));
}

void moveTo(QWidget &widget, const QPoint &point)
{
    QTest::mouseMove(windowOf(widget), inWindow(widget, point));
}

void press(QWidget &widget, Qt::MouseButton button)
{
    press(widget, button, widget.rect().center());
}

void release(QWidget &widget, Qt::MouseButton button)
{
    release(widget, button, widget.rect().center());
}

void click(QWidget &widget, Qt::MouseButton button)
{
    click(widget, button, widget.rect().center());
}

void doubleClick(QWidget &widget, Qt::MouseButton button)
{
    doubleClick(widget, button, widget.rect().center());
}

void key(QWidget &window, Qt::Key key)
{
    QTest::keyClick(windowOf(window), key);
}

void keyDown(QWidget &window, Qt::Key key)
{
    QTest::keyPress(windowOf(window), key);
}

void keyUp(QWidget &window, Qt::Key key)
{
    QTest::keyRelease(windowOf(window), key);
}

void type(QWidget &window, char letter)
{
    QTest::keyClick(windowOf(window), letter);
}

void repeatedKey(QWidget &receiver, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&receiver, &event);
}

void wheel(QWidget &widget)
{
    const QPoint point = widget.rect().center();
    QWheelEvent event(point, widget.mapToGlobal(point), QPoint(), QPoint(0, -120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

QString tipAt(QWidget &widget, const QPoint &point)
{
    QHelpEvent ask(QEvent::ToolTip, point, widget.mapToGlobal(point));
    QApplication::sendEvent(&widget, &ask);
    const QString shown = QToolTip::text();
    // One that is only hidden stays for a while.
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel"))
            delete window;
    }
    return shown;
}

QColor colourAt(QWidget &widget, const QPoint &point)
{
    return widget.grab().toImage().pixelColor(point);
}

} // namespace drive
