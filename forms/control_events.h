// The bodies of Control's functions. A handler may destroy the control: nothing of it is touched then, and
// the event counts as taken, so that the toolkit doesn't go on to the parent through it.
#pragma once

#include "forms/control.h"

#include <QPointer>

#include <utility>

namespace forms {

template <class Base> bool Control<Base>::takesButtons() const
{
    return MouseDown.hasHandler() || MouseUp.hasHandler() || Click.hasHandler() || DblClick.hasHandler();
}

template <class Base> void Control<Base>::hold(Qt::MouseButton button)
{
    m_lost = false;
    m_hold = std::make_unique<Hold>(*this, [this, button] {
        m_lost = true;
        m_hold.reset();
        // Else a text that scrolls under a held button would do so for ever.
        QMouseEvent release = releaseOutside(*this, button);
        Base::mouseReleaseEvent(&release);
        loseMouse();
    });
}

template <class Base> void Control<Base>::mousePressEvent(QMouseEvent *event)
{
    // The toolkit's classes send the second press of a double click here too; it has been raised by then.
    if (event->type() == QEvent::MouseButtonDblClick) {
        Base::mousePressEvent(event);
        return;
    }
    const QPointer<QObject> self(this);
    hold(event->button());
    MouseDown.raise(mouseOf(*event));
    if (self)
        Base::mousePressEvent(event);
    if (!self || takesButtons())
        event->accept();
}

template <class Base> void Control<Base>::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<QObject> self(this);
    hold(event->button());
    MouseDown.raise(mouseOf(*event));
    if (self)
        Base::mouseDoubleClickEvent(event);
    if (self && event->button() != Qt::RightButton)
        DblClick.raise();
    if (!self || takesButtons())
        event->accept();
}

template <class Base> void Control<Base>::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<QObject> self(this);
    const bool lost = std::exchange(m_lost, false);
    m_hold.reset();
    Base::mouseReleaseEvent(event);
    if (self && !lost)
        MouseUp.raise(mouseOf(*event));
    if (self && !lost && event->button() != Qt::RightButton)
        Click.raise();
    if (!self || takesButtons())
        event->accept();
}

template <class Base> void Control<Base>::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<QObject> self(this);
    MouseMove.raise(heldMouseOf(*event));
    if (self)
        Base::mouseMoveEvent(event);
    if (!self || MouseMove.hasHandler())
        event->accept();
}

template <class Base> void Control<Base>::keyPressEvent(QKeyEvent *event)
{
    const int code = keyCodeOf(*event);
    if (code == 0 || !KeyDown.hasHandler()) {
        Base::keyPressEvent(event);
        return;
    }
    const QPointer<QObject> self(this);
    if (!event->isAutoRepeat())
        KeyDown.raise(code);
    // A text box still inserts and deletes; Enter is the handler's alone.
    if (self && code != EnterKey)
        Base::keyPressEvent(event);
    event->accept();
}

template <class Base> void Control<Base>::focusInEvent(QFocusEvent *event)
{
    const QPointer<QObject> self(this);
    Base::focusInEvent(event);
    if (self && event->reason() != Qt::PopupFocusReason)
        GotFocus.raise();
}

// The mouse asks by its presses.
template <class Base> void Control<Base>::contextMenuEvent(QContextMenuEvent *event)
{
    if (!MenuKey.hasHandler()) {
        Base::contextMenuEvent(event);
        return;
    }
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        MenuKey.raise();
}

} // namespace forms
