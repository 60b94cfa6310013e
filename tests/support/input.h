// The user's hands: mouse and keys that go the way of the window system, so that what lies on top, what is
// disabled and what a modal window shuts off count as they do for a user.
#pragma once

#include "forms/combobox.h"
#include "forms/listbox.h"

#include <QMenu>
#include <QWidget>

#include <functional>

// Without a point the middle of the widget is meant; points are pixels in the widget, and may lie outside it.
void press(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void releaseAt(QWidget &widget, QPoint point, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget &widget);
void clickAt(QWidget &widget, QPoint point, Qt::MouseButton button = Qt::LeftButton);
void moveTo(QWidget &widget, QPoint point);
// One notch towards the user, or so many eighths of a degree; away from him where they are positive.
void turnWheel(QWidget &widget, QPoint point, int eighths = -120, Qt::KeyboardModifiers modifiers = {});

// A key goes to the control that has the focus in the widget's window.
void strike(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(QWidget &widget, const QString &text);
void repeatKey(QWidget &widget, Qt::Key key); // as a key held down sends it on

// A click on the row of a list.
void clickRow(forms::ListBox &list, int row, Qt::MouseButton button = Qt::LeftButton);
void doubleClickRow(forms::ListBox &list, int row);

// Drops the list down, and clicks on the first entry with this text.
void pick(forms::ComboBox &combo, const QString &text);
void dropDown(forms::ComboBox &combo);

// Runs `open`, which pops the menu up, and closes it again, by the entry or, without one, by Escape. Returns
// whether the menu came up.
bool popsUp(QMenu &menu, const std::function<void()> &open, QAction *entry = nullptr);

// Gives the window system's wish to close the window.
void wishClose(QWidget &window);

// Runs the event loop until the condition holds, twenty seconds at most; returns whether it holds.
bool waitUntil(const std::function<bool()> &condition);
