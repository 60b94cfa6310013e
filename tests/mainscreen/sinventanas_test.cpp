// The keyboard of the main screen where no window manager hands it on.

#include "lanzamientotest.h"

#include "tests/support/devices.h"

#include "host/x11.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// The window that an emulator opens: of another program, with the keyboard until it goes.
class VentanaDelJuego {
public:
    VentanaDelJuego()
        : m_conexion(xcb_connect(nullptr, nullptr))
    {
        const xcb_window_t ventana = xcb_generate_id(m_conexion);
        const xcb_screen_t *pantalla = xcb_setup_roots_iterator(xcb_get_setup(m_conexion)).data;
        xcb_create_window(m_conexion, XCB_COPY_FROM_PARENT, ventana, pantalla->root, 0, 0, 100, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, pantalla->root_visual, 0, nullptr);
        xcb_map_window(m_conexion, ventana);
        xcb_set_input_focus(m_conexion, XCB_INPUT_FOCUS_NONE, ventana, XCB_CURRENT_TIME);
        std::free(xcb_get_input_focus_reply(m_conexion, xcb_get_input_focus(m_conexion), nullptr));
    }
    ~VentanaDelJuego() { xcb_disconnect(m_conexion); }
    VentanaDelJuego(const VentanaDelJuego &) = delete;
    VentanaDelJuego &operator=(const VentanaDelJuego &) = delete;

private:
    xcb_connection_t *m_conexion;
};

} // namespace

TEST_F(LanzamientoTest, WithoutAWindowManagerTheKeysReachTheListAgainAfterAGame)
{
    startAt(Zeta, 0);
    portada->activateWindow();
    ASSERT_TRUE(comes([this] { return hasFocus(*portada); }));
    duringARun([] { input(u"key Return"_s); },
        [this] {
            {
                const VentanaDelJuego ventana;
            }
            EXPECT_TRUE(comes([this] { return !portada->isActiveWindow(); }));
        });
    ASSERT_TRUE(comes([this] { return hasFocus(*portada); }));
    const int antes = list().ListIndex();
    EXPECT_TRUE(comes([&] {
        input(u"key Down"_s);
        return list().ListIndex() != antes;
    }));
}
