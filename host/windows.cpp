#include "host/windows.h"

#include "host/letters.h"
#include "host/x11.h"

#include <xcb/xcb_ewmh.h>

#include <memory>
#include <vector>

namespace host {

namespace {

// The window manager's vocabulary on a connection, which takes some hundred questions to learn.
class WindowManager {
public:
    explicit WindowManager(xcb_connection_t *connection)
    {
        m_ready = xcb_ewmh_init_atoms_replies(&m_ewmh, xcb_ewmh_init_atoms(connection, &m_ewmh), nullptr);
        if (!m_ready)
            xcb_ewmh_connection_wipe(&m_ewmh);
    }
    ~WindowManager()
    {
        if (m_ready)
            xcb_ewmh_connection_wipe(&m_ewmh);
    }
    WindowManager(const WindowManager &) = delete;
    WindowManager &operator=(const WindowManager &) = delete;

    bool isReady() const { return m_ready; }
    bool isOn(xcb_connection_t *connection) const { return m_ewmh.connection == connection; }
    std::vector<xcb_window_t> windows();
    std::vector<QString> titles(const std::vector<xcb_window_t> &windows);
    void close(xcb_window_t window);

private:
    QString newTitle(xcb_get_property_cookie_t cookie);
    QString oldTitle(xcb_get_property_cookie_t cookie);

    xcb_ewmh_connection_t m_ewmh {};
    bool m_ready = false;
};

std::vector<xcb_window_t> WindowManager::windows()
{
    std::vector<xcb_window_t> result;
    for (int screen = 0; screen < m_ewmh.nb_screens; ++screen) {
        xcb_ewmh_get_windows_reply_t list;
        const auto cookie = xcb_ewmh_get_client_list(&m_ewmh, screen);
        if (!xcb_ewmh_get_client_list_reply(&m_ewmh, cookie, &list, nullptr))
            continue;
        result.insert(result.end(), list.windows, list.windows + list.windows_len);
        xcb_ewmh_get_windows_reply_wipe(&list);
    }
    return result;
}

QString WindowManager::newTitle(xcb_get_property_cookie_t cookie)
{
    xcb_ewmh_get_utf8_strings_reply_t text;
    if (!xcb_ewmh_get_wm_name_reply(&m_ewmh, cookie, &text, nullptr))
        return {};
    const QString title = QString::fromUtf8(text.strings, text.strings_len);
    xcb_ewmh_get_utf8_strings_reply_wipe(&text);
    return title;
}

QString WindowManager::oldTitle(xcb_get_property_cookie_t cookie)
{
    xcb_get_property_reply_t *reply = xcb_get_property_reply(m_ewmh.connection, cookie, nullptr);
    if (!reply)
        return {};
    const char *bytes = static_cast<const char *>(xcb_get_property_value(reply));
    const int length = xcb_get_property_value_length(reply);
    const QString title = reply->type == m_ewmh.UTF8_STRING ? QString::fromUtf8(bytes, length)
                                                            : QString::fromLatin1(bytes, length);
    free(reply);
    return title;
}

// All windows are asked before the first answer is awaited. The old property counts where the new one is
// missing.
std::vector<QString> WindowManager::titles(const std::vector<xcb_window_t> &windows)
{
    constexpr uint32_t longest = 4096; // in units of four bytes
    std::vector<xcb_get_property_cookie_t> newCookies;
    std::vector<xcb_get_property_cookie_t> oldCookies;
    for (const xcb_window_t window : windows) {
        newCookies.push_back(xcb_ewmh_get_wm_name(&m_ewmh, window));
        oldCookies.push_back(xcb_get_property(
            m_ewmh.connection, 0, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, longest));
    }
    std::vector<QString> result;
    for (size_t i = 0; i < windows.size(); ++i) {
        const QString title = newTitle(newCookies[i]);
        const QString old = oldTitle(oldCookies[i]);
        result.push_back(title.isEmpty() ? old : title);
    }
    return result;
}

void WindowManager::close(xcb_window_t window)
{
    for (int screen = 0; screen < m_ewmh.nb_screens; ++screen)
        xcb_ewmh_request_close_window(
            &m_ewmh, screen, window, XCB_CURRENT_TIME, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
    xcb_flush(m_ewmh.connection);
}

// On the toolkit's own connection, and kept while that stands; null where there is no X11.
WindowManager *windowManager()
{
    static std::unique_ptr<WindowManager> kept;
    xcb_connection_t *connection = x11Connection();
    if (!connection)
        return nullptr;
    if (!kept || !kept->isReady() || !kept->isOn(connection))
        kept = std::make_unique<WindowManager>(connection);
    return kept->isReady() ? kept.get() : nullptr;
}

} // namespace

WindowId findWindow(const QString &title)
{
    WindowManager *manager = windowManager();
    if (!manager)
        return 0;
    const std::vector<xcb_window_t> windows = manager->windows();
    const std::vector<QString> titles = manager->titles(windows);
    for (size_t i = 0; i < windows.size(); ++i) {
        if (sameName(titles[i], title))
            return windows[i];
    }
    return 0;
}

void closeWindowTitled(const QString &title)
{
    const WindowId window = findWindow(title);
    if (window != 0)
        closeWindow(window);
}

void closeWindow(WindowId window)
{
    if (WindowManager *manager = windowManager())
        manager->close(window);
}

} // namespace host
