// What the drawn controls are to assistive programs: what kind of thing, whether it can be seen, and what
// pressing it does.
#pragma once

#include <QAccessible>

#include <functional>

class QWidget;

namespace forms {

struct Assistance {
    QAccessible::Role role = QAccessible::Graphic;
    std::function<void()> press; // none: it can't be pressed
    std::function<bool()> isOn; // of what can be chosen
};

// Of a label, an image or a picture button, once.
void SetAssistance(QWidget &control, Assistance assistance);

// What isOn says has changed.
void TellOfChoice(QWidget &control);

// Whether it lies wholly under another control of its window, or under the window that blocks its own.
bool IsCovered(const QWidget &control);

// What covers the controls of a window has come or gone.
void TellOfCover(QWidget &window);

void TellAssistantsOfControls(); // once, for all that are made from now on

} // namespace forms
