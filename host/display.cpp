#include "host/display.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QList>
#include <QScreen>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

#include <sys/stat.h>
#include <xcb/randr.h>
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

// True if the toolkit's plugin for X is the one that it will load.
bool isForX()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform == "xcb" || (platform.isEmpty() && !hasWaylandSocket());
}

template <typename Reply> using Answer = std::unique_ptr<Reply, decltype(&std::free)>;
template <typename Reply> Answer<Reply> answer(Reply *reply)
{
    return { reply, &std::free };
}

// What the desktop's resources give as Xft.dpi: 96 is the size as it is, and a desktop that doesn't care.
bool saysOtherScale(const QByteArray &resources)
{
    constexpr int Unscaled = 96;
    for (const QByteArray &line : resources.split('\n')) {
        if (line.startsWith("Xft.dpi:"))
            return line.sliced(line.indexOf(':') + 1).trimmed().toDouble() != Unscaled;
    }
    return false;
}

int linesOfMainMonitor(xcb_connection_t *connection, const xcb_screen_t &screen)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!extension || !extension->present)
        return screen.height_in_pixels;
    const auto monitors = answer(xcb_randr_get_monitors_reply(
        connection, xcb_randr_get_monitors(connection, screen.root, true), nullptr));
    if (!monitors)
        return screen.height_in_pixels;
    int lines = 0;
    for (auto monitor = xcb_randr_get_monitors_monitors_iterator(monitors.get()); monitor.rem > 0;
         xcb_randr_monitor_info_next(&monitor)) {
        if (lines == 0 || monitor.data->primary)
            lines = monitor.data->height;
    }
    return lines;
}

int linesWithoutScaleOn(xcb_connection_t *connection)
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (!screen)
        return 0;
    constexpr std::uint32_t MostWords = 65536;
    const auto resources = answer(xcb_get_property_reply(connection,
        xcb_get_property(
            connection, false, screen->root, XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, MostWords),
        nullptr));
    if (resources
        && saysOtherScale(QByteArray(static_cast<const char *>(xcb_get_property_value(resources.get())),
            xcb_get_property_value_length(resources.get()))))
        return 0;
    return linesOfMainMonitor(connection, *screen);
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

int linesWithoutScale()
{
    for (const char *name : { "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI",
             "QT_USE_PHYSICAL_DPI", "QT_ENABLE_HIGHDPI_SCALING" }) {
        if (!qEnvironmentVariableIsEmpty(name))
            return 0;
    }
    if (!isForX())
        return 0;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const int lines = xcb_connection_has_error(connection) == 0 ? linesWithoutScaleOn(connection) : 0;
    xcb_disconnect(connection);
    return lines;
}

double desktopFactor(int argc, char **argv)
{
    if (linesWithoutScale() > 0)
        return 1;
    // It takes out of the arguments what is meant for it.
    std::vector<char *> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    const QGuiApplication asked(argc, arguments.data());
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
}

} // namespace host
