// Whether there is a screen to draw on, by what the environment names and what answers there.
#include "host/display.h"

#include "disktest.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

// None of the variables is set at the beginning of a test; all are as they were after it.
class Display : public DiskTest {
protected:
    Display()
    {
        for (const char *name : { "QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "DISPLAY",
                 "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_USE_PHYSICAL_DPI",
                 "QT_ENABLE_HIGHDPI_SCALING" }) {
            m_kept[name] = qgetenv(name);
            qunsetenv(name);
        }
    }
    ~Display() override
    {
        for (const auto &[name, value] : m_kept)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    QByteArray ownScreen() const { return m_kept.at("DISPLAY"); } // what the tests run under

    void makeSocket(const QByteArray &name) const
    {
        sockaddr_un address { AF_UNIX, {} };
        qstrncpy(address.sun_path, place(name).constData(), sizeof address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        close(socket);
    }

private:
    std::map<const char *, QByteArray> m_kept;
};

std::ptrdiff_t openFiles()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST_F(Display, IsNone_WhereNothingIsNamed)
{
    EXPECT_FALSE(host::hasDisplay());
}

TEST_F(Display, IsThere_WhereAnXServerAnswers)
{
    qputenv("DISPLAY", ownScreen());
    EXPECT_TRUE(host::hasDisplay());
    qputenv("QT_QPA_PLATFORM", "xcb");
    EXPECT_TRUE(host::hasDisplay());
}

TEST_F(Display, IsNone_WhereNoXServerAnswers)
{
    qputenv("DISPLAY", ":64999");
    EXPECT_FALSE(host::hasDisplay());
    qputenv("QT_QPA_PLATFORM", "xcb");
    EXPECT_FALSE(host::hasDisplay());
}

TEST_F(Display, IsAskedForWithoutLeavingAConnectionOpen)
{
    qputenv("DISPLAY", ownScreen());
    const std::ptrdiff_t before = openFiles();
    EXPECT_TRUE(host::hasDisplay());
    EXPECT_EQ(openFiles(), before);
}

TEST_F(Display, IsThere_WhereTheUserHasChosenAnotherPlatform)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_TRUE(host::hasDisplay());
    qputenv("QT_QPA_PLATFORM", "");
    EXPECT_FALSE(host::hasDisplay());
}

TEST_F(Display, IsThere_WhereTheRuntimeDirectoryHasTheWaylandSocket)
{
    makeSocket("wayland-7");
    qputenv("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_FALSE(host::hasDisplay()) << "no runtime directory is named";
    qputenv("XDG_RUNTIME_DIR", place());
    EXPECT_TRUE(host::hasDisplay());
    qputenv("WAYLAND_DISPLAY", "wayland-8");
    EXPECT_FALSE(host::hasDisplay());
}

TEST_F(Display, IsThere_WhereTheWaylandSocketIsNamedInFull)
{
    makeSocket("socket");
    qputenv("WAYLAND_DISPLAY", place("socket"));
    EXPECT_TRUE(host::hasDisplay());
    qputenv("XDG_RUNTIME_DIR", "/nowhere");
    EXPECT_TRUE(host::hasDisplay());
}

TEST_F(Display, IsNone_WhereWhatWaylandNamesIsNoSocket)
{
    makeFile("wayland-0");
    makeDirectory("wayland-1");
    qputenv("XDG_RUNTIME_DIR", place());
    for (const char *name : { "", "wayland-0", "wayland-1" }) {
        qputenv("WAYLAND_DISPLAY", name);
        EXPECT_FALSE(host::hasDisplay()) << name;
    }
}

// A name without a runtime directory is none in the root directory, nor in the working one.
TEST_F(Display, IsNotLookedForElsewhere_WhereNoRuntimeDirectoryIsNamed)
{
    makeSocket("wayland-0");
    ASSERT_EQ(chdir(place().constData()), 0);
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(host::hasDisplay());
    qputenv("WAYLAND_DISPLAY", place("wayland-0").sliced(1));
    EXPECT_FALSE(host::hasDisplay());
}

class Lines : public Display {
protected:
    Lines() { qputenv("DISPLAY", ownScreen()); }
    ~Lines() override { setResources({}); }

    // Those of the whole screen, as a desktop puts them there.
    void setResources(const QByteArray &resources) const
    {
        xcb_connection_t *connection = xcb_connect(ownScreen().constData(), nullptr);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, root, XCB_ATOM_RESOURCE_MANAGER,
            XCB_ATOM_STRING, 8, std::uint32_t(resources.size()), resources.constData());
        // The server has it once it answers what was asked behind it.
        std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
        xcb_disconnect(connection);
    }
};

TEST_F(Lines, AreThoseOfTheScreen)
{
    const std::ptrdiff_t before = openFiles();
    EXPECT_EQ(host::linesWithoutScale(), 1024);
    EXPECT_EQ(openFiles(), before);
    setResources("Xcursor.size:\t24\nXft.dpi:\t96\n");
    EXPECT_EQ(host::linesWithoutScale(), 1024);
}

TEST_F(Lines, AreNone_WhereTheDesktopDrawsEverythingLarger)
{
    setResources("Xcursor.size:\t48\nXft.dpi:\t192\n");
    EXPECT_EQ(host::linesWithoutScale(), 0);
    setResources("Xft.dpi: 120");
    EXPECT_EQ(host::linesWithoutScale(), 0);
}

TEST_F(Lines, AreNone_WhereTheUserHasSaidHowLarge)
{
    for (const char *name : { "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI",
             "QT_USE_PHYSICAL_DPI", "QT_ENABLE_HIGHDPI_SCALING" }) {
        qputenv(name, "1");
        EXPECT_EQ(host::linesWithoutScale(), 0) << name;
        qunsetenv(name);
    }
}

TEST_F(Lines, AreNone_OnAnotherDesktopThanX)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_EQ(host::linesWithoutScale(), 0);
    qputenv("QT_QPA_PLATFORM", "");
    makeSocket("wayland-0");
    qputenv("WAYLAND_DISPLAY", place("wayland-0"));
    EXPECT_EQ(host::linesWithoutScale(), 0);
    qputenv("QT_QPA_PLATFORM", "xcb");
    EXPECT_EQ(host::linesWithoutScale(), 1024);
    qputenv("DISPLAY", ":64999");
    EXPECT_EQ(host::linesWithoutScale(), 0);
}

} // namespace
