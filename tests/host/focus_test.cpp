// The keyboard and the boxes on an X11 display without a window manager.
#include "host/focus.h"

#include "host/desktopquestions.h"
#include "host/x11.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gmock/gmock.h>

#include <cstdlib>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 10000; // milliseconds

xcb_window_t focusOf(xcb_connection_t *connection)
{
    auto *reply = xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr);
    const xcb_window_t focus = reply->focus;
    std::free(reply);
    return focus;
}

// A window of another program, which takes the keyboard and leaves it to nobody at its end.
class ForeignWindow {
public:
    ForeignWindow()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_window(xcb_generate_id(m_connection))
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 100, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_map_window(m_connection, m_window);
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_NONE, m_window, XCB_CURRENT_TIME);
        EXPECT_EQ(focusOf(m_connection), m_window);
    }
    ~ForeignWindow() { xcb_disconnect(m_connection); }
    ForeignWindow(const ForeignWindow &) = delete;
    ForeignWindow &operator=(const ForeignWindow &) = delete;

    xcb_window_t id() const { return m_window; }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
};

class FocusTest : public testing::Test {
protected:
    FocusTest()
    {
        window.setGeometry(300, 250, 500, 400);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(hasKeyboard());
    }

    bool hasKeyboard()
    {
        return QTest::qWaitFor(
            [this] { return window.isActiveWindow() && focusOf(host::x11Connection()) == window.winId(); },
            LongestWait);
    }

    // Shuts the box once it is up, and says where its middle stood, counted from the window's.
    void shutWhenUp()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow())
                return;
            m_timer.stop();
            offset = box->mapToGlobal(box->rect().center()) - window.mapToGlobal(window.rect().center());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        m_timer.start(5);
    }

    // The box that this opens stands in the middle, and at its end the window has the keyboard.
    void expectBackAfter(const std::function<void()> &opensBox)
    {
        shutWhenUp();
        opensBox();
        EXPECT_TRUE(hasKeyboard());
        EXPECT_EQ(offset, QPoint(0, 0));
    }

    QWidget window;
    QPoint offset { -1000, -1000 };
    host::DesktopQuestions questions;

private:
    QTimer m_timer;
};

TEST_F(FocusTest, TheScreenIsKnownToBeWithoutAManager)
{
    EXPECT_TRUE(host::isWithoutManager());
}

TEST_F(FocusTest, ComesBackAfterAYesOrNo_WhichStandsInTheMiddle)
{
    expectBackAfter([&] { questions.askYesNo(u"T"_s, u"Move this to the trash?"_s); });
}

TEST_F(FocusTest, ComesBackAfterTheOverwriteBox)
{
    expectBackAfter([&] { questions.askYesNoCancel(u"T"_s, u"x"_s); });
}

TEST_F(FocusTest, ComesBackAfterTheBoxThatTells)
{
    expectBackAfter([&] { questions.tell(u"T"_s, u"x"_s); });
}

TEST_F(FocusTest, ComesBackAfterTheBoxOfThePassword)
{
    expectBackAfter([&] { questions.askText(u"x"_s); });
}

TEST_F(FocusTest, IsTakenOnceAnotherProgramsWindowIsGone)
{
    {
        const ForeignWindow game;
    }
    host::takeFreeFocus(window);
    EXPECT_TRUE(hasKeyboard());
}

TEST_F(FocusTest, IsNotTakenFromAnotherProgram)
{
    const ForeignWindow other;
    host::takeFreeFocus(window);
    QTest::qWait(1200);
    EXPECT_EQ(focusOf(host::x11Connection()), other.id());
}

TEST_F(FocusTest, GoesToTheBoxThatBlocksTheWindow)
{
    QDialog box(&window);
    box.setModal(true);
    box.show();
    box.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    {
        const ForeignWindow game;
    }
    host::takeFreeFocus(window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return focusOf(host::x11Connection()) == box.winId(); }, LongestWait));
}

} // namespace
