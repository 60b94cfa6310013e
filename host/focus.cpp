#include "host/focus.h"

#include "host/x11.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdlib>
#include <memory>

namespace host {

namespace {

using Freed = decltype(&std::free);

template <typename Reply> std::unique_ptr<Reply, Freed> kept(Reply *reply)
{
    return { reply, &std::free };
}

bool isManaged(xcb_connection_t *connection, xcb_window_t root)
{
    const auto attributes = kept(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, root), nullptr));
    // Only one program at a time may place the windows of others, and that is what a manager does.
    return !attributes || (attributes->all_event_masks & XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT) != 0;
}

template <typename Is> bool isAnyRoot(xcb_connection_t *connection, Is is)
{
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection)); screen.rem > 0;
         xcb_screen_next(&screen)) {
        if (is(screen.data->root))
            return true;
    }
    return false;
}

bool isFocusFree(xcb_connection_t *connection)
{
    const auto focus = kept(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (!focus)
        return false;
    return focus->focus == XCB_INPUT_FOCUS_NONE || focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT
        || isAnyRoot(connection, [&](xcb_window_t root) { return root == focus->focus; });
}

void takeNow(QWidget &window)
{
    QWidget *blocking = QApplication::activeModalWidget();
    QWidget &taker = blocking ? *blocking : *window.window();
    if (taker.isVisible() && isFocusFree(x11Connection()))
        taker.activateWindow();
}

} // namespace

xcb_connection_t *x11Connection()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    auto *x11 = application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

bool isWithoutManager()
{
    xcb_connection_t *connection = x11Connection();
    return connection
        && !isAnyRoot(connection, [&](xcb_window_t root) { return isManaged(connection, root); });
}

void takeFreeFocus(QWidget &window)
{
    if (!isWithoutManager())
        return;
    takeNow(window);
    for (const int later : { 50, 200, 500, 1000 })
        QTimer::singleShot(later, &window, [&window] { takeNow(window); });
}

void centreWithoutManager(QWidget &box)
{
    const QWidget *lower = box.parentWidget() ? box.parentWidget()->window() : nullptr;
    if (lower && isWithoutManager())
        box.move(lower->mapToGlobal(lower->rect().center()) - box.rect().center());
}

} // namespace host
