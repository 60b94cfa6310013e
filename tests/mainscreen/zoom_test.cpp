// The capture under the glass: the sizes, the lamps, the off switch, and which button does what.

#include "mundotest.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class ZoomTest : public MundoTest {
protected:
    QWidget &picture() { return control(u"Graf_Imagen"_s); }
    bool isShown(const QString &name) { return !control(name).isHidden(); }
    bool zooms() const { return portada->Aumento.isVisible(); }
    QRect lamp() { return control(u"Boton"_s).geometry(); }
    void choose(forms::MenuEntry *entry)
    {
        EXPECT_TRUE(popsUp(
            *portada->Menu_Graf_Imagen, [&] { click(picture(), Qt::RightButton); }, entry->action()));
    }
    void startWithCapture()
    {
        startAt(Zeta, 0);
        clickRow(list(), 0);
        ASSERT_EQ(M->Lista1Cambio, 0);
    }
    void startWithoutCapture()
    {
        startAt(Zeta, 0);
        clickRow(list(), 1);
        ASSERT_EQ(M->Lista1Cambio, 1);
    }
};

struct Size {
    int zoom;
    QSize window;
    int lamp; // left edge, in pixels
};

const Size Sizes[] = { { 2, { 233, 189 }, 45 }, { 3, { 289, 221 }, 62 }, { 4, { 336, 252 }, 79 },
    { 5, { 384, 286 }, 96 } };

} // namespace

TEST_F(ZoomTest, SetStartsOnAtSizeTwo)
{
    startAt(Zeta, 0);
    EXPECT_EQ(M->ZoomActual, 2);
    EXPECT_TRUE(isShown(u"Boton"_s));
    EXPECT_EQ(lamp(), QRect(45, 200, 13, 8));
    EXPECT_FALSE(isShown(u"BotonARR"_s));
    EXPECT_FALSE(isShown(u"BotonABJ"_s));
    EXPECT_EQ(picture().cursor().shape(), Qt::BitmapCursor);
    EXPECT_FALSE(picture().cursor().pixmap().isNull());
}

TEST_F(ZoomTest, HotSpotsChooseTheSize)
{
    startWithCapture();
    for (const Size &size : Sizes) {
        click(control(u"X%1"_s.arg(size.zoom)));
        EXPECT_EQ(M->ZoomActual, size.zoom);
        EXPECT_EQ(lamp(), QRect(size.lamp, 200, 13, 8));
        press(picture());
        EXPECT_TRUE(zooms());
        EXPECT_EQ(portada->Aumento.size(), size.window);
        EXPECT_EQ(portada->Aumento.Imagen->geometry(), QRect(QPoint(0, 0), size.window));
        EXPECT_EQ(zoomed(), QColor(Qt::red));
        release(picture());
        EXPECT_FALSE(zooms());
    }
}

TEST_F(ZoomTest, MenuChoosesTheSizeAsTheHotSpotsDo)
{
    startWithCapture();
    forms::MenuEntry *const entries[] = { portada->Menu_ZoomX2, portada->Menu_ZoomX3, portada->Menu_ZoomX4,
        portada->Menu_ZoomX5 };
    for (size_t i = 0; i < std::size(Sizes); ++i) {
        click(control(u"OFF"_s));
        picture().show();
        choose(entries[i]);
        EXPECT_EQ(M->ZoomActual, Sizes[i].zoom);
        EXPECT_EQ(lamp(), QRect(Sizes[i].lamp, 200, 13, 8));
        EXPECT_TRUE(isShown(u"Boton"_s));
        EXPECT_FALSE(isShown(u"BotonARR"_s));
        EXPECT_FALSE(isShown(u"BotonABJ"_s));
        EXPECT_EQ(picture().cursor().shape(), Qt::BitmapCursor);
    }
}

TEST_F(ZoomTest, RightButtonOnAHotSpotChoosesNothing)
{
    startWithCapture();
    click(control(u"X4"_s), Qt::RightButton);
    EXPECT_EQ(M->ZoomActual, 2);
}

TEST_F(ZoomTest, OffSwitchHidesTheCapture)
{
    startWithCapture();
    click(control(u"OFF"_s));
    EXPECT_EQ(M->ZoomActual, 0);
    EXPECT_FALSE(isShown(u"Boton"_s));
    EXPECT_TRUE(isShown(u"BotonARR"_s));
    EXPECT_TRUE(isShown(u"BotonABJ"_s));
    EXPECT_EQ(picture().cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(isShown(u"Graf_Imagen"_s));
}

TEST_F(ZoomTest, OffSwitchLeavesTheBlackPictureInView)
{
    startWithoutCapture();
    click(control(u"OFF"_s));
    EXPECT_EQ(M->ZoomActual, 0);
    EXPECT_TRUE(isShown(u"Graf_Imagen"_s));
    EXPECT_EQ(capture(), QColor(Qt::black));
}

TEST_F(ZoomTest, OffOfTheMenuHidesTheBlackPictureTooAndLeavesThePointer)
{
    startWithoutCapture();
    choose(portada->Menu_OFF);
    EXPECT_EQ(M->ZoomActual, 0);
    EXPECT_FALSE(isShown(u"Boton"_s));
    EXPECT_TRUE(isShown(u"BotonARR"_s));
    EXPECT_TRUE(isShown(u"BotonABJ"_s));
    EXPECT_FALSE(isShown(u"Graf_Imagen"_s));
    EXPECT_EQ(picture().cursor().shape(), Qt::BitmapCursor);
}

TEST_F(ZoomTest, SizeChosenWhileOffTurnsTheSetOnAndKeepsThePictureUntilTheNextSelection)
{
    startWithCapture();
    click(control(u"OFF"_s));
    clickRow(list(), 0);
    ASSERT_EQ(capture(), QColor(Qt::black));
    click(control(u"X3"_s));
    EXPECT_EQ(M->ZoomActual, 3);
    EXPECT_TRUE(isShown(u"Boton"_s));
    EXPECT_FALSE(isShown(u"BotonARR"_s));
    EXPECT_FALSE(isShown(u"BotonABJ"_s));
    EXPECT_TRUE(isShown(u"Graf_Imagen"_s));
    EXPECT_EQ(picture().cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(capture(), QColor(Qt::black));
    clickRow(list(), 0);
    EXPECT_EQ(capture(), QColor(Qt::red));
}

TEST_F(ZoomTest, LeftPressShowsNothingWhileTheSetIsOff)
{
    startWithoutCapture();
    click(control(u"OFF"_s));
    press(picture());
    EXPECT_FALSE(zooms());
    release(picture());
    EXPECT_FALSE(zooms());
}

TEST_F(ZoomTest, WithoutACaptureTheGlassIsBlack)
{
    startWithoutCapture();
    press(picture());
    EXPECT_TRUE(zooms());
    EXPECT_EQ(zoomed(), QColor(Qt::black));
    release(picture());
}

TEST_F(ZoomTest, RightPressUnderTheGlassDoesNothingAndAnyReleaseHidesIt)
{
    startWithCapture();
    press(picture());
    EXPECT_FALSE(popsUp(*portada->Menu_Graf_Imagen, [&] { press(picture(), Qt::RightButton); }));
    EXPECT_TRUE(zooms());
    release(picture(), Qt::RightButton);
    EXPECT_FALSE(zooms());
    release(picture());
    EXPECT_FALSE(zooms());
}

TEST_F(ZoomTest, RightPressOpensTheMenuAlsoWhileTheSetIsOff)
{
    startWithoutCapture();
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { click(picture(), Qt::RightButton); }));
    click(control(u"OFF"_s));
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { click(picture(), Qt::RightButton); }));
}

TEST_F(ZoomTest, MiddlePressDoesNothingButItsReleaseHidesTheGlass)
{
    startWithCapture();
    EXPECT_FALSE(popsUp(*portada->Menu_Graf_Imagen, [&] { press(picture(), Qt::MiddleButton); }));
    EXPECT_FALSE(zooms());
    release(picture(), Qt::MiddleButton);
    press(picture());
    ASSERT_TRUE(zooms());
    press(picture(), Qt::MiddleButton);
    EXPECT_TRUE(zooms());
    release(picture(), Qt::MiddleButton);
    EXPECT_FALSE(zooms());
    release(picture());
}

TEST_F(ZoomTest, ReleaseHidesTheGlassWhereverThePointerStands)
{
    startWithCapture();
    press(picture());
    ASSERT_TRUE(zooms());
    releaseAt(picture(), QPoint(-60, 250));
    EXPECT_FALSE(zooms());
}

TEST_F(ZoomTest, GlassStandsInTheMiddleOfTheScreenAndTakesNeitherFocusNorMouse)
{
    startWithCapture();
    portada->move(120, 90);
    list().setFocus();
    press(picture());
    EXPECT_EQ(portada->Aumento.geometry().center(), portada->geometry().center());
    EXPECT_TRUE(portada->Aumento.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_TRUE(portada->Aumento.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(QApplication::activeWindow(), portada.get());
    EXPECT_EQ(focused(), u"Lista1"_s);
    release(picture());
}

TEST_F(ZoomTest, EscapeHidesTheGlassAndTheReleaseBehindItChangesNothing)
{
    startWithCapture();
    press(picture());
    ASSERT_TRUE(zooms());
    strike(*portada, Qt::Key_Escape);
    EXPECT_FALSE(zooms());
    release(picture());
    EXPECT_FALSE(zooms());
    EXPECT_TRUE(portada->isVisible());
}

TEST_F(ZoomTest, GlassIsHiddenAndNotDestroyed)
{
    startWithCapture();
    press(picture());
    const forms::Image *image = portada->Aumento.Imagen;
    release(picture());
    press(picture());
    EXPECT_EQ(portada->Aumento.Imagen, image);
    release(picture());
}

TEST_F(ZoomTest, SpaceHoldsTheGlass)
{
    startWithCapture();
    picture().setFocus();
    QTest::keyPress(portada->windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(zooms());
    repeatKey(*portada, Qt::Key_Space);
    EXPECT_TRUE(zooms());
    QTest::keyRelease(portada->windowHandle(), Qt::Key_Space);
    EXPECT_FALSE(zooms());
}

TEST_F(ZoomTest, SpaceHoldsTheGlassAlsoAfterTheMenuHasTakenARelease)
{
    startWithCapture();
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { press(picture(), Qt::RightButton); }));
    picture().setFocus();
    QTest::keyPress(portada->windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(zooms());
    QTest::keyRelease(portada->windowHandle(), Qt::Key_Space);
    EXPECT_FALSE(zooms());
}

TEST_F(ZoomTest, GlassGoesWithTheFocusWhileSpaceIsHeld)
{
    startWithCapture();
    picture().setFocus();
    QTest::keyPress(portada->windowHandle(), Qt::Key_Space);
    list().setFocus();
    EXPECT_FALSE(zooms());
    QTest::keyRelease(portada->windowHandle(), Qt::Key_Space);
}

TEST_F(ZoomTest, GlassGoesWhereTheReleaseCannotCome)
{
    startWithCapture();
    press(picture());
    ASSERT_TRUE(zooms());
    strike(*portada, Qt::Key_0, Qt::ControlModifier);
    EXPECT_FALSE(zooms());
    release(picture());

    click(control(u"X2"_s));
    for (const auto &away : std::initializer_list<std::function<void()>> {
             [&] { picture().setEnabled(false); }, [&] { picture().hide(); },
             [&] {
                 QEvent blocked(QEvent::WindowBlocked);
                 QApplication::sendEvent(&picture(), &blocked);
             } }) {
        picture().setEnabled(true);
        picture().show();
        press(picture());
        ASSERT_TRUE(zooms());
        away();
        EXPECT_FALSE(zooms());
        release(*portada);
    }
}

TEST_F(ZoomTest, GlassHasASingleBorder)
{
    startWithCapture();
    press(picture());
    const QImage shown = pictureOf(portada->Aumento);
    release(picture());
    const int right = shown.width() - 1;
    const int bottom = shown.height() - 1;
    for (const QPoint point : { QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom) })
        EXPECT_EQ(shown.pixelColor(point), QColor(Qt::black)) << point.x() << ',' << point.y();
    for (const QPoint point : { QPoint(1, 1), QPoint(right - 1, bottom - 1) })
        EXPECT_EQ(shown.pixelColor(point), QColor(Qt::red)) << point.x() << ',' << point.y();
}

TEST_F(ZoomTest, FormOfTheGlassHasItsDesign)
{
    const forms::Image &image = *portada->Aumento.Imagen;
    const forms::Image &black = *portada->Aumento.Negro;
    EXPECT_EQ(portada->Aumento.palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_TRUE(portada->Aumento.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(image.geometry(), forms::inPixels({ 0, 0, 3135, 2775 }));
    EXPECT_EQ(black.geometry(), forms::inPixels({ 0, 4560, 3135, 2775 }));
    EXPECT_EQ(black.Picture().toImage().pixelColor(10, 10), QColor(Qt::black));
}
