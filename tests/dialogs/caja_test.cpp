// The look of the message box: where its controls stand and what they show, type by type.

#include "mensajetest.h"

#include "forms/textbox.h"

#include <QFontInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int ByAccept = 4; // the types that each button closes
constexpr int ByArrow = 3;

void close(forms::Form &form, int type)
{
    click(buttonOf(form, type == ByAccept ? u"Aceptar2"_s : u"Flecha2"_s));
}

QStringList visibleControls(const forms::Form &form)
{
    QStringList names;
    for (const QString &name : { u"Texto1"_s, u"Texto2"_s, u"Casilla"_s, u"Aceptar2"_s, u"Flecha2"_s,
             u"TXT_Aceptar"_s, u"TXT_Volver"_s }) {
        if (controlOf<QWidget>(form, name).isVisible())
            names << name;
    }
    return names;
}

QRect placeOf(const forms::Form &form, const QString &name)
{
    return controlOf<QWidget>(form, name).geometry();
}

} // namespace

using CajaTest = MensajeTest;

TEST_F(CajaTest, DesignHoldsEveryControlInItsPlaceWithItsWords)
{
    const dialogs::Caja caja(M, {});

    EXPECT_EQ(caja.size(), QSize(167, 110));
    EXPECT_EQ(caja.Caption(), u"-= Titulo =-"_s);
    EXPECT_EQ(controlOf<forms::TextBox>(caja, u"Casilla"_s).Text(), QString());
    EXPECT_EQ(labelOf(caja, u"TXT_Aceptar"_s).Caption(), u"Aceptar"_s);
    EXPECT_EQ(labelOf(caja, u"TXT_Volver"_s).Caption(), u"Volver"_s);
    EXPECT_EQ(labelOf(caja, u"Texto1"_s).Caption(), u"Vacio"_s);
    EXPECT_EQ(labelOf(caja, u"Texto2"_s).Caption(), u"Text2"_s);

    // A word that is too wide takes more room than its place.
    for (const QString &label : { u"TXT_Aceptar"_s, u"TXT_Volver"_s })
        labelOf(caja, label).SetCaption({});
    EXPECT_EQ(placeOf(caja, u"Casilla"_s), QRect(8, 40, 153, 19));
    EXPECT_EQ(placeOf(caja, u"Aceptar2"_s), QRect(12, 64, 31, 27));
    EXPECT_EQ(placeOf(caja, u"Flecha2"_s), QRect(57, 65, 41, 25));
    EXPECT_EQ(placeOf(caja, u"TXT_Aceptar"_s), QRect(8, 93, 35, 14));
    EXPECT_EQ(placeOf(caja, u"TXT_Volver"_s), QRect(58, 93, 43, 14));
    EXPECT_EQ(placeOf(caja, u"Texto1"_s), QRect(8, 6, 147, 29));
    EXPECT_EQ(placeOf(caja, u"Texto2"_s), QRect(8, 8, 161, 57));
}

TEST_F(CajaTest, DesignHasItsColoursAndLetters)
{
    const dialogs::Caja caja(M, {});
    const struct {
        QString name;
        QColor colour;
        QString family;
        int pixels;
        Qt::Alignment across;
    } labels[] = {
        { u"TXT_Aceptar"_s, QColor(192, 255, 192), u"Liberation Sans"_s, 11, Qt::AlignHCenter },
        { u"TXT_Volver"_s, QColor(192, 255, 192), u"Liberation Sans"_s, 11, Qt::AlignHCenter },
        { u"Texto1"_s, QColor(255, 255, 255), u"Liberation Sans"_s, 11, Qt::AlignLeft },
        { u"Texto2"_s, QColor(255, 128, 128), u"Liberation Mono"_s, 13, Qt::AlignLeft },
    };
    for (const auto &expected : labels) {
        SCOPED_TRACE(expected.name.toStdString());
        const forms::Label &label = labelOf(caja, expected.name);
        EXPECT_EQ(label.ForeColor(), expected.colour);
        EXPECT_EQ(QFontInfo(label.font()).family(), expected.family);
        EXPECT_EQ(label.font().pixelSize(), expected.pixels);
        EXPECT_EQ(label.alignment() & Qt::AlignHorizontal_Mask, expected.across);
    }
}

TEST_F(CajaTest, PicturePairsAreFoundUnderBothNames)
{
    const dialogs::Caja caja(M, {});
    EXPECT_EQ(caja.Control(u"Aceptar1"_s), caja.Control(u"Aceptar2"_s));
    EXPECT_EQ(caja.Control(u"Flecha1"_s), caja.Control(u"Flecha2"_s));
    EXPECT_NE(caja.Control(u"Aceptar1"_s), nullptr);
    EXPECT_NE(caja.Control(u"Flecha1"_s), nullptr);
}

TEST_F(CajaTest, WindowHasATitleAndNoButtonsInIt)
{
    const dialogs::Caja caja(M, {});
    const Qt::WindowFlags flags = caja.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_FALSE(flags & Qt::FramelessWindowHint);
    EXPECT_FALSE(
        flags & (Qt::WindowMinMaxButtonsHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint));
}

TEST_F(CajaTest, LoadingClearsTheOption)
{
    M.Respuesta_Opcion = 1;
    const dialogs::Caja caja(M, {});
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(CajaTest, InputBoxStandsAsDesignedWithItsWords)
{
    show(1, [](forms::Form &form) {
        EXPECT_THAT(visibleControls(form),
            testing::ElementsAre(
                u"Texto1"_s, u"Casilla"_s, u"Aceptar2"_s, u"Flecha2"_s, u"TXT_Aceptar"_s, u"TXT_Volver"_s));
        EXPECT_EQ(form.size(), QSize(167, 110));
        EXPECT_EQ(placeOf(form, u"Casilla"_s), QRect(8, 40, 153, 19));
        EXPECT_EQ(placeOf(form, u"Aceptar2"_s), QRect(12, 64, 31, 27));
        EXPECT_EQ(placeOf(form, u"Flecha2"_s), QRect(57, 65, 41, 25));
        EXPECT_EQ(labelOf(form, u"Texto1"_s).Caption(), u"Mensaje"_s);
        EXPECT_EQ(form.Caption(), u"Título"_s);
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla"_s).Text(), u"entrada"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Aceptar"_s).Caption(), u"Sí"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Volver"_s).Caption(), u"No"_s);
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, QuestionStandsLowerAndWithoutInput)
{
    show(2, [](forms::Form &form) {
        EXPECT_THAT(visibleControls(form),
            testing::ElementsAre(
                u"Texto1"_s, u"Aceptar2"_s, u"Flecha2"_s, u"TXT_Aceptar"_s, u"TXT_Volver"_s));
        EXPECT_EQ(form.size(), QSize(167, 90));
        EXPECT_EQ(placeOf(form, u"Aceptar2"_s), QRect(12, 42, 31, 27));
        EXPECT_EQ(placeOf(form, u"Flecha2"_s), QRect(57, 43, 41, 25));
        EXPECT_EQ(placeOf(form, u"TXT_Aceptar"_s), QRect(8, 72, 35, 14));
        EXPECT_EQ(placeOf(form, u"TXT_Volver"_s), QRect(58, 72, 43, 14));
        EXPECT_EQ(labelOf(form, u"Texto1"_s).Caption(), u"Mensaje"_s);
        EXPECT_EQ(form.Caption(), u"Título"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Aceptar"_s).Caption(), u"Sí"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Volver"_s).Caption(), u"No"_s);
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla"_s).Text(), QString());
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, WarningShowsTheLargeArrowAndRedText)
{
    show(3, [](forms::Form &form) {
        EXPECT_THAT(visibleControls(form), testing::ElementsAre(u"Texto2"_s, u"Flecha2"_s, u"TXT_Volver"_s));
        EXPECT_EQ(form.size(), QSize(167, 102));
        EXPECT_EQ(placeOf(form, u"Flecha2"_s), QRect(10, 56, 53, 32));
        EXPECT_EQ(placeOf(form, u"TXT_Volver"_s), QRect(12, 85, 39, 14));
        EXPECT_EQ(labelOf(form, u"Texto2"_s).Caption(), u"Mensaje"_s);
        EXPECT_EQ(labelOf(form, u"Texto2"_s).ForeColor(), QColor(255, 128, 128));
        EXPECT_EQ(form.Caption(), u"Título"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Aceptar"_s).Caption(), u"Sí"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Volver"_s).Caption(), u"No"_s);
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, NoticeShowsAcceptAndWhiteText)
{
    show(4, [](forms::Form &form) {
        EXPECT_THAT(
            visibleControls(form), testing::ElementsAre(u"Texto2"_s, u"Aceptar2"_s, u"TXT_Aceptar"_s));
        EXPECT_EQ(form.size(), QSize(167, 102));
        EXPECT_EQ(placeOf(form, u"Aceptar2"_s), QRect(12, 55, 31, 27));
        EXPECT_EQ(placeOf(form, u"TXT_Aceptar"_s), QRect(8, 84, 35, 14));
        EXPECT_EQ(labelOf(form, u"Texto2"_s).Caption(), u"Mensaje"_s);
        EXPECT_EQ(labelOf(form, u"Texto2"_s).ForeColor(), QColor(255, 255, 255));
        EXPECT_EQ(form.Caption(), u"Título"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Aceptar"_s).Caption(), u"Sí"_s);
        EXPECT_EQ(labelOf(form, u"TXT_Volver"_s).Caption(), u"No"_s);
        close(form, ByAccept);
    });
}

TEST_F(CajaTest, EachBoxStartsFromTheDesign)
{
    show(3, [](forms::Form &form) { close(form, ByArrow); });
    show(1, [](forms::Form &form) {
        EXPECT_EQ(form.size(), QSize(167, 110));
        EXPECT_EQ(placeOf(form, u"Flecha2"_s), QRect(57, 65, 41, 25));
        EXPECT_EQ(placeOf(form, u"TXT_Volver"_s), QRect(58, 93, 43, 14));
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, LongTextIsClippedByItsLabel)
{
    const QString longText = u"muchas palabras cortas "_s.repeated(20);
    show(4, longText, [](forms::Form &form) {
        EXPECT_EQ(placeOf(form, u"Texto2"_s), QRect(8, 8, 161, 57));
        EXPECT_EQ(form.size(), QSize(167, 102));
        close(form, ByAccept);
    });
    show(2, longText, [](forms::Form &form) {
        EXPECT_EQ(placeOf(form, u"Texto1"_s), QRect(8, 6, 147, 29));
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, WordThatIsTooWideIsClippedByItsLabel)
{
    const QString word(80, u'W');
    show(1, word, [](forms::Form &form) {
        EXPECT_EQ(placeOf(form, u"Texto1"_s), QRect(8, 6, 147, 29));
        close(form, ByArrow);
    });
    show(3, word, [](forms::Form &form) {
        EXPECT_EQ(placeOf(form, u"Texto2"_s), QRect(8, 8, 161, 57));
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, StandsInTheMiddleOfItsOwner)
{
    owner.move(100, 60);
    show(1, [this](forms::Form &form) {
        EXPECT_EQ(form.geometry().center(), owner.geometry().center());
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, TileCoversItAllInRowsAndColumns)
{
    show(1, [](forms::Form &form) {
        const QImage picture = pictureOf(form);
        // The corner of every tile is blue, also where a tile lies half outside.
        for (int y = 0; y < 110; y += 6)
            EXPECT_EQ(picture.pixelColor(0, y), QColor(Qt::blue)) << "row " << y;
        for (int x = 0; x < 167; x += 10)
            EXPECT_EQ(picture.pixelColor(x, 108), QColor(Qt::blue)) << "column " << x;
        EXPECT_EQ(picture.pixelColor(166, 1), QColor(Qt::red));
        EXPECT_EQ(picture.pixelColor(166, 109), QColor(Qt::red));
        EXPECT_EQ(picture.pixelColor(2, 4), QColor(Qt::green));
        close(form, ByArrow);
    });
}

TEST_F(CajaTest, BackgroundIsNightBlueWithoutATile)
{
    dialogs::Caja caja(M, {});
    EXPECT_EQ(pictureOf(caja).pixelColor(166, 1), QColor(0, 0, 64));
}
