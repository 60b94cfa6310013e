// A key held down on a real keyboard, with the window system and this program on one processor: there the two
// halves of a repeat come apart.
#include "drive.h"

#include "tests/support/devices.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"
#include "forms/textbox.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using forms::Form;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Counts the presses that come to a window, those of a shortcut too.
class Presses final : public QObject {
public:
    explicit Presses(QWidget &window) { window.windowHandle()->installEventFilter(this); }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ShortcutOverride)
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

class HeldKeys : public testing::Test {
protected:
    HeldKeys()
    {
        pair.SetPlace({ 150, 150, 450, 300 });
        pair.Press = [this] { log.push_back("press"); };
        pair.Release = [this] { log.push_back("release"); };
        list.setGeometry(10, 60, 150, 120);
        list.AddItem(u"Asteroids"_s);
        list.KeyDown = [this](int code) { log.push_back("list " + std::to_string(code)); };
        text.setGeometry(10, 200, 150, 60);
        image.setGeometry(200, 60, 80, 80);
        image.setFocusPolicy(Qt::TabFocus);
        image.MouseDown = [this](const forms::Mouse &) { log.push_back("image down"); };
        image.MouseUp = [this](const forms::Mouse &) { log.push_back("image up"); };
        image.Click = [this] { log.push_back("image click"); };
        owner.KeyEnter = [this] { log.push_back("enter"); };
    }
    ~HeldKeys() override
    {
        for (const QString &key : { u"Return"_s, u"space"_s, u"F9"_s, u"x"_s })
            input(u"keyup "_s + key);
    }

    // In the middle of the screen, so that the window manager doesn't look for a place.
    void show(QWidget &focused)
    {
        owner.ShowModeless(nullptr);
        focused.setFocus();
        ASSERT_TRUE(comes([&] { return hasFocus(owner) && focused.hasFocus(); }));
    }

    // Until the window has got that many presses of it.
    void hold(const QString &key)
    {
        const Presses presses(owner);
        input(u"keydown "_s + key);
        EXPECT_TRUE(comes([&] { return presses.count() > Enough; })) << presses.count();
        input(u"keyup "_s + key);
    }

    static constexpr int Enough = 10;
    Form owner { u"Owner"_s, 4500, 4500, Form::Border::None };
    forms::PictureButton pair { u"Rest2"_s, u"Rest1"_s, &owner };
    forms::ListBox list { &owner };
    forms::TextArea text { &owner };
    forms::Image image { &owner };
    drive::Log log;
};

TEST_F(HeldKeys, Enter_RaisesKeyDownOnce)
{
    show(list);
    hold(u"Return"_s);
    EXPECT_THAT(log, ElementsAre("list 13"));
    input(u"key Return"_s);
    EXPECT_TRUE(comes([this] { return log.size() == 2; }));
}

TEST_F(HeldKeys, EnterAgain_AfterAnotherWindowGotItsRelease_IsAPress)
{
    show(list);
    input(u"keydown Return"_s);
    ASSERT_TRUE(comes([this] { return log.size() == 1; }));
    QTest::qSleep(1500); // the repeats of that time come in one go
    QCoreApplication::processEvents();
    owner.hide();
    ASSERT_TRUE(comes([] { return !QGuiApplication::focusWindow(); }));
    input(u"keyup Return"_s);
    QTest::qWait(100);
    show(list);
    input(u"key Return"_s);
    EXPECT_TRUE(comes([this] { return log.size() == 2; }));
}

TEST_F(HeldKeys, EnterOnTheForm_IsRaisedOnce)
{
    show(pair);
    hold(u"Return"_s);
    EXPECT_THAT(log, ElementsAre("enter"));
}

TEST_F(HeldKeys, AnAccelerator_ActsOnce)
{
    pair.setShortcut(Qt::Key_F9);
    show(list);
    hold(u"F9"_s);
    EXPECT_TRUE(comes([this] { return log.size() >= 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(HeldKeys, SpaceOnAPair_ActsOnce)
{
    show(pair);
    hold(u"space"_s);
    EXPECT_TRUE(comes([this] { return log.size() >= 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(HeldKeys, SpaceOnAPair_ActsNotBeforeItsRelease)
{
    show(pair);
    const Presses presses(owner);
    input(u"keydown space"_s);
    EXPECT_TRUE(comes([&] { return presses.count() > Enough; })) << presses.count();
    EXPECT_THAT(log, ElementsAre("press"));
    EXPECT_TRUE(pair.ShowsPressed());
    input(u"keyup space"_s);
    EXPECT_TRUE(comes([this] { return log.size() >= 2; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(HeldKeys, SpaceOnAnImage_HoldsItUntilItsRelease)
{
    show(image);
    const Presses presses(owner);
    input(u"keydown space"_s);
    EXPECT_TRUE(comes([&] { return presses.count() > Enough; })) << presses.count();
    EXPECT_THAT(log, ElementsAre("image down"));
    input(u"keyup space"_s);
    EXPECT_TRUE(comes([this] { return log.size() >= 3; }));
    EXPECT_THAT(log, ElementsAre("image down", "image up", "image click"));
}

TEST_F(HeldKeys, AKeyPressedBehindARelease_ComesBehindItToo)
{
    show(image);
    input(u"key space key Return"_s);
    EXPECT_TRUE(comes([this] { return log.size() >= 4; }));
    EXPECT_THAT(log, ElementsAre("image down", "image up", "image click", "enter"));
}

TEST_F(HeldKeys, ALetter_IsTypedAgainAndAgain)
{
    show(text);
    hold(u"x"_s);
    EXPECT_GE(text.Text().size(), Enough);
}

TEST_F(HeldKeys, EnterThatClosesABox_DoesNotGoOnIntoTheListBelow)
{
    show(list);
    const Presses presses(owner);
    Form box(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    forms::TextBox entry(&box);
    entry.KeyDown = [&](int) { box.Unload(); };
    QTimer::singleShot(0, qApp, [&] {
        entry.setFocus();
        EXPECT_TRUE(comes([&] { return hasFocus(box) && entry.hasFocus(); }));
        input(u"keydown Return"_s);
        EXPECT_TRUE(comes([&] { return !box.isVisible(); }));
        box.Unload();
    });
    box.ShowModal(&owner);
    EXPECT_TRUE(comes([&] { return hasFocus(owner) && presses.count() > Enough; })) << presses.count();
    EXPECT_TRUE(list.hasFocus());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(HeldKeys, EnterThatOpensAQuestionOfTheDesktop_DoesNotAnswerIt)
{
    QDialog question(&owner);
    QVBoxLayout layout(&question);
    QPushButton yes(u"Yes"_s);
    layout.addWidget(&yes);
    QObject::connect(&yes, &QPushButton::clicked, &question, &QDialog::accept);
    list.KeyDown = [&](int) { question.open(); };
    show(list);
    input(u"keydown Return"_s);
    ASSERT_TRUE(comes([&] { return question.isVisible() && hasFocus(question); }));
    const Presses presses(question);
    EXPECT_TRUE(comes([&] { return presses.count() > Enough; })) << presses.count();
    EXPECT_TRUE(question.isVisible());
    input(u"keyup Return"_s);
    input(u"key Return"_s);
    EXPECT_TRUE(comes([&] { return !question.isVisible(); }));
}

} // namespace
