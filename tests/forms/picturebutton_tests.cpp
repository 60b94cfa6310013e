#include "drive.h"

#include "forms/form.h"
#include "forms/picturebutton.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using forms::PictureButton;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PicturePairs : public testing::Test {
protected:
    PicturePairs()
    {
        pair.SetPlace({ 150, 150, 450, 300 }, 420);
        logInto(pair);
        form.KeyEnter = [this] { log.push_back("enter"); };
        neighbour.setGeometry(10, 100, 50, 20);
        neighbour.setFocusPolicy(Qt::StrongFocus);
    }

    void logInto(PictureButton &button)
    {
        button.Press = [&] { log.push_back(button.ShowsPressed() ? "press" : "press at rest"); };
        button.Release = [&] { log.push_back(button.ShowsPressed() ? "release pressed" : "release"); };
        button.Cancel = [&] { log.push_back(button.ShowsPressed() ? "cancel pressed" : "cancel"); };
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    PictureButton pair { u"Rest2"_s, u"Rest1"_s, &form };
    QWidget neighbour { &form };
    drive::Log log;
};

TEST_F(PicturePairs, AnyButton_PressesAndReleases)
{
    drive::show(form);
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        log.clear();
        drive::press(pair, button);
        EXPECT_THAT(log, ElementsAre("press"));
        drive::release(pair, button);
        EXPECT_THAT(log, ElementsAre("press", "release"));
    }
}

TEST_F(PicturePairs, ThePictureChanges_WhilePressedOnly)
{
    drive::show(form);
    EXPECT_EQ(drive::colourAt(pair, { 3, 5 }), QColor(Qt::red));
    drive::press(pair);
    EXPECT_EQ(drive::colourAt(pair, { 3, 5 }), QColor(Qt::blue));
    drive::release(pair);
    EXPECT_EQ(drive::colourAt(pair, { 3, 5 }), QColor(Qt::red));
}

TEST_F(PicturePairs, OtherDrawings_ShowUnderTheNamesOfThePair)
{
    pair.SetArtwork(u"Rest1"_s, u"Rest2"_s);
    drive::show(form);
    EXPECT_EQ(pair.objectName(), u"Rest2"_s);
    EXPECT_EQ(drive::colourAt(pair, { 3, 5 }), QColor(Qt::blue));
    drive::press(pair);
    EXPECT_EQ(drive::colourAt(pair, { 3, 5 }), QColor(Qt::red));
}

TEST_F(PicturePairs, EachPictureShows_InItsOwnWidth)
{
    drive::show(form);
    EXPECT_EQ(pair.geometry(), QRect(10, 10, 30, 20));
    drive::press(pair);
    EXPECT_EQ(pair.geometry(), QRect(10, 10, 28, 20));
    drive::release(pair);
    EXPECT_EQ(pair.geometry(), QRect(10, 10, 30, 20));
}

TEST_F(PicturePairs, APairThatCodeMoves_KeepsItsNewPlace)
{
    drive::show(form);
    forms::move(pair, { 300, 300, 600, 300 });
    drive::click(pair);
    EXPECT_EQ(pair.geometry(), QRect(20, 20, 40, 20));
    drive::press(pair);
    pair.SetPlace({ 150, 150, 450, 300 }, 420);
    EXPECT_EQ(pair.geometry(), QRect(10, 10, 28, 20));
    drive::release(pair);
    EXPECT_EQ(pair.geometry(), QRect(10, 10, 30, 20));
}

TEST_F(PicturePairs, ThePressActionWhileTheMouseHolds_PressesNoSecondTime)
{
    drive::show(form);
    drive::press(pair);
    pair.click();
    drive::release(pair);
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(PicturePairs, TheRelease_ActsWhereverThePointerStands)
{
    drive::show(form);
    drive::press(pair);
    drive::moveTo(form, { 150, 150 });
    EXPECT_TRUE(pair.ShowsPressed());
    drive::release(form, Qt::LeftButton, { 150, 150 });
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(PicturePairs, TheSecondPressOfADoubleClick_IsAPress)
{
    drive::show(form);
    drive::doubleClick(pair);
    EXPECT_THAT(log, ElementsAre("press", "release", "press", "release"));
}

TEST_F(PicturePairs, ASecondButtonWhileOneHolds_HasNoEffect)
{
    drive::show(form);
    drive::press(pair, Qt::LeftButton);
    drive::press(pair, Qt::RightButton);
    drive::release(pair, Qt::RightButton);
    EXPECT_TRUE(pair.ShowsPressed());
    EXPECT_THAT(log, ElementsAre("press"));
    drive::release(pair, Qt::LeftButton);
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(PicturePairs, TheFirstButtonReleasedBeforeTheSecond_ActsOnce)
{
    drive::show(form);
    drive::press(pair, Qt::LeftButton);
    drive::press(pair, Qt::RightButton);
    drive::release(pair, Qt::LeftButton);
    EXPECT_THAT(log, ElementsAre("press", "release"));
    drive::release(pair, Qt::RightButton);
    EXPECT_THAT(log, ElementsAre("press", "release"));
    EXPECT_FALSE(pair.ShowsPressed());
}

TEST_F(PicturePairs, APressAfterALostRelease_IsAPress)
{
    drive::show(form);
    const auto send = [this](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, QPointF(5, 5), pair.mapToGlobal(QPointF(5, 5)), button, held, Qt::NoModifier);
        QApplication::sendEvent(&pair, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    // No release comes; the next press tells that no other button is held.
    send(QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    send(QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton);
    EXPECT_FALSE(pair.ShowsPressed());
    EXPECT_THAT(log, ElementsAre("press", "press", "release"));
}

TEST_F(PicturePairs, AClick_LeavesTheFocusAlone)
{
    drive::show(form);
    neighbour.setFocus();
    drive::click(pair);
    EXPECT_TRUE(neighbour.hasFocus());
}

TEST_F(PicturePairs, Tab_BringsTheFocus)
{
    drive::show(form);
    neighbour.setFocus();
    drive::key(form, Qt::Key_Tab);
    EXPECT_TRUE(pair.hasFocus());
}

TEST_F(PicturePairs, DotsFrameTheOneThatHasTheFocus_NotOneWhoseFocusAnotherTakes)
{
    drive::show(form);
    const auto framed = [this] {
        const QImage picture = pair.grab().toImage();
        for (int x = 0; x < 6; ++x) { // over the red half
            if (picture.pixelColor(x, 0) == QColor(Qt::white))
                return true;
        }
        return false;
    };
    neighbour.setFocus();
    EXPECT_FALSE(framed());
    pair.setFocus();
    EXPECT_TRUE(framed());
    pair.setFocusProxy(&neighbour);
    neighbour.setFocus();
    ASSERT_TRUE(pair.hasFocus());
    EXPECT_FALSE(framed());
}

TEST_F(PicturePairs, Space_IsPressAndRelease)
{
    drive::show(form);
    pair.setFocus();
    drive::keyDown(form, Qt::Key_Space);
    EXPECT_THAT(log, ElementsAre("press"));
    EXPECT_TRUE(pair.ShowsPressed());
    drive::repeatedKey(pair, Qt::Key_Space);
    EXPECT_THAT(log, ElementsAre("press"));
    drive::keyUp(form, Qt::Key_Space);
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(PicturePairs, SpaceWhosePressMovesTheFocus_StillActs)
{
    drive::show(form);
    pair.setFocus();
    pair.Press = [this] {
        log.push_back("press");
        neighbour.setFocus();
    };
    drive::key(form, Qt::Key_Space);
    EXPECT_THAT(log, ElementsAre("press", "release"));
    EXPECT_FALSE(pair.ShowsPressed());
}

TEST_F(PicturePairs, TheFocusLostWhileSpaceIsHeld_TakesThePressBack)
{
    drive::show(form);
    pair.setFocus();
    drive::keyDown(form, Qt::Key_Space);
    neighbour.setFocus();
    EXPECT_FALSE(pair.ShowsPressed());
    drive::keyUp(form, Qt::Key_Space);
    EXPECT_THAT(log, ElementsAre("press", "cancel"));
}

TEST_F(PicturePairs, Enter_IsLeftToTheForm)
{
    drive::show(form);
    pair.setFocus();
    drive::key(form, Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("enter"));
}

TEST_F(PicturePairs, ADisabledPair_TakesNoPress)
{
    drive::show(form);
    pair.setEnabled(false);
    drive::click(pair);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PicturePairs, DisabledOrHiddenWhilePressed_ItGoesBackToRestWithoutActing)
{
    drive::show(form);
    drive::press(pair);
    pair.setEnabled(false);
    EXPECT_FALSE(pair.ShowsPressed());
    drive::release(pair);
    pair.setEnabled(true);
    drive::press(pair);
    pair.hide();
    EXPECT_FALSE(pair.ShowsPressed());
    drive::release(pair);
    EXPECT_THAT(log, ElementsAre("press", "cancel", "press", "cancel"));
}

TEST_F(PicturePairs, AModalWindowUnderTheHeldButton_TakesThePressBack)
{
    drive::show(form);
    forms::Form box(u"Caja"_s, 1500, 1500, forms::Form::Border::FixedSingle);
    for (const bool releasedThere : { true, false }) {
        log.clear();
        drive::press(pair);
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_FALSE(pair.ShowsPressed());
            if (releasedThere)
                drive::release(pair);
            box.Unload();
        });
        box.ShowModal(&form);
        EXPECT_FALSE(pair.ShowsPressed());
        drive::release(pair);
        EXPECT_THAT(log, ElementsAre("press", "cancel"));
        drive::click(pair);
        EXPECT_THAT(log, ElementsAre("press", "cancel", "press", "release"));
    }
}

TEST_F(PicturePairs, AMenuUnderTheHeldButton_TakesThePressBack)
{
    drive::show(form);
    QMenu menu;
    menu.addAction(u"entry"_s);
    drive::press(pair);
    menu.popup(QPoint(300, 300));
    EXPECT_FALSE(pair.ShowsPressed());
    drive::release(menu);
    menu.close();
    EXPECT_THAT(log, ElementsAre("press", "cancel"));
    drive::click(pair);
    EXPECT_THAT(log, ElementsAre("press", "cancel", "press", "release"));
}

TEST_F(PicturePairs, AnAcceleratorWhoseFormAModalWindowShutsOff_DoesNotAct)
{
    drive::show(form);
    forms::Form box(u"Caja"_s, 1500, 1500, forms::Form::Border::FixedSingle);
    QAccessible::queryAccessibleInterface(&pair)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QTimer::singleShot(200, qApp, [&] { box.Unload(); });
    box.ShowModal(&form);
    EXPECT_FALSE(pair.ShowsPressed());
    EXPECT_THAT(log, ElementsAre("press", "cancel"));
}

TEST_F(PicturePairs, ThePressActionOfAssistivePrograms_IsPressAndRelease)
{
    drive::show(form);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&pair);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(log, ElementsAre("press"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return log.size() > 1; }));
    EXPECT_THAT(log, ElementsAre("press", "release"));
}

TEST_F(PicturePairs, APairDestroyedInItsHandler_IsNotTouchedAnyMore)
{
    drive::show(form);
    for (const bool onPress : { true, false }) {
        for (const bool byKey : { true, false }) {
            QPointer<PictureButton> victim(new PictureButton(u"Rest2"_s, u"Rest1"_s, &form));
            victim->SetPlace({ 1500, 1500, 300, 300 });
            victim->show();
            victim->setFocus();
            (onPress ? victim->Press : victim->Release) = [&victim] { delete victim; };
            if (byKey)
                drive::key(form, Qt::Key_Space);
            else
                drive::click(form, Qt::LeftButton, { 110, 110 });
            EXPECT_TRUE(victim.isNull());
        }
    }
}

TEST_F(PicturePairs, APairDestroyedByThePressAction_IsNotTouchedAnyMore)
{
    drive::show(form);
    QPointer<PictureButton> victim(new PictureButton(u"Rest2"_s, u"Rest1"_s, &form));
    victim->Release = [&victim] { delete victim; };
    victim->click();
    EXPECT_TRUE(victim.isNull());
}

TEST_F(PicturePairs, TheFormFindsAPair_UnderBothNames)
{
    EXPECT_EQ(form.Control(u"Rest2"_s), &pair);
    EXPECT_EQ(form.Control(u"Rest1"_s), &pair);
    EXPECT_EQ(form.Control(u"Rest3"_s), nullptr);
}

} // namespace
