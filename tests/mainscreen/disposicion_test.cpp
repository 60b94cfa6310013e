// Where the controls of the main screen stand, under which names, and what they look like at first.

#include "tests/support/portadatest.h"

#include "forms/rendered.h"
#include "forms/svg.h"

#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QResource>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

struct Place {
    QString name;
    QString parent;
    QRect rect;
};

void PrintTo(const Place &place, std::ostream *out)
{
    *out << place.name.toStdString();
}

std::string nameOf(const testing::TestParamInfo<Place> &info)
{
    return info.param.name.toStdString();
}

const QString Screen = u"Portada"_s;
const QString Television = u"Graf_TV"_s;

const Place Others[] = {
    { u"Lista1"_s, Screen, designPlace(120, 1320, 2295, 2580) },
    { u"Combo1"_s, Screen, designPlace(480, 4200, 1935, 330) },
    { u"Combo2"_s, Screen, designPlace(480, 4560, 1935, 330) },
    { u"Check1"_s, Screen, designPlace(5640, 4460, 200, 255) },
    { u"Titulo1"_s, Screen, designPlace(1200, 100, 3600, 675) },
    { u"Graf_TV"_s, Screen, designPlace(2520, 1080, 3480, 3360) },
    { u"Graf_Imagen"_s, Television, designPlace(300, 320, 2880, 2160) },
    { u"X2"_s, Television, designPlace(680, 3000, 195, 120) },
    { u"X3"_s, Television, designPlace(930, 3000, 195, 120) },
    { u"X4"_s, Television, designPlace(1180, 3000, 195, 120) },
    { u"X5"_s, Television, designPlace(1440, 3000, 195, 120) },
    { u"OFF"_s, Television, designPlace(2680, 3000, 255, 135) },
    { u"Boton"_s, Television, designPlace(680, 3000, 195, 120) },
    { u"BotonARR"_s, Television, designPlace(3025, 2640, 250, 120) },
    { u"BotonABJ"_s, Screen, designPlace(5195, 4075, 280, 130) },
    { u"IMGDescripcionLarga"_s, Screen, designPlace(0, 0, 360, 315) },
    { u"Fondo"_s, Screen, designPlace(-2520, -2400, 2955, 2955) },
    { u"Shape1"_s, Screen, designPlace(3100, 4485, 2415, 1095) },
    { u"Shape2"_s, Screen, designPlace(150, 4980, 2280, 600) },
};

const Place Labels[] = {
    { u"TXT_InfoRoms"_s, Screen, designPlace(120, 1125, 2250, 195) },
    { u"TXT_dB"_s, Screen, designPlace(5895, 4515, 195, 210) },
    { u"TXT_Boton"_s, Screen, designPlace(2610, 5400, 315, 210) },
    { u"TXT_Info"_s, Television, designPlace(720, 15, 2085, 210) },
    { u"WEB1"_s, Television, designPlace(0, 3120, 480, 210) },
    { u"WEB2"_s, Screen, designPlace(2540, 4545, 345, 210) },
};

struct Pair {
    Place atRest;
    QString pressed;
    int pressedWidth; // pixels
};

void PrintTo(const Pair &pair, std::ostream *out)
{
    *out << pair.atRest.name.toStdString();
}

std::string nameOfPair(const testing::TestParamInfo<Pair> &info)
{
    return info.param.atRest.name.toStdString();
}

const Pair Pairs[] = {
    { { u"JugarB1"_s, Screen, designPlace(2490, 4850, 540, 540) }, u"JugarB2"_s, 36 },
    { { u"BotonA2"_s, Screen, designPlace(120, 3960, 450, 150) }, u"BotonA1"_s, 28 },
    { { u"BotonB2"_s, Screen, designPlace(1320, 3960, 450, 150) }, u"BotonB1"_s, 28 },
    { { u"BotonC2"_s, Screen, designPlace(250, 5080, 450, 150) }, u"BotonC1"_s, 28 },
    { { u"BotonD2"_s, Screen, designPlace(250, 5320, 450, 150) }, u"BotonD1"_s, 28 },
    { { u"Boton1b"_s, Screen, designPlace(3220, 4600, 450, 150) }, u"Boton1a"_s, 28 },
    { { u"Boton2b"_s, Screen, designPlace(3220, 4840, 450, 150) }, u"Boton2a"_s, 28 },
    { { u"Boton3b"_s, Screen, designPlace(3220, 5080, 450, 150) }, u"Boton3a"_s, 28 },
    { { u"Boton4b"_s, Screen, designPlace(3220, 5320, 450, 150) }, u"Boton4a"_s, 28 },
    { { u"Boton5b"_s, Screen, designPlace(4500, 5090, 255, 120) }, u"Boton5a"_s, 18 },
    { { u"Boton6b"_s, Screen, designPlace(4500, 5330, 255, 120) }, u"Boton6a"_s, 18 },
    { { u"Flecha2"_s, Screen, designPlace(5640, 5160, 465, 465) }, u"Flecha1"_s, 31 },
    { { u"FlechaE2"_s, Screen, designPlace(0, 0, 465, 465) }, u"FlechaE1"_s, 31 },
    { { u"Edit2"_s, Screen, designPlace(4920, 5160, 465, 465) }, u"Edit1"_s, 31 },
    { { u"BlocDeNotas2"_s, Screen, designPlace(5520, 5160, 465, 465) }, u"BlocDeNotas1"_s, 31 },
    { { u"D1"_s, Screen, designPlace(5620, 4940, 270, 225) }, u"D2"_s, 18 },
    { { u"E1"_s, Screen, designPlace(5620, 4700, 255, 270) }, u"E2"_s, 17 },
    { { u"Menos2a"_s, Screen, designPlace(150, 4260, 270, 270) }, u"Menos1a"_s, 18 },
    { { u"Menos2b"_s, Screen, designPlace(150, 4600, 270, 270) }, u"Menos1b"_s, 18 },
};

struct Words {
    QString label;
    QString text;
    QPoint at; // pixels
};

// The words beside the picture buttons.
const Words Beside[] = {
    { u"TXT_Describir"_s, u"Describir"_s, designPlace(600, 3930, 0, 0).topLeft() },
    { u"TXT_Borrar"_s, u"Borrar"_s, designPlace(1800, 3930, 0, 0).topLeft() },
    { u"TXT_VerAyuda"_s, u"Ver ayuda del emu"_s, designPlace(780, 5055, 0, 0).topLeft() },
    { u"TXT_VerConfig"_s, u"Ver config. del emu"_s, designPlace(780, 5280, 0, 0).topLeft() },
    { u"TXT_Configurar"_s, u"Configurar emuladores"_s, designPlace(3740, 4560, 0, 0).topLeft() },
    { u"TXT_Opciones"_s, u"Opciones del programa"_s, designPlace(3740, 4800, 0, 0).topLeft() },
    { u"TXT_Utilidades"_s, u"Utilidades"_s, designPlace(3740, 5040, 0, 0).topLeft() },
    { u"TXT_AcercaDe"_s, u"Acerca..."_s, designPlace(3735, 5280, 0, 0).topLeft() },
    { u"TXT_Ayuda"_s, u"Ayuda"_s, designPlace(4850, 5040, 0, 0).topLeft() },
    { u"TXT_FAQ"_s, u"FAQ"_s, designPlace(4850, 5280, 0, 0).topLeft() },
};

} // namespace

class DisposicionTest : public PortadaTest, public testing::WithParamInterface<Place> {
protected:
    void expectPlace(const Place &expected)
    {
        QWidget &widget = control(expected.name);
        EXPECT_EQ(widget.parentWidget()->objectName(), expected.parent);
        EXPECT_EQ(widget.geometry(), expected.rect);
    }
};

TEST_P(DisposicionTest, ControlStandsInItsPlace)
{
    expectPlace(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Others, DisposicionTest, testing::ValuesIn(Others), &nameOf);

class EtiquetasTest : public DisposicionTest { };

TEST_P(EtiquetasTest, LabelStandsInItsPlace)
{
    // A word that is too wide takes more room than its place.
    control<forms::Label>(GetParam().name).SetCaption({});
    expectPlace(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Labels, EtiquetasTest, testing::ValuesIn(Labels), &nameOf);

class ParejasTest : public PortadaTest, public testing::WithParamInterface<Pair> { };

TEST_P(ParejasTest, PairStandsInItsPlaceUnderBothNames)
{
    const Pair &pair = GetParam();
    auto &button = control<forms::PictureButton>(pair.atRest.name);
    EXPECT_EQ(button.parentWidget()->objectName(), pair.atRest.parent);
    EXPECT_EQ(button.geometry(), pair.atRest.rect);
    EXPECT_EQ(&control(pair.pressed), &button);
}

TEST_P(ParejasTest, PressedPictureHasItsOwnWidth)
{
    start();
    const Pair &pair = GetParam();
    auto &button = control<forms::PictureButton>(pair.atRest.name);
    button.show();
    button.raise();
    press(button);
    EXPECT_TRUE(button.ShowsPressed());
    EXPECT_EQ(button.geometry(),
        QRect(pair.atRest.rect.topLeft(), QSize(pair.pressedWidth, pair.atRest.rect.height())));
    button.setEnabled(false); // and so goes back to rest, and doesn't act
    release(button);
    EXPECT_EQ(button.geometry(), pair.atRest.rect);
}
INSTANTIATE_TEST_SUITE_P(Pairs, ParejasTest, testing::ValuesIn(Pairs), &nameOfPair);

using PortadaDisposicionTest = PortadaTest;

TEST_F(PortadaDisposicionTest, WindowIsABareRectangleOfTheDesignsSize)
{
    start();
    EXPECT_EQ(portada->size(), QSize(411, 381));
    EXPECT_EQ(portada->frameGeometry().size(), QSize(411, 381));
    EXPECT_TRUE(portada->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(portada->minimumSize(), portada->maximumSize());
    EXPECT_EQ(portada->Caption(), u"Zembrolix v2.0"_s);
    EXPECT_EQ(QFontInfo(portada->font()).family(), u"Liberation Sans"_s);
    EXPECT_EQ(portada->font().pixelSize(), 11);
}

TEST_F(PortadaDisposicionTest, BackgroundIsPaintedOverTheWholeWindow)
{
    start();
    const QColor bare = portada->palette().color(QPalette::Window);
    const QImage picture = pictureOf(*portada);
    for (const QPoint corner : { QPoint(0, 0), QPoint(410, 0), QPoint(0, 380), QPoint(410, 380) })
        EXPECT_NE(picture.pixelColor(corner), bare) << corner.x() << ',' << corner.y();
}

TEST_F(PortadaDisposicionTest, WordsStandBesideTheirButtons)
{
    for (const Words &words : Beside) {
        SCOPED_TRACE(words.label.toStdString());
        const auto &label = control<forms::Label>(words.label);
        EXPECT_EQ(label.Caption(), words.text);
        EXPECT_EQ(label.geometry().topLeft(), words.at);
        EXPECT_EQ(label.ForeColor(), QColor(192, 255, 192));
    }
}

TEST_F(PortadaDisposicionTest, LabelsHaveTheirFirstWordsColoursAndLetters)
{
    const struct {
        QString name;
        QString text;
        QString family;
        int pixels;
        bool bold;
        QColor colour;
        bool centred;
    } labels[] = {
        { u"TXT_InfoRoms"_s, u"..."_s, u"Liberation Mono"_s, 8, true, QColor(192, 255, 255), true },
        { u"TXT_dB"_s, u"dB"_s, u"Liberation Sans"_s, 11, false, QColor(192, 255, 192), false },
        { u"TXT_Boton"_s, u"-----"_s, u"Liberation Sans"_s, 11, true, QColor(255, 255, 255), true },
        { u"TXT_Info"_s, u"Ninguna ROM encontrada"_s, u"Liberation Sans"_s, 11, true, QColor(0, 0, 0), true },
        { u"WEB1"_s, u"ROMS"_s, u"Liberation Sans"_s, 11, true, QColor(255, 0, 0), false },
        { u"WEB2"_s, u"WEB"_s, u"Liberation Sans"_s, 11, true, QColor(255, 0, 0), false },
    };
    for (const auto &expected : labels) {
        SCOPED_TRACE(expected.name.toStdString());
        const auto &label = control<forms::Label>(expected.name);
        EXPECT_EQ(label.Caption(), expected.text);
        EXPECT_EQ(QFontInfo(label.font()).family(), expected.family);
        EXPECT_EQ(label.font().pixelSize(), expected.pixels);
        EXPECT_EQ(label.font().bold(), expected.bold);
        EXPECT_EQ(label.ForeColor(), expected.colour);
        EXPECT_EQ(label.alignment().testFlag(Qt::AlignHCenter), expected.centred);
    }
}

TEST_F(PortadaDisposicionTest, CheckBoxIsWhiteOnBlackInSmallBoldLetters)
{
    start();
    auto &check = control<forms::CheckBox>(u"Check1"_s);
    EXPECT_EQ(check.text(), u"DB"_s);
    EXPECT_EQ(check.font().pixelSize(), 8);
    EXPECT_TRUE(check.font().bold());
    EXPECT_EQ(check.palette().color(QPalette::WindowText), QColor(Qt::white));
    const QImage box = pictureOf(*portada).copy(check.geometry());
    EXPECT_EQ(box.pixelColor(6, 8), QColor(Qt::black));
    EXPECT_NE(box.pixelColor(6, 0), QColor(Qt::black)); // no bars above and below the box
    EXPECT_NE(box.pixelColor(6, box.height() - 1), QColor(Qt::black));
    check.SetValue(1);
    EXPECT_NE(pictureOf(*portada).copy(check.geometry()), box);
}

TEST_F(PortadaDisposicionTest, KeyboardFocusShowsOnTheListsOfChoiceAndOnTheDatabaseBox)
{
    start();
    for (const QString &name : { u"Combo1"_s, u"Combo2"_s, u"Check1"_s }) {
        control(u"Lista1"_s).setFocus();
        const QImage without = pictureOf(*portada).copy(control(name).geometry());
        control(name).setFocus();
        const QImage with = pictureOf(*portada).copy(control(name).geometry());
        int dots = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                dots += with.pixel(x, y) == qRgb(255, 255, 255) && without.pixel(x, y) != qRgb(255, 255, 255);
        }
        EXPECT_GT(dots, 15) << name.toStdString();
    }
}

TEST_F(PortadaDisposicionTest, FramesAreDrawnInTheirColour)
{
    start();
    for (const QString &name : { u"Shape1"_s, u"Shape2"_s })
        EXPECT_EQ(pictureOf(control(name)).pixelColor(0, 0), QColor(0, 128, 128)) << name.toStdString();
}

TEST_F(PortadaDisposicionTest, ToolsAndTipAreHiddenAndTheTileIsOutsideTheWindow)
{
    start();
    for (const QString &name : { u"File1"_s, u"Dir1"_s, u"IMGDescripcionLarga"_s })
        EXPECT_FALSE(control(name).isVisible()) << name.toStdString();
    EXPECT_FALSE(control(u"Fondo"_s).isVisible());
}

TEST_F(PortadaDisposicionTest, EveryPartThatThePointerNeedsIsOnTop)
{
    start();
    for (const Pair &pair : Pairs) {
        QWidget &button = control(pair.atRest.name);
        if (button.isVisible()) {
            const QPoint middle = button.geometry().center();
            EXPECT_EQ(portada->childAt(middle), &button) << pair.atRest.name.toStdString();
        }
    }
}

TEST_F(PortadaDisposicionTest, SecondaryScreensGetTheTileWithItsDesignSize)
{
    start();
    const dialogs::Teja tile = portada->Teja();
    EXPECT_EQ(tile.ancho, 2955);
    EXPECT_EQ(tile.alto, 2955);
    EXPECT_FALSE(tile.imagen.isNull());
}

TEST_F(PortadaDisposicionTest, MessageBoxIsTiledAndStandsOverTheScreen)
{
    start();
    const QRect strip(0, 0, 6, 90); // left of the controls
    const QImage tile = portada->Teja().imagen.toImage().convertToFormat(QImage::Format_RGB32).copy(strip);
    QImage bare(strip.size(), QImage::Format_RGB32);
    bare.fill(QColor(0, 0, 64));
    ASSERT_NE(tile, bare);
    atModal(u"Caja"_s, [&](forms::Form &form) {
        EXPECT_EQ(form.geometry().center(), portada->geometry().center());
        EXPECT_EQ(pictureOf(form).copy(strip), tile);
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    portada->Mensaje(2, u"m"_s, u"t"_s, u"1"_s, u"2"_s, {});
    EXPECT_EQ(M->Respuesta_Opcion, 0);
}

TEST_F(PortadaDisposicionTest, MessageBoxOverAnotherScreenStillStandsOverThisOne)
{
    start();
    forms::Form other(u"Otra"_s, 3000, 3000, forms::Form::Border::FixedSingle);
    atModal(u"Otra"_s, [this](forms::Form &between) {
        between.move(portada->pos() + QPoint(200, 200));
        atModal(u"Caja"_s, [&](forms::Form &box) {
            EXPECT_EQ(box.geometry().center(), portada->geometry().center());
            EXPECT_TRUE(between.isVisible());
            click(controlOf<QWidget>(box, u"Aceptar2"_s));
        });
        portada->Mensaje(4, u"m"_s, u"t"_s, u"1"_s, u"2"_s, {});
        EXPECT_TRUE(between.isVisible());
        between.Unload();
    });
    other.ShowModal(portada.get());
    EXPECT_FALSE(other.isVisible());
}

namespace {

// The buttons that send the focus to the list when they are pressed.
const QStringList ToTheList { u"JugarB1"_s, u"BotonA2"_s, u"BotonB2"_s, u"BotonC2"_s, u"BotonD2"_s,
    u"Boton1b"_s, u"Boton2b"_s, u"Boton3b"_s, u"Boton4b"_s, u"Boton5b"_s, u"Boton6b"_s, u"FlechaE2"_s };

} // namespace

class FocoTest : public PortadaTest {
protected:
    // Which control has the focus while the button is held, if `from` had it before.
    QString focusOnPress(const QString &name, const QString &from, Qt::MouseButton mouse = Qt::LeftButton)
    {
        QWidget &button = control(name);
        button.show();
        button.raise();
        control(from).setFocus();
        press(button, mouse);
        const QString focus = focused();
        button.setEnabled(false); // the release is another test's matter
        release(button, mouse);
        button.setEnabled(true);
        return focus;
    }
};

TEST_F(FocoTest, PressOfAPictureButtonGivesTheListTheFocus)
{
    start();
    for (const QString &name : ToTheList)
        EXPECT_EQ(focusOnPress(name, u"Combo1"_s), u"Lista1"_s) << name.toStdString();
}

TEST_F(FocoTest, AnyMouseButtonPresses)
{
    start();
    for (const Qt::MouseButton mouse : { Qt::RightButton, Qt::MiddleButton }) {
        EXPECT_EQ(focusOnPress(u"JugarB1"_s, u"Combo1"_s, mouse), u"Lista1"_s);
        EXPECT_EQ(focusOnPress(u"Menos2b"_s, u"Combo1"_s, mouse), u"Combo2"_s);
    }
}

TEST_F(FocoTest, RemovalOfAnEmulatorGivesTheEmulatorsTheFocus)
{
    start();
    EXPECT_EQ(focusOnPress(u"Menos2b"_s, u"Lista1"_s), u"Combo2"_s);
}

TEST_F(FocoTest, RemovalOfASystemConsoleAndExplorerLeaveTheFocus)
{
    start();
    for (const QString &name : { u"Menos2a"_s, u"D1"_s, u"E1"_s })
        EXPECT_EQ(focusOnPress(name, u"Combo1"_s), u"Combo1"_s) << name.toStdString();
}

TEST_F(FocoTest, ExitArrowEnablesTheListAndGivesItTheFocus)
{
    start();
    list().setEnabled(false);
    EXPECT_EQ(focusOnPress(u"Flecha2"_s, u"Combo1"_s), u"Lista1"_s);
    EXPECT_TRUE(list().isEnabled());
}

TEST_F(FocoTest, PointerOverTheScreenTheTelevisionOrThePictureHidesTheTip)
{
    start();
    QWidget &tip = control(u"IMGDescripcionLarga"_s);
    const std::pair<QString, QPoint> places[] = { { u"Portada"_s, { 30, 60 } }, { u"Graf_TV"_s, { 4, 30 } },
        { u"Graf_Imagen"_s, { 40, 40 } } };
    for (const auto &[name, point] : places) {
        tip.show();
        moveTo(name == u"Portada" ? *portada : control(name), point);
        EXPECT_FALSE(tip.isVisible()) << name.toStdString();
    }
}

TEST(Artwork, EveryDrawingIsRenderedForEachScale)
{
    const QStringList drawings = QDir(u":/artwork"_s).entryList({ u"*.svg"_s });
    ASSERT_FALSE(drawings.isEmpty());
    for (const QString &drawing : drawings) {
        const QString file = u":/artwork/"_s + drawing;
        for (const qreal scale : forms::RenderedScales) {
            const QSize pixels = forms::pixelsOf(QSvgRenderer(file).defaultSize(), scale);
            const QString path = forms::renderedPath(drawing.chopped(4), pixels, scale);
            EXPECT_EQ(forms::unpacked(QResource(path).uncompressedData()), forms::renderSvg(file, pixels))
                << file.toStdString() << " at " << scale;
        }
    }
}

using ArtworkTest = PortadaTest;

TEST_F(ArtworkTest, ControlsHaveTheSizeThatTheirDrawingWasRenderedIn)
{
    start();
    for (const QString &name :
        { u"Titulo1"_s, u"Graf_TV"_s, u"JugarB1"_s, u"Flecha2"_s, u"BotonA2"_s, u"BotonD2"_s, u"Boton1b"_s,
            u"Boton5b"_s, u"Menos2a"_s, u"Menos2b"_s, u"D1"_s, u"E1"_s, u"Edit2"_s, u"FlechaE2"_s })
        EXPECT_EQ(control(name).size(), QSvgRenderer(u":/artwork/%1.svg"_s.arg(name)).defaultSize())
            << name.toStdString();
    EXPECT_EQ(portada->size(), QSvgRenderer(u":/artwork/Portada.svg"_s).defaultSize());
}
