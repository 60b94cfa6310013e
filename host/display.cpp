#include "host/display.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace host {

bool hasDisplay()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qgetenv("QT_QPA_PLATFORM") != "xcb")
        return true;
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return true;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace host
