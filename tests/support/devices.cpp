#include "tests/support/devices.h"

#include "tests/support/witness.h"

#include <QCursor>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

void input(const QString &commands)
{
    outputOf(u"xdotool"_s, commands.split(u' '));
}

QString at(const QWidget &widget, const QPoint &point)
{
    const QPoint inWindow = widget.mapTo(widget.window(), point);
    return u"mousemove --window %1 %2 %3"_s.arg(widget.window()->winId()).arg(inWindow.x()).arg(inWindow.y());
}

QString at(const QWidget &widget)
{
    return at(widget, widget.rect().center());
}

bool comes(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 3000);
}

bool hasFocus(const QWidget &window)
{
    return QGuiApplication::focusWindow() == window.windowHandle();
}

QPoint standsAt(const QWidget &window)
{
    static const QRegularExpression place(u"X=(-?\\d+)\\s+Y=(-?\\d+)"_s);
    const QString told =
        outputOf(u"xdotool"_s, { u"getwindowgeometry"_s, u"--shell"_s, QString::number(window.winId()) });
    const QRegularExpressionMatch found = place.match(told);
    EXPECT_TRUE(found.hasMatch()) << told.toStdString();
    return { found.captured(1).toInt(), found.captured(2).toInt() };
}

WindowDrag::WindowDrag(QWidget &handle, int button)
    : m_window(*handle.window())
    , m_button(QString::number(button))
{
    input(at(handle));
    m_fromPointer = standsAt(m_window) - QCursor::pos();
    bool pressed = false;
    const Witness witness(handle, QEvent::MouseButtonPress, [&] { pressed = true; });
    input(u"mousedown "_s + m_button);
    EXPECT_TRUE(comes([&] { return pressed; }));
}

void WindowDrag::step(int pixels)
{
    input(u"mousemove_relative -- %1 %1"_s.arg(pixels));
}

bool WindowDrag::begins()
{
    const QPoint start = standsAt(m_window);
    return comes([&] {
        step(1);
        return standsAt(m_window) != start;
    });
}

bool WindowDrag::follows()
{
    return comes([this] { return standsAt(m_window) == QCursor::pos() + m_fromPointer; });
}

void WindowDrag::release()
{
    input(u"mouseup "_s + m_button);
}
