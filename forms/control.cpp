#include "forms/control.h"

namespace forms {

namespace {

int codeOf(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? LeftButton : 0)
        + (buttons.testFlag(Qt::RightButton) ? RightButton : 0)
        + (buttons.testFlag(Qt::MiddleButton) ? MiddleButton : 0);
}

Mouse mouseAt(const QMouseEvent &event, Qt::MouseButtons buttons)
{
    const QPoint point = event.position().toPoint();
    return { codeOf(buttons), twips(point.x()), twips(point.y()) };
}

} // namespace

Mouse mouseOf(const QMouseEvent &event)
{
    return mouseAt(event, event.button());
}

Mouse heldMouseOf(const QMouseEvent &event)
{
    return mouseAt(event, event.buttons());
}

int keyCodeOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return EnterKey;
    case Qt::Key_Insert:
        return InsertKey;
    case Qt::Key_Delete:
        return DeleteKey;
    default:
        return 0;
    }
}

} // namespace forms
