// The main screen under a window manager, with input from outside the process.

#include "mundotest.h"

#include "tests/support/devices.h"
#include "tests/support/witness.h"

#include <QApplication>
#include <QMenu>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Long = u"A very long name of a game that no list so narrow could ever show in full"_s;

class VentanaTest : public MundoTest {
protected:
    VentanaTest()
    {
        systemsOfCatalogue[0].emulators[0].executable = files.path(u"emu/uno"_s);
        files.writeCatalogue(systemsOfCatalogue);
        files.write(u"emu/readme.txt"_s, "Press any key.");
    }

    // The first game, which has a capture, stands selected in the list, which has the focus.
    void startWithCapture()
    {
        startAt(Zeta, 0);
        ASSERT_TRUE(comes([this] { return hasFocus(*portada); }));
        list().SetListIndex(0);
        ASSERT_EQ(M->Lista1Cambio, 0);
        ASSERT_EQ(focused(), u"Lista1"_s);
    }

    // A row is as wide as its text, wider than the list.
    QPoint row(int index)
    {
        list().doItemsLayout();
        return { 20, list().visualRect(list().model()->index(index, 0)).center().y() };
    }

    // Input is taken in its order: what came before this click has been when its selection is there.
    bool clickSelects(int index)
    {
        return comes([&] {
            input(at(*list().viewport(), row(index)) + u" click 1"_s);
            return list().ListIndex() == index;
        });
    }

    // The menu's loop runs within the press that opens it, so Escape is given from there.
    bool opensUntilEscape(QMenu &menu, const QString &words)
    {
        bool shown = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &menu, [&] {
            const QWidget *popup = QApplication::activePopupWidget();
            if (!popup || !popup->windowHandle()->isExposed())
                return;
            watch.stop();
            shown = popup == &menu;
            input(u"key Escape"_s);
        });
        watch.start(10);
        input(words);
        return comes([&] { return shown && !menu.isVisible(); });
    }

    QColor colourOnScreen(const QWidget &widget, const QPoint &point)
    {
        const QPoint place = widget.mapToGlobal(point);
        return QApplication::primaryScreen()
            ->grabWindow(0, place.x(), place.y(), 1, 1)
            .toImage()
            .pixelColor(0, 0);
    }

    // Tab until this control has the focus.
    bool tabTo(const QString &name)
    {
        for (int i = 0; i < 30 && focused() != name; ++i) {
            const QString before = focused();
            input(u"key Tab"_s);
            if (!comes([&] { return focused() != before; }))
                return false;
        }
        return focused() == name;
    }
};

class Arrastre : public VentanaTest, public testing::WithParamInterface<int> { };

INSTANTIATE_TEST_SUITE_P(LeftAndMiddle, Arrastre, testing::Values(1, 2));

} // namespace

TEST_P(Arrastre, TitleDragsTheWindowAndLeavesItStandingAfterTheRelease)
{
    startWithCapture();
    WindowDrag drag(control(u"Titulo1"_s), GetParam());
    ASSERT_TRUE(drag.begins());
    drag.step(90);
    EXPECT_TRUE(drag.follows());
    const QPoint rest = standsAt(*portada);
    drag.release();
    drag.step(-50);
    EXPECT_TRUE(clickSelects(1));
    EXPECT_EQ(standsAt(*portada), rest);
}

TEST_F(VentanaTest, RightButtonOnTheTitleDragsNothing)
{
    startWithCapture();
    const QPoint rest = standsAt(*portada);
    WindowDrag drag(control(u"Titulo1"_s), 3);
    for (int i = 0; i < 10; ++i)
        drag.step(3);
    drag.release();
    EXPECT_TRUE(clickSelects(1));
    EXPECT_EQ(standsAt(*portada), rest);
}

TEST_F(VentanaTest, OnlyTheTitleDragsTheWindow)
{
    startWithCapture();
    const QPoint rest = standsAt(*portada);
    WindowDrag drag(control(u"Graf_Imagen"_s), 1);
    for (int i = 0; i < 10; ++i)
        drag.step(3);
    drag.release();
    EXPECT_TRUE(clickSelects(1));
    EXPECT_EQ(standsAt(*portada), rest);
}

TEST_F(VentanaTest, ZoomStandsWhileTheButtonIsHeldOnTheCaptureAndTakesNoFocus)
{
    startWithCapture();
    mainscreen::Aumento &zoom = portada->Aumento;
    input(at(control(u"Graf_Imagen"_s)) + u" mousedown 1"_s);
    ASSERT_TRUE(comes([&] { return zoom.isVisible() && zoom.windowHandle()->isExposed(); }));
    EXPECT_TRUE(zoom.geometry().contains(QCursor::pos()));
    EXPECT_EQ(zoomed(), QColor(Qt::red));
    EXPECT_TRUE(comes([&] { return colourOnScreen(zoom, zoom.rect().center()) == QColor(Qt::red); }));
    EXPECT_TRUE(hasFocus(*portada));
    EXPECT_EQ(focused(), u"Lista1"_s);
    input(u"mouseup 1"_s);
    EXPECT_TRUE(comes([&] { return !zoom.isVisible(); }));
    EXPECT_TRUE(hasFocus(*portada));
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(VentanaTest, ZoomGoesWhenTheButtonIsReleasedElsewhere)
{
    startWithCapture();
    input(at(control(u"Graf_Imagen"_s)) + u" mousedown 1"_s);
    ASSERT_TRUE(comes([&] { return portada->Aumento.isVisible(); }));
    input(at(*portada, QPoint(500, 450)) + u" mouseup 1"_s);
    EXPECT_TRUE(comes([&] { return !portada->Aumento.isVisible(); }));
}

TEST_F(VentanaTest, TipComesOverALongEntryAndGoesWithThePointer)
{
    startWithCapture();
    list().AddItem(Long);
    const QWidget &tip = control(u"IMGDescripcionLarga"_s);
    ASSERT_FALSE(tip.isVisible());
    input(at(*list().viewport(), row(2)));
    ASSERT_TRUE(comes([&] { return tip.isVisible(); }));
    const QPoint corner(tip.width() - 2, tip.height() - 2);
    EXPECT_TRUE(comes([&] { return colourOnScreen(tip, corner) == QColor(255, 255, 192); }));
    input(at(control(u"Graf_TV"_s), QPoint(6, 60)));
    EXPECT_TRUE(comes([&] { return !tip.isVisible(); }));
}

TEST_F(VentanaTest, TipComesOnlyWhileNoButtonIsHeld)
{
    startWithCapture();
    list().AddItem(Long);
    QWidget &tip = control(u"IMGDescripcionLarga"_s);
    QList<Qt::MouseButtons> held;
    const Witness shown(tip, QEvent::Show, [&] { held << QGuiApplication::mouseButtons(); });
    // One by one: a pointer that is moved in the same breath overtakes the button that is let go.
    QWidget &rows = *list().viewport();
    bool pressed = false;
    bool moved = false;
    bool released = false;
    const Witness press(rows, QEvent::MouseButtonPress, [&] { pressed = true; });
    const Witness move(rows, QEvent::MouseMove, [&] { moved = moved || pressed; });
    const Witness release(rows, QEvent::MouseButtonRelease, [&] { released = true; });
    input(at(rows, row(1)) + u" mousedown 1"_s);
    ASSERT_TRUE(comes([&] { return pressed; }));
    input(at(rows, row(2)));
    ASSERT_TRUE(comes([&] { return moved; }));
    input(u"mouseup 1"_s);
    ASSERT_TRUE(comes([&] { return released; }));
    EXPECT_THAT(held, testing::IsEmpty());
    input(at(rows, row(2) + QPoint(9, 0)));
    EXPECT_TRUE(comes([&] { return tip.isVisible(); }));
    EXPECT_THAT(held, testing::ElementsAre(Qt::MouseButtons(Qt::NoButton)));
    EXPECT_EQ(list().ListIndex(), 1);
}

TEST_F(VentanaTest, ListsMenuOpensAndEscapeGivesTheListTheFocusBack)
{
    startWithCapture();
    EXPECT_TRUE(opensUntilEscape(*portada->Menu_Lista1, at(*list().viewport(), row(1)) + u" click 3"_s));
    EXPECT_TRUE(comes([&] { return hasFocus(*portada); }));
    EXPECT_EQ(focused(), u"Lista1"_s);
    EXPECT_EQ(list().ListIndex(), 0);
    EXPECT_TRUE(clickSelects(1));
}

TEST_F(VentanaTest, CapturesMenuOpensAndEscapeGivesTheListTheFocusBack)
{
    startWithCapture();
    const QString click = at(control(u"Graf_Imagen"_s)) + u" click 3"_s;
    EXPECT_TRUE(opensUntilEscape(*portada->Menu_Graf_Imagen, click));
    EXPECT_TRUE(comes([&] { return hasFocus(*portada); }));
    EXPECT_EQ(focused(), u"Lista1"_s);
    EXPECT_EQ(M->ZoomActual, 2);
    EXPECT_TRUE(clickSelects(1));
}

TEST_F(VentanaTest, TabAndSpacePressAPictureButton)
{
    startWithCapture();
    ASSERT_TRUE(tabTo(u"BotonC2"_s));
    input(u"key space"_s);
    EXPECT_TRUE(comes([&] { return control(u"Editor"_s).isVisible(); }));
    EXPECT_FALSE(control<forms::PictureButton>(u"BotonC2"_s).ShowsPressed());
    EXPECT_EQ(portada->Editor->Text(), u"Press any key."_s);
    EXPECT_EQ(focused(), u"Editor"_s);
    input(u"key ctrl+w"_s);
    EXPECT_TRUE(comes([&] { return !control(u"Editor"_s).isVisible(); }));
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(VentanaTest, SpaceHoldsAButtonThatKeepsTheFocusUntilItIsReleased)
{
    startWithCapture();
    auto &button = control<forms::PictureButton>(u"D1"_s);
    int released = 0;
    button.Release = [&] { ++released; };
    ASSERT_TRUE(tabTo(u"D1"_s));
    input(u"keydown space"_s);
    EXPECT_TRUE(comes([&] { return button.ShowsPressed(); }));
    EXPECT_EQ(released, 0);
    input(u"keyup space"_s);
    EXPECT_TRUE(comes([&] { return released == 1; }));
    EXPECT_FALSE(button.ShowsPressed());
    EXPECT_EQ(focused(), u"D1"_s);
}
