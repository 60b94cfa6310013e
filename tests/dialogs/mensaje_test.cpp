// The answers of the message box, and the ways in which it closes and doesn't.

#include "mensajetest.h"

#include "forms/textbox.h"

#include <QApplication>
#include <QPointer>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

const QString Accept = u"Aceptar2"_s;
const QString Arrow = u"Flecha2"_s;

std::function<void(forms::Form &)> clicking(const QString &button, Qt::MouseButton mouse = Qt::LeftButton)
{
    return [button, mouse](forms::Form &form) { click(buttonOf(form, button), mouse); };
}

} // namespace

TEST_F(MensajeTest, OtherTypesShowNothingAndChangeNothing)
{
    M.Respuesta_Caja = u"antes"_s;
    M.Respuesta_Opcion = 7;
    M.RespuestaMensaje = u"mensaje"_s;
    for (const int type : { 0, 5, -1 }) {
        box.Mensaje(type, u"m"_s, u"t"_s, u"1"_s, u"2"_s, u"e"_s);
        EXPECT_EQ(M.Respuesta_Caja, u"antes"_s);
        EXPECT_EQ(M.Respuesta_Opcion, 7);
        EXPECT_EQ(M.RespuestaMensaje, u"mensaje"_s);
    }
}

TEST_F(MensajeTest, InputAcceptedGivesTheTypedText)
{
    M.Respuesta_Opcion = 1;
    M.RespuestaMensaje = u"antes"_s;
    show(1, [](forms::Form &form) {
        type(form, u"Mi juego"_s); // replaces what stood there: it is all selected
        click(buttonOf(form, Accept));
    });
    EXPECT_EQ(M.Respuesta_Caja, u"Mi juego"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 0);
    EXPECT_EQ(M.RespuestaMensaje, QString());
}

TEST_F(MensajeTest, InputAcceptedUntouchedGivesTheTextPutIn)
{
    show(1, clicking(Accept));
    EXPECT_EQ(M.Respuesta_Caja, u"entrada"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(MensajeTest, InputOfAMillionLettersAcceptedUntouchedIsWhole_AndSoonThere)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr qint64 Bound = 5000; // milliseconds
#else
    constexpr qint64 Bound = 1000;
#endif
    const QString endless = u"אב "_s.repeated(333'333);
    const std::clock_t before = std::clock();
    atModal(u"Caja"_s, [](forms::Form &form) {
        form.grab();
        click(buttonOf(form, u"Aceptar2"_s));
    });
    box.Mensaje(1, endless, endless, endless, endless, endless);
    EXPECT_LT((std::clock() - before) * 1000 / CLOCKS_PER_SEC, Bound);
    EXPECT_TRUE(M.Respuesta_Caja == endless);
}

TEST_F(MensajeTest, InputAcceptedEmptyEqualsTheEmptyAnswer)
{
    M.Respuesta_Caja = u"antes"_s;
    show(1, [](forms::Form &form) {
        strike(form, Qt::Key_Backspace);
        click(buttonOf(form, Accept));
    });
    EXPECT_EQ(M.Respuesta_Caja, M.RespuestaMensaje);
    EXPECT_EQ(M.Respuesta_Caja, QString());
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(MensajeTest, InputLeftByTheArrowKeepsTheAnswerOfTheCallBefore)
{
    M.Respuesta_Caja = u"antes"_s;
    M.RespuestaMensaje = u"antes"_s;
    show(1, [](forms::Form &form) {
        type(form, u"otra"_s);
        click(buttonOf(form, Arrow));
    });
    EXPECT_EQ(M.Respuesta_Caja, u"antes"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 1);
    EXPECT_EQ(M.RespuestaMensaje, QString());
}

TEST_F(MensajeTest, EnterInTheInputAccepts)
{
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
        M.Respuesta_Opcion = 1;
        show(1, [key](forms::Form &form) {
            type(form, u"tecla"_s);
            strike(form, key);
        });
        EXPECT_EQ(M.Respuesta_Caja, u"tecla"_s);
        EXPECT_EQ(M.Respuesta_Opcion, 0);
        M.Respuesta_Caja.clear();
    }
}

TEST_F(MensajeTest, OtherKeysGoIntoTheInput)
{
    show(1, [](forms::Form &form) {
        const auto &input = controlOf<forms::TextBox>(form, u"Casilla"_s);
        strike(form, Qt::Key_End);
        type(form, u" 2"_s);
        EXPECT_EQ(input.Text(), u"entrada 2"_s);
        strike(form, Qt::Key_Home);
        strike(form, Qt::Key_Delete);
        EXPECT_EQ(input.Text(), u"ntrada 2"_s);
        EXPECT_TRUE(form.isVisible());
        click(buttonOf(form, Arrow));
    });
}

TEST_F(MensajeTest, InputHasTheFocusAndIsSelectedWhole)
{
    show(1, [](forms::Form &form) {
        const auto &input = controlOf<forms::TextBox>(form, u"Casilla"_s);
        EXPECT_TRUE(input.hasFocus());
        EXPECT_EQ(input.selectedText(), u"entrada"_s);
        click(buttonOf(form, Arrow));
    });
}

TEST_F(MensajeTest, ClickBackIntoTheInputSelectsItWhole)
{
    show(1, [](forms::Form &form) {
        auto &input = controlOf<forms::TextBox>(form, u"Casilla"_s);
        strike(form, Qt::Key_End);
        strike(form, Qt::Key_Tab);
        ASSERT_FALSE(input.hasFocus());
        ASSERT_EQ(input.selectedText(), QString());
        click(input);
        EXPECT_TRUE(input.hasFocus());
        EXPECT_TRUE(waitUntil([&input] { return input.selectedText() == u"entrada"_s; }));
        type(form, u"x"_s);
        EXPECT_EQ(input.Text(), u"x"_s);
        click(buttonOf(form, Arrow));
    });
}

TEST_F(MensajeTest, QuestionAcceptedIsYesAndEmptiesTheAnswer)
{
    M.Respuesta_Caja = u"antes"_s;
    M.Respuesta_Opcion = 1;
    M.RespuestaMensaje = u"antes"_s;
    show(2, clicking(Accept));
    EXPECT_EQ(M.Respuesta_Opcion, 0);
    EXPECT_EQ(M.Respuesta_Caja, QString());
    EXPECT_EQ(M.RespuestaMensaje, QString());
}

TEST_F(MensajeTest, QuestionLeftByTheArrowIsNo)
{
    M.Respuesta_Caja = u"antes"_s;
    show(2, clicking(Arrow));
    EXPECT_EQ(M.Respuesta_Opcion, 1);
    EXPECT_EQ(M.Respuesta_Caja, u"antes"_s);
}

TEST_F(MensajeTest, WarningLeavesTheEmptyAnswerAlone)
{
    M.Respuesta_Caja = u"antes"_s;
    M.RespuestaMensaje = u"mensaje"_s;
    show(3, clicking(Arrow));
    EXPECT_EQ(M.Respuesta_Opcion, 1);
    EXPECT_EQ(M.Respuesta_Caja, u"antes"_s);
    EXPECT_EQ(M.RespuestaMensaje, u"mensaje"_s);
}

TEST_F(MensajeTest, NoticeAcceptedEmptiesTheAnswer)
{
    M.Respuesta_Caja = u"antes"_s;
    M.Respuesta_Opcion = 1;
    M.RespuestaMensaje = u"mensaje"_s;
    show(4, clicking(Accept));
    EXPECT_EQ(M.Respuesta_Opcion, 0);
    EXPECT_EQ(M.Respuesta_Caja, QString());
    EXPECT_EQ(M.RespuestaMensaje, u"mensaje"_s);
}

TEST_F(MensajeTest, PressShowsThePressedPictureAndTheReleaseActs)
{
    show(1, [](forms::Form &form) {
        forms::PictureButton &accept = buttonOf(form, Accept);
        EXPECT_FALSE(accept.ShowsPressed());
        press(accept);
        EXPECT_TRUE(accept.ShowsPressed());
        EXPECT_TRUE(form.isVisible());
        release(accept);
        EXPECT_FALSE(form.isVisible());
    });
    show(3, [](forms::Form &form) {
        forms::PictureButton &arrow = buttonOf(form, Arrow);
        press(arrow);
        EXPECT_TRUE(arrow.ShowsPressed());
        EXPECT_TRUE(form.isVisible());
        release(arrow);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(MensajeTest, AnyMouseButtonAnswers)
{
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        M.Respuesta_Caja = u"antes"_s;
        show(2, clicking(Accept, button));
        EXPECT_EQ(M.Respuesta_Caja, QString()) << button;
        show(2, clicking(Arrow, button));
        EXPECT_EQ(M.Respuesta_Opcion, 1) << button;
    }
}

TEST_F(MensajeTest, ReleaseOutsideThePictureStillActs)
{
    show(1, [](forms::Form &form) {
        press(buttonOf(form, Accept));
        releaseAt(buttonOf(form, Accept), QPoint(120, -50));
    });
    EXPECT_EQ(M.Respuesta_Caja, u"entrada"_s);
    show(2, [](forms::Form &form) {
        press(buttonOf(form, Arrow));
        releaseAt(buttonOf(form, Arrow), QPoint(-50, 30));
    });
    EXPECT_EQ(M.Respuesta_Opcion, 1);
}

TEST_F(MensajeTest, NoKeyClosesABoxWithoutInput)
{
    for (const int type : { 2, 3, 4 }) {
        show(type, [type](forms::Form &form) {
            for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }) {
                strike(form, key);
                EXPECT_TRUE(form.isVisible()) << "type " << type << ", key " << key;
            }
            click(buttonOf(form, type == 4 ? Accept : Arrow));
        });
    }
}

TEST_F(MensajeTest, SpaceAnswersOnceTabHasTakenTheFocusToAPicture)
{
    M.Respuesta_Caja = u"antes"_s;
    show(2, [](forms::Form &form) {
        strike(form, Qt::Key_Tab);
        strike(form, Qt::Key_Space);
    });
    EXPECT_EQ(M.Respuesta_Caja, QString());
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(MensajeTest, EscapeDoesNotCloseTheInput)
{
    show(1, [](forms::Form &form) {
        strike(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        click(buttonOf(form, Arrow));
    });
}

TEST_F(MensajeTest, WindowSystemsWishToCloseIsIgnored)
{
    for (const int type : { 1, 2, 3, 4 }) {
        show(type, [type](forms::Form &form) {
            wishClose(form);
            EXPECT_TRUE(form.isVisible()) << "type " << type;
            click(buttonOf(form, type == 4 ? Accept : Arrow));
        });
    }
}

TEST_F(MensajeTest, ClosingByCodeLeavesTheAnswersAsTheyWere)
{
    M.Respuesta_Caja = u"antes"_s;
    M.Respuesta_Opcion = 1;
    show(1, [](forms::Form &form) { form.Unload(); });
    EXPECT_EQ(M.Respuesta_Caja, u"antes"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(MensajeTest, OwnerGetsNoInputWhileTheBoxStands)
{
    forms::PictureButton below(u"JugarB1"_s, u"JugarB2"_s, &owner);
    below.SetPlace({ 0, 0, 540, 540 });
    below.show();
    int presses = 0;
    below.Press = [&presses] { ++presses; };
    click(below);
    ASSERT_EQ(presses, 1);

    show(2, [&](forms::Form &form) {
        click(below);
        click(buttonOf(form, Arrow));
    });
    EXPECT_EQ(presses, 1);
}

TEST_F(MensajeTest, BoxIsGoneWhenTheCallReturns)
{
    QPointer<forms::Form> shown;
    show(4, [&shown](forms::Form &form) {
        shown = &form;
        click(buttonOf(form, Accept));
    });
    EXPECT_FALSE(shown);
}

TEST_F(MensajeTest, CallGivesWayOnceBeforeItReturns)
{
    bool ran = false;
    show(4, [&ran](forms::Form &form) {
        // Posted at the box's end, so that only the yield behind it can deliver it.
        QObject::connect(&form, &QObject::destroyed, qApp, [&ran] {
            QMetaObject::invokeMethod(
                qApp, [&ran] { ran = true; }, Qt::QueuedConnection);
        });
        click(buttonOf(form, Accept));
    });
    EXPECT_TRUE(ran);
}
