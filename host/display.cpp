#include "host/display.h"

#include <QByteArray>

#include <sys/stat.h>
#include <xcb/xcb.h>

namespace host {

namespace {

// The socket of the display that is named: a name alone stands in the user's runtime directory.
bool hasWaylandSocket()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    const QByteArray directory = qgetenv("XDG_RUNTIME_DIR");
    const bool absolute = name.startsWith('/');
    if (name.isEmpty() || (!absolute && directory.isEmpty()))
        return false;
    struct stat state;
    return stat((absolute ? name : directory + '/' + name).constData(), &state) == 0
        && S_ISSOCK(state.st_mode);
}

} // namespace

bool hasDisplay()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qgetenv("QT_QPA_PLATFORM") != "xcb")
        return true;
    if (hasWaylandSocket())
        return true;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace host
