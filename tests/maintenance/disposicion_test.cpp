// Where the controls of both steps stand, and what they look like before the language has its say; and the
// ground of all screens that configuring shows.
#include "configuraciontest.h"

#include <QFontInfo>

using namespace Qt::StringLiterals;

namespace {

const QColor Cyan(192, 255, 255);
const QColor Green(192, 255, 192);
const QColor White(255, 255, 255);
const QColor Bright(255, 224, 192);
const QColor Dim(192, 64, 0);

constexpr bool Plain = false;
constexpr bool Bold = true;

struct LabelRow {
    QString name;
    QRect place;
    QColor colour;
    bool bold;
    QString caption;
};

struct Row {
    QString name;
    QRect place;
    QString caption = {}; // of a button
};

class DisposicionDePasosTest : public ConfiguracionTest {
protected:
    static void expectLabels(const forms::Form &form, const std::vector<LabelRow> &rows)
    {
        for (const LabelRow &row : rows) {
            SCOPED_TRACE(row.name.toStdString());
            auto &label = controlOf<forms::Label>(form, row.name);
            EXPECT_EQ(label.Caption(), row.caption);
            EXPECT_EQ(label.ForeColor(), row.colour);
            EXPECT_EQ(label.font().bold(), row.bold);
            EXPECT_EQ(QFontInfo(label.font()).family(), u"Liberation Sans"_s);
            label.SetCaption({}); // a word that is too wide takes more room than its place
            EXPECT_EQ(label.geometry(), row.place);
        }
    }

    static void expectOthers(const forms::Form &form, const std::vector<Row> &rows)
    {
        for (const Row &row : rows) {
            EXPECT_EQ(controlOf<QWidget>(form, row.name).geometry(), row.place) << row.name.toStdString();
            if (!row.caption.isEmpty()) {
                EXPECT_EQ(controlOf<forms::CommandButton>(form, row.name).Caption(), row.caption);
            }
        }
    }

    // Left of the controls the main screen's tile shows, and not the colour beneath it.
    void expectTiled(forms::Form &form)
    {
        const QRect strip(0, 0, 4, 90);
        const QImage tile =
            portada->Teja().imagen.toImage().convertToFormat(QImage::Format_RGB32).copy(strip);
        QImage bare(strip.size(), QImage::Format_RGB32);
        bare.fill(QColor(0, 0, 64));
        ASSERT_NE(tile, bare);
        EXPECT_EQ(pictureOf(form).convertToFormat(QImage::Format_RGB32).copy(strip), tile);
    }
};

} // namespace

TEST_F(DisposicionDePasosTest, TheFirstStepIsLaidOutAsDesigned)
{
    begin();
    const maintenance::Configuracion1 form(*M, *portada);
    expectLabels(form,
        {
            { u"TXT_Escoge"_s, designPlace(120, 120, 3540, 210), Cyan, Plain,
                u"Escoge SISTEMA y EMULADOR para añadir..."_s },
            { u"TXT_Sistemas"_s, designPlace(120, 480, 795, 210), Green, Plain, u"Sistemas..."_s },
            { u"TXT_Emuladores"_s, designPlace(1920, 480, 975, 210), Green, Plain, u"Emuladores..."_s },
            { u"TXT_Sevaaañadir"_s, designPlace(120, 3240, 1185, 210), Green, Plain, u"Se va a añadir..."_s },
            { u"Texto5"_s, designPlace(120, 3480, 3120, 225), White, Plain, u"Alfa -> a1"_s },
            { u"TXT_Aceptar"_s, designPlace(75, 4400, 615, 210), Green, Plain, u"Aceptar"_s },
            { u"TXT_Volver"_s, designPlace(855, 4400, 720, 210), Green, Plain, u"Volver"_s },
            { u"TXT_Leyenda"_s, designPlace(1920, 3855, 900, 210), Cyan, Plain, u"Leyenda"_s },
            { u"Texto8"_s, designPlace(1845, 4110, 135, 210), Cyan, Plain, u"+"_s },
            { u"TXT_Añadir"_s, designPlace(1995, 4110, 660, 210), Green, Plain, u"Añadir"_s },
            { u"Texto10"_s, designPlace(1845, 4335, 135, 210), Cyan, Plain, u"-"_s },
            { u"TXT_Borrar"_s, designPlace(1995, 4335, 660, 210), Green, Plain, u"Borrar"_s },
            { u"Texto12"_s, designPlace(2700, 4110, 195, 210), Cyan, Plain, u"E"_s },
            { u"TXT_Extensiones"_s, designPlace(2940, 4110, 645, 210), Green, Plain, u"Extens."_s },
            { u"Texto14"_s, designPlace(2700, 4335, 195, 210), Cyan, Plain, u"W"_s },
            { u"TXT_Webs"_s, designPlace(2940, 4335, 645, 210), Green, Plain, u"Webs"_s },
        });
    expectOthers(form,
        {
            { u"Mas1"_s, designPlace(120, 720, 255, 255), u"+"_s },
            { u"Menos1"_s, designPlace(380, 720, 255, 255), u"-"_s },
            { u"Boton_E"_s, designPlace(630, 720, 255, 255), u"E"_s },
            { u"Boton_W1"_s, designPlace(890, 720, 255, 255), u"W"_s },
            { u"Boton_Mas2"_s, designPlace(1920, 720, 255, 255), u"+"_s },
            { u"Boton_Menos2"_s, designPlace(2180, 720, 255, 255), u"-"_s },
            { u"Boton_W2"_s, designPlace(2430, 720, 255, 255), u"W"_s },
            { u"Lista1"_s, designPlace(120, 1080, 1695, 2010) },
            { u"Lista2"_s, designPlace(1920, 1080, 1695, 2010) },
            { u"Aceptar2"_s, designPlace(180, 3960, 465, 405) },
            { u"Flecha2"_s, designPlace(900, 3960, 615, 375) },
            { u"Shape1"_s, designPlace(1800, 3960, 1815, 615) },
        });
    EXPECT_EQ(form.size(), QSize(249, 313));
    EXPECT_EQ(form.Control(u"Aceptar1"_s), form.Control(u"Aceptar2"_s));
    EXPECT_EQ(form.Control(u"Flecha1"_s), form.Control(u"Flecha2"_s));
}

TEST_F(DisposicionDePasosTest, TheSecondStepIsLaidOutAsDesigned)
{
    begin();
    forms::FormHolder<dialogs::Examinar> none([] { return std::unique_ptr<dialogs::Examinar>(); });
    const maintenance::Configuracion2 form(*M, {}, none, u"Alfa"_s, u"a1"_s);
    expectLabels(form,
        {
            { u"TXT_CFGDe"_s, designPlace(120, 120, 1695, 210), Cyan, Bold, u"CONFIGURACION DE..."_s },
            { u"Texto2"_s, designPlace(120, 360, 3120, 225), White, Plain, u"Alfa -> a1"_s },
            { u"TXT_CFGGeneral"_s, designPlace(720, 720, 2100, 210), Cyan, Bold, u"CONFIGURACION GENERAL"_s },
            { u"TXT_EXE"_s, designPlace(240, 1080, 2445, 210), Green, Plain,
                u"Archivo ejecutable del emulador..."_s },
            { u"TXT_ROM"_s, designPlace(240, 1760, 1830, 210), Green, Plain,
                u"Directorio de los juegos..."_s },
            { u"TXT_IMG"_s, designPlace(240, 2470, 2700, 210), Green, Plain,
                u"Directorio de capturas de imágenes..."_s },
            { u"TXT_PAR"_s, designPlace(240, 3120, 1815, 210), Green, Plain, u"Parámetros necesarios..."_s },
            { u"Texto7"_s, designPlace(260, 3465, 285, 210), Cyan, Plain, u"EXE"_s },
            { u"Texto8"_s, designPlace(1880, 3480, 345, 210), Cyan, Plain, u"ROM"_s },
            { u"TXT_SoloEXE"_s, designPlace(400, 3870, 3135, 255), Green, Plain,
                u"Cargar SOLO el exe del emu. sin parámetros"_s },
            { u"TXT_Especial"_s, designPlace(240, 4200, 3255, 210), Cyan, Bold,
                u"CASOS ESPECIALES (Arcade, Neo-geo...)"_s },
            { u"TXT_1DIR"_s, designPlace(240, 4520, 2895, 210), Bright, Plain,
                u"¿Tienes cada juego en un directorio?"_s },
            { u"TXT_Comp"_s, designPlace(240, 4800, 2895, 495), Bright, Plain,
                u"¿Tienes todas las ROMS comprimidas en un directorio?"_s },
            { u"TXT_AutoComp"_s, designPlace(240, 5280, 2850, 450), Dim, Plain,
                u"¿El emulador puede manejar ROMS comprimidas?"_s },
            { u"TXT_Grabar"_s, designPlace(85, 6430, 510, 210), Green, Plain, u"Grabar"_s },
            { u"TXT_Volver"_s, designPlace(720, 6430, 720, 210), Green, Plain, u"Volver"_s },
            { u"TXT_Aviso"_s, designPlace(1640, 5880, 1935, 735), Cyan, Plain, {} },
        });
    expectOthers(form,
        {
            { u"Shape1"_s, designPlace(120, 840, 3495, 2895) },
            { u"Casilla1"_s, designPlace(240, 1320, 2175, 285) },
            { u"Boton1"_s, designPlace(2520, 1320, 975, 300), u"TXT_Examinar"_s }, // the load's word
            { u"Casilla2"_s, designPlace(240, 2000, 2175, 285) },
            { u"Boton2"_s, designPlace(2520, 2000, 975, 300), u"TXT_Examinar"_s },
            { u"Casilla3"_s, designPlace(240, 2710, 2175, 285) },
            { u"Boton3"_s, designPlace(2520, 2710, 975, 300), u"TXT_Examinar"_s },
            { u"Casilla4"_s, designPlace(580, 3360, 1215, 285) },
            { u"Casilla5"_s, designPlace(2280, 3360, 1215, 285) },
            { u"Check4"_s, designPlace(120, 3840, 255, 255) },
            { u"Shape2"_s, designPlace(120, 4320, 3495, 1455) },
            { u"Check1"_s, designPlace(3240, 4520, 255, 255) },
            { u"Check2"_s, designPlace(3240, 4920, 255, 195) },
            { u"Check3"_s, designPlace(3240, 5280, 255, 255) },
            { u"Disco1"_s, designPlace(120, 5930, 435, 435) },
            { u"Flecha1"_s, designPlace(750, 5970, 615, 375) },
            { u"Shape3"_s, designPlace(1560, 5880, 2055, 735) },
        });
    EXPECT_EQ(form.size(), QSize(248, 448));
    EXPECT_FALSE(controlOf<QWidget>(form, u"Check3"_s).isEnabled());
    EXPECT_EQ(form.Control(u"Disco2"_s), form.Control(u"Disco1"_s));
    EXPECT_EQ(form.Control(u"Flecha2"_s), form.Control(u"Flecha1"_s));
}

TEST_F(DisposicionDePasosTest, BothStepsAndTheBrowserStandOnTheTile)
{
    begin();
    configurePair(u"Alfa"_s, u"a1"_s, [this](forms::Form &second) {
        expectTiled(second);
        atModal(u"Examinar"_s, [this](forms::Form &browser) {
            expectTiled(browser);
            click(controlOf<QWidget>(browser, u"Flecha2"_s));
        });
        click(controlOf<QWidget>(second, u"Boton1"_s));
    });
    configure([this](forms::Form &first) { expectTiled(first); });
}
