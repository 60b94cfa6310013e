// The events that most controls share, laid over a widget class of the toolkit.
#pragma once

#include "forms/event.h"
#include "forms/hold.h"
#include "forms/units.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <memory>

namespace forms {

enum MouseButton : int { LeftButton = 1, RightButton = 2, MiddleButton = 4 };

// The codes of the keys that the screens listen for.
enum KeyCode : int { EnterKey = 13, InsertKey = 45, DeleteKey = 46 };

struct Mouse {
    int button = 0; // of a press or release: LeftButton ...; of a move: the sum of those held
    int x = 0; // twips in the control
    int y = 0;
};

Mouse mouseOf(const QMouseEvent &event); // press and release
Mouse heldMouseOf(const QMouseEvent &event); // move
int keyCodeOf(const QKeyEvent &event); // a KeyCode (both Enter keys give EnterKey), or 0 for any other key

// MouseDown and MouseUp come for any button, the release wherever the pointer stands, and the second press of
// a double click is a press too. Click follows the release of any button but the right one; DblClick the
// second press of one. An event that has a handler isn't passed on to the parent; one without is treated by
// the toolkit's class. A key held down raises KeyDown once. The focus that comes back from a menu or a
// drop-down list is no GotFocus. A held button whose release goes elsewhere, as a modal window or a menu has
// opened, raises MouseLost; should that release come after all, it raises nothing.
template <class Base> class Control : public Base {
public:
    using Base::Base;

    Event<const Mouse &> MouseDown;
    Event<const Mouse &> MouseUp;
    Event<> MouseLost;
    Event<const Mouse &> MouseMove;
    Event<> Click;
    Event<> DblClick;
    Event<int> KeyDown; // a KeyCode; other keys raise nothing
    Event<> GotFocus;
    Event<> MenuKey; // the keyboard asks for the menu

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    virtual void loseMouse() { MouseLost.raise(); }

private:
    bool takesButtons() const;
    void hold(Qt::MouseButton button);

    std::unique_ptr<Hold> m_hold; // from the press to the release
    bool m_lost = false; // the release of the last press
};

} // namespace forms

#include "forms/control_events.h"
