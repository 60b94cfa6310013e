// What the tests of the toolkit share: real input through the window, as a user gives it, and the answers to
// fatal ends.
#pragma once

#include <QString>
#include <QWidget>

#include <string>
#include <vector>

namespace drive {

// Names of events in the order in which they came.
using Log = std::vector<std::string>;

// Thrown where the process would end on a failure.
struct ProcessEnd {
    QString title;
    QString text;
};

// Shows the window and waits until it is the active one.
void show(QWidget &window);

// Through the window under the widget, so that grabs, disabled controls and double clicks are the toolkit's
// own. Points are those of the widget.
void press(QWidget &widget, Qt::MouseButton button, const QPoint &point);
void release(QWidget &widget, Qt::MouseButton button, const QPoint &point);
void click(QWidget &widget, Qt::MouseButton button, const QPoint &point);
void doubleClick(QWidget &widget, Qt::MouseButton button, const QPoint &point);
void moveTo(QWidget &widget, const QPoint &point); // nothing happens where the pointer stands there already

void press(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);

// To the control that has the focus in the widget's window.
void key(QWidget &window, Qt::Key key);
void keyDown(QWidget &window, Qt::Key key);
void keyUp(QWidget &window, Qt::Key key);
void type(QWidget &window, char letter);

// To the window alone, as the system delivers it, with the sign of a key held down.
void repeatedKey(QWidget &receiver, Qt::Key key);

// One notch of the wheel towards the user, over the middle of the widget.
void wheel(QWidget &widget);

// What the toolkit shows as a tip when it is asked for one there; empty if nothing.
QString tipAt(QWidget &widget, const QPoint &point);

QColor colourAt(QWidget &widget, const QPoint &point);

} // namespace drive
