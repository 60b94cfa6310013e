// A window dragged by a control in it, under a window manager.
#include "tests/support/devices.h"
#include "tests/support/printing.h"

#include "forms/form.h"
#include "forms/label.h"
#include "forms/windowmove.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using forms::Form;

namespace {

class WindowMove : public testing::TestWithParam<int> {
protected:
    WindowMove()
    {
        handle.setGeometry(20, 20, 200, 30);
        handle.MouseDown = [this](const forms::Mouse &mouse) { forms::MoveWindow(handle, mouse.button); };
        probe.setGeometry(20, 200, 200, 30);
        probe.MouseDown = [this](const forms::Mouse &) { ++probed; };
    }

    void show()
    {
        window.ShowModeless(nullptr);
        ASSERT_TRUE(comes([this] { return hasFocus(window); }));
    }

    Form window { u"Moved"_s, 4500, 4500, Form::Border::None };
    forms::Label handle { &window };
    forms::Label probe { &window };
    int probed = 0;
};

INSTANTIATE_TEST_SUITE_P(LeftAndMiddle, WindowMove, testing::Values(1, 2));

} // namespace

TEST_P(WindowMove, TheWindowFollowsThePointer_WhileTheButtonIsHeld)
{
    show();
    WindowDrag drag(handle, GetParam());
    ASSERT_TRUE(drag.begins());
    drag.step(80);
    EXPECT_TRUE(drag.follows());
    drag.step(-40);
    EXPECT_TRUE(drag.follows());
    drag.release();
}

TEST_P(WindowMove, TheWindowStaysWhereItIs_OnceTheButtonIsReleased)
{
    show();
    WindowDrag drag(handle, GetParam());
    ASSERT_TRUE(drag.begins());
    drag.step(80);
    EXPECT_TRUE(drag.follows());
    const QPoint rest = standsAt(window);
    drag.release();
    drag.step(-40);
    // The press on the probe comes behind the pointer's way; when it is there, that has been.
    EXPECT_TRUE(comes([&] {
        input(at(probe) + u" click 1"_s);
        return probed > 0;
    }));
    EXPECT_EQ(standsAt(window), rest);
    EXPECT_TRUE(comes([&] { return window.pos() == rest; }));
}
