// The size of the next start, picked by keys and by the wheel on the title.

#include "mundotest.h"

#include "host/process.h"

#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

// The user has said nothing about the factor, whatever the tests run with.
class TamanoTest : public MundoTest {
protected:
    TamanoTest() { startedWith({}); }
    ~TamanoTest() override
    {
        host::rememberEnvironment();
        QToolTip::hideText();
    }

    static void startedWith(const QByteArray &factor)
    {
        const QByteArray ofTheTests = qgetenv("QT_SCALE_FACTOR");
        qputenv("QT_SCALE_FACTOR", factor);
        host::rememberEnvironment();
        qputenv("QT_SCALE_FACTOR", ofTheTests);
    }
};

} // namespace

TEST_F(TamanoTest, SizeOfTheNextStartIsPickedByKeys)
{
    startAt(Zeta, 0);
    const double shown = portada->devicePixelRatioF();
    ASSERT_EQ(shown, 1);
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
    EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("Tamaño: 125 %, al volver"));
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.5\r\n");
    strike(*portada, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
    EXPECT_EQ(portada->devicePixelRatioF(), shown);
}

TEST_F(TamanoTest, TipOfTheSizeDoesNotComeUpUnderThePointer)
{
    startAt(Zeta, 0);
    for (int y = 10; y < 100; y += 10) {
        QCursor::setPos(portada->mapToGlobal(QPoint(150, y)));
        strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
        int tips = 0;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->inherits("QTipLabel")) {
                ++tips;
                EXPECT_FALSE(window->frameGeometry().contains(QCursor::pos())) << y;
            }
        }
        EXPECT_EQ(tips, 1) << y;
    }
}

TEST_F(TamanoTest, SizeGrowsByTheKeyOfPlusWithoutShift_AndByTheKeypad)
{
    startAt(Zeta, 0);
    strike(*portada, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.5\r\n");
    strike(*portada, Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
}

TEST_F(TamanoTest, WhereTheUsersEnvironmentSaysTheSizeNoneIsPicked_AndTheTipSaysWhy)
{
    startedWith("2");
    startAt(Zeta, 0);
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FALSE(files.exists(u"Zembro.tam"_s));
    EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("QT_SCALE_FACTOR decide"));
}

TEST_F(TamanoTest, SizeIsPickedByTheWheelOnTheTitle_WithControl)
{
    startAt(Zeta, 0);
    auto &title = control<forms::Image>(u"Titulo1"_s);
    const auto turn = [&](int eighths, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        turnWheel(title, QPoint(5, 5), eighths, modifiers);
    };
    turn(120, Qt::NoModifier);
    EXPECT_FALSE(files.exists(u"Zembro.tam"_s));
    turn(60);
    EXPECT_FALSE(files.exists(u"Zembro.tam"_s));
    turn(60);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
    turn(360);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 2\r\n");
    turn(-240);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.5\r\n");
    turn(30000);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 4\r\n");
}

TEST_F(TamanoTest, SizeIsKeptAsItIsSeen_WhateverTheDesktopMultipliesBy)
{
    startAt(Zeta, 0);
    const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCALE_FACTOR", "0.5"); // so the desktop's own would be 2
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    qputenv("QT_SCALE_FACTOR", factor);
    EXPECT_EQ(files.read(u"Zembro.tam"_s), "Size = 1.25\r\n");
}

TEST_F(TamanoTest, SizeThatCannotBeKeptIsToldInWords)
{
    startAt(Zeta, 0);
    files.makeDirectory(u"Zembro.tam"_s);
    bool told = false;
    atModal(u"Caja"_s, [&](forms::Form &form) {
        told = true;
        EXPECT_EQ(form.Caption(), u"Sin grabar"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(),
            u"El tamaño no se puede guardar en Zembro.tam."_s);
        click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(told);
}
