// Input that comes from outside the process, through a real window system: what a window manager does with it
// counts too. The events wait for the event loop.
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

// What a program wrote to its standard output; fails the test if it didn't end.
QString outputOf(const QString &program, const QStringList &arguments);

// Words of xdotool, parted by blanks.
void input(const QString &commands);

// The words that move the pointer to a point of the widget, its middle without one. The point is told by the
// window that the window system knows: while a window manager takes a window into its frame, the toolkit may
// have it elsewhere for a moment.
QString at(const QWidget &widget, const QPoint &point);
QString at(const QWidget &widget);

// Runs the event loop until the condition holds, three seconds at most; returns whether it holds.
bool comes(const std::function<bool()> &condition);

// Not isActiveWindow: that is true already of a form over the active one.
bool hasFocus(const QWidget &window);

// Where the window stands by the window system's word, in pixels of the screen.
QPoint standsAt(const QWidget &window);

// A drag of a whole window by a control in it, from the press on the control's middle to the release.
class WindowDrag {
public:
    // Buttons are numbered as the X server does: 1 left, 2 middle, 3 right. Returns once the press was
    // handled.
    WindowDrag(QWidget &handle, int button);

    // Moves the pointer by so many pixels to the right and down.
    static void step(int pixels);

    // Small steps until the window moves: who moves it may take the pointer only some time after the press.
    bool begins();

    // The window comes to stand by the pointer as it did at the press.
    bool follows();

    void release();

private:
    const QWidget &m_window;
    const QString m_button;
    QPoint m_fromPointer;
};
