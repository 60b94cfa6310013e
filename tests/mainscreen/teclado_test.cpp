// The keys of the main screen that no control listens for: what one held down does, and which of them a text
// that is open leaves.

#include "lanzamientotest.h"

#include "tests/support/browser.h"

#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QStringList Buttons { u"Boton5b"_s, u"Boton6b"_s, u"BotonC2"_s, u"BotonD2"_s, u"Boton1b"_s,
    u"Boton2b"_s, u"Boton3b"_s, u"Boton4b"_s, u"JugarB1"_s, u"E1"_s, u"D1"_s, u"FlechaE2"_s, u"Flecha2"_s };

class TecladoTest : public LanzamientoTest {
protected:
    // A key as the keyboard sends it on while it is held.
    void goOnHolding(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        for (int i = 0; i < 3; ++i)
            QTest::simulateEvent(portada->focusWidget(), true, key, modifiers, {}, true);
    }
    QStringList pressed()
    {
        QStringList names;
        for (const QString &name : Buttons) {
            if (control<forms::PictureButton>(name).ShowsPressed())
                names << name;
        }
        return names;
    }
    void openAText()
    {
        files.write(u"bin/readme.txt"_s, "text");
        click(control(u"BotonC2"_s));
        ASSERT_TRUE(portada->Editor->isVisible());
        ASSERT_EQ(focused(), u"Editor"_s);
    }
    QStringList wayOfTab(Qt::KeyboardModifiers modifiers = {})
    {
        QStringList way;
        while (!way.contains(focused()) && way.size() < 60) {
            way << focused();
            QTest::keyClick(portada->windowHandle(), Qt::Key_Tab, modifiers);
        }
        return way;
    }
};

} // namespace

TEST_F(TecladoTest, AcceleratorHeldDownFiresOnce)
{
    startAt(Zeta, 0);
    bool ran = false;
    duringARun([this] { strike(*portada, Qt::Key_F9); },
        [&] {
            ran = true;
            goOnHolding(Qt::Key_F9);
            EXPECT_THAT(pressed(), ElementsAre());
        });
    EXPECT_TRUE(ran);
    EXPECT_EQ(runs(), 1);

    goOnHolding(Qt::Key_F1);
    goOnHolding(Qt::Key_E, Qt::ControlModifier);
    EXPECT_THAT(pressed(), ElementsAre());
}

TEST_F(TecladoTest, KeyOfALinkHeldDownOpensItOnce)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    strike(*portada, Qt::Key_1, Qt::ControlModifier);
    goOnHolding(Qt::Key_1, Qt::ControlModifier);
    EXPECT_THAT(browser.opened, ElementsAre(u"http://a.example/"_s));
}

TEST_F(TecladoTest, OpenTextLeavesOnlyItsOwnAccelerators)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    M->Cat_WEB2(0, 1) = u"WEB2=http://b.example/"_s;
    openAText();
    for (const Qt::Key key :
        { Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9 })
        strike(*portada, key);
    strike(*portada, Qt::Key_F1, Qt::ShiftModifier);
    for (const Qt::Key key : { Qt::Key_E, Qt::Key_T, Qt::Key_Q, Qt::Key_0, Qt::Key_1, Qt::Key_3 })
        strike(*portada, key, Qt::ControlModifier);
    strike(*portada, Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(pressed(), ElementsAre());
    EXPECT_EQ(M->ZoomActual, 2);
    EXPECT_THAT(browser.opened, ElementsAre());

    strike(*portada, Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([this] { return !portada->Editor->isVisible(); }));
    int released = 0;
    for (const QString &name : { u"Boton1b"_s, u"Boton2b"_s, u"E1"_s })
        control<forms::PictureButton>(name).Release = [&] { ++released; };
    strike(*portada, Qt::Key_F5);
    strike(*portada, Qt::Key_F6);
    strike(*portada, Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([&] { return released == 3; }));
    strike(*portada, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(M->ZoomActual, 3);
    strike(*portada, Qt::Key_1, Qt::ControlModifier);
    strike(*portada, Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(browser.opened, ElementsAre(u"http://a.example/"_s, u"http://b.example/"_s));
}

TEST_F(TecladoTest, TabStaysWithTheOpenText)
{
    startAt(Zeta, 0);
    const QStringList way = wayOfTab();
    openAText();
    EXPECT_THAT(wayOfTab(), ElementsAre(u"Editor"_s, u"Edit2"_s, u"BlocDeNotas2"_s, u"FlechaE2"_s));
    EXPECT_THAT(
        wayOfTab(Qt::ShiftModifier), ElementsAre(u"Editor"_s, u"FlechaE2"_s, u"BlocDeNotas2"_s, u"Edit2"_s));
    click(control(u"FlechaE2"_s));
    EXPECT_EQ(focused(), u"Lista1"_s);
    EXPECT_EQ(wayOfTab(), way);
    EXPECT_EQ(way.size(), 21);
}

TEST_F(TecladoTest, EndOfALaunchLeavesTheKeyboardToTheOpenText)
{
    startAt(Zeta, 0);
    bool ran = false;
    duringARun([this] { click(control(u"JugarB1"_s)); },
        [&] {
            ran = true;
            openAText();
        });
    EXPECT_TRUE(ran);
    EXPECT_EQ(focused(), u"Editor"_s);
    click(control(u"FlechaE2"_s));
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(TecladoTest, PressOfTheArrowThatClosesATextGivesTheListTheFocus)
{
    startAt(Zeta, 0);
    openAText();
    press(control(u"FlechaE2"_s));
    EXPECT_EQ(focused(), u"Lista1"_s);
    release(control(u"FlechaE2"_s));
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(TecladoTest, PressOfThatArrowThatIsTakenBackLeavesTheKeyboardToTheText)
{
    startAt(Zeta, 0);
    openAText();
    QMenu menu;
    menu.addAction(u"entry"_s);
    forms::Form box(u"Box"_s, 1500, 1500, forms::Form::Border::FixedSingle);
    const std::vector<std::function<void()>> interruptions {
        [&] { EXPECT_TRUE(popsUp(menu, [&] { menu.exec(QPoint(300, 300)); })); },
        [&] {
            QTimer::singleShot(0, &box, [&] { box.Unload(); });
            box.ShowModal(portada.get());
        },
    };
    for (const auto &interrupt : interruptions) {
        portada->Edit2->setFocus();
        press(control(u"FlechaE2"_s));
        EXPECT_EQ(focused(), u"Lista1"_s);
        interrupt();
        release(control(u"FlechaE2"_s));
        EXPECT_TRUE(portada->Editor->isVisible());
        EXPECT_EQ(focused(), u"Editor"_s);
        portada->Lista1->setFocus();
        EXPECT_EQ(focused(), u"Editor"_s);
        strike(*portada, Qt::Key_Delete);
    }
    EXPECT_EQ(portada->Editor->Text(), u"xt"_s);
    click(control(u"FlechaE2"_s));
    EXPECT_FALSE(portada->Editor->isVisible());
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(TecladoTest, EnterInAnOpenTextPlaysNothing)
{
    startAt(Zeta, 0);
    openAText();
    strike(*portada, Qt::Key_Return);
    strike(*portada, Qt::Key_Enter);
    EXPECT_EQ(portada->Editor->Text(), u"\n\ntext"_s);
    EXPECT_EQ(runs(), 0);
}
