// Other programs' windows by title, under a real window manager.
#include "host/windows.h"

#include "host/focus.h"

#include <QElapsedTimer>
#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 10000; // milliseconds

bool becomesTrue(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, LongestWait);
}

// A window of another program: its own connection, the titles that it is given, and the close message if it
// asks for one.
class ForeignWindow {
public:
    ForeignWindow()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        xcb_ewmh_init_atoms_replies(&m_ewmh, xcb_ewmh_init_atoms(m_connection, &m_ewmh), nullptr);
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 100, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        const xcb_atom_t protocol = closeMessage();
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_ewmh.WM_PROTOCOLS, XCB_ATOM_ATOM,
            32, 1, &protocol);
    }
    ~ForeignWindow()
    {
        xcb_ewmh_connection_wipe(&m_ewmh);
        xcb_disconnect(m_connection);
    }
    ForeignWindow(const ForeignWindow &) = delete;
    ForeignWindow &operator=(const ForeignWindow &) = delete;

    void setOldTitle(const QByteArray &title)
    {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING,
            8, uint32_t(title.size()), title.constData());
    }
    void setNewTitle(const QByteArray &title)
    {
        xcb_ewmh_set_wm_name(&m_ewmh, m_window, uint32_t(title.size()), title.constData());
    }
    void show()
    {
        xcb_map_window(m_connection, m_window);
        xcb_flush(m_connection);
    }
    bool wasAskedToClose()
    {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            const auto *message = reinterpret_cast<xcb_client_message_event_t *>(event);
            m_asked = m_asked
                || ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE
                    && message->type == m_ewmh.WM_PROTOCOLS && message->data.data32[0] == closeMessage());
            free(event);
        }
        return m_asked;
    }
    host::WindowId id() const { return m_window; }

private:
    xcb_atom_t closeMessage()
    {
        constexpr char name[] = "WM_DELETE_WINDOW";
        xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, sizeof name - 1, name), nullptr);
        const xcb_atom_t atom = reply->atom;
        free(reply);
        return atom;
    }

    xcb_connection_t *m_connection;
    xcb_ewmh_connection_t m_ewmh {};
    xcb_window_t m_window = 0;
    bool m_asked = false;
};

bool isFound(const QString &title)
{
    return host::findWindow(title) != 0;
}

TEST(Windows, AWindowIsFoundByItsTitle_CaseApart)
{
    ForeignWindow window;
    window.setNewTitle("Finalizado - Ñandú");
    window.show();
    EXPECT_TRUE(becomesTrue([] { return isFound(u"Finalizado - Ñandú"_s); }));
    EXPECT_EQ(host::findWindow(u"FINALIZADO - ñANDÚ"_s), window.id());
}

TEST(Windows, AWindowIsFoundByItsOldTitle_WhereItHasNoNewOne)
{
    ForeignWindow window;
    window.setOldTitle("Finalizado - Espa\xf1"
                       "a");
    window.show();
    EXPECT_TRUE(becomesTrue([&] { return host::findWindow(u"finalizado - españa"_s) == window.id(); }));
}

TEST(Windows, TheNewTitleCounts_WhereAWindowHasBoth)
{
    ForeignWindow window;
    window.setOldTitle("old title");
    window.setNewTitle("new title");
    window.show();
    EXPECT_TRUE(becomesTrue([&] { return host::findWindow(u"new title"_s) == window.id(); }));
    EXPECT_FALSE(isFound(u"old title"_s));
}

TEST(Windows, OnlyTheExactTitleFits)
{
    ForeignWindow window;
    window.setNewTitle("Finalizado - emu");
    window.show();
    EXPECT_TRUE(becomesTrue([] { return isFound(u"Finalizado - emu"_s); }));
    EXPECT_FALSE(isFound(u"Finalizado - "_s));
    EXPECT_FALSE(isFound(u"Finalizado - emu2"_s));
    EXPECT_FALSE(isFound(u" Finalizado - emu"_s));
    EXPECT_FALSE(isFound(u"emu"_s));
}

TEST(Windows, AWindowThatIsNotShownIsNotFound)
{
    ForeignWindow hidden;
    hidden.setNewTitle("the hidden one");
    ForeignWindow shown;
    shown.setNewTitle("the shown one");
    shown.show();
    EXPECT_TRUE(becomesTrue([] { return isFound(u"the shown one"_s); }));
    EXPECT_FALSE(isFound(u"the hidden one"_s));
}

TEST(Windows, AWindowGetsTheCloseMessage_AndNoOtherDoes)
{
    ForeignWindow window;
    window.setNewTitle("to be closed");
    window.show();
    ForeignWindow other;
    other.setNewTitle("to be left");
    other.show();
    ASSERT_TRUE(becomesTrue([] { return isFound(u"to be closed"_s) && isFound(u"to be left"_s); }));
    host::closeWindow(host::findWindow(u"to be closed"_s));
    EXPECT_TRUE(becomesTrue([&] { return window.wasAskedToClose(); }));
    EXPECT_FALSE(other.wasAskedToClose());
}

class ClosingWidget : public QWidget {
public:
    bool closed = false;

protected:
    void closeEvent(QCloseEvent *) override { closed = true; }
};

TEST(Windows, AWindowOfTheToolkitIsFoundAndClosed)
{
    ClosingWidget widget;
    widget.setWindowTitle(u"Finalizado - stella"_s);
    widget.show();
    ASSERT_TRUE(becomesTrue([] { return isFound(u"Finalizado - STELLA"_s); }));
    host::closeWindow(host::findWindow(u"Finalizado - stella"_s));
    EXPECT_TRUE(becomesTrue([&] { return widget.closed; }));
}

TEST(Windows, ClosingAWindowThatIsGoneDoesNothing)
{
    host::WindowId id = 0;
    {
        ForeignWindow window;
        id = window.id();
    }
    host::closeWindow(id);
    EXPECT_FALSE(isFound(u"no such window"_s));
}

TEST(Windows, AScreenWithAWindowManagerIsKnown)
{
    EXPECT_FALSE(host::isWithoutManager());
}

} // namespace
