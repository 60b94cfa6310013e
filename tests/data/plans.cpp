#include "plans.h"

#include "forms/label.h"
#include "forms/shape.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace plans {

namespace {

Planned textOf(const QString &key, Kind kind, const forms::Place &place)
{
    return { key, kind, place, { key } };
}

Planned without(const QString &control, const forms::Place &place, Kind kind = Kind::Other)
{
    return { control, kind, place, {} };
}

// Of the legend only the frame is given; its words stand in two columns, each behind its sign.
Screen configuracion1()
{
    return { "Configuracion1", 3735, 4695, u"TXT_TituloCFG1"_s,
        {
            textOf(u"TXT_Escoge"_s, Kind::Label, { 120, 120, 3540, 210 }),
            textOf(u"TXT_Sistemas"_s, Kind::Label, { 120, 480, 795, 210 }),
            textOf(u"TXT_Emuladores"_s, Kind::Label, { 1920, 480, 975, 210 }),
            without(u"Mas1"_s, { 120, 720, 255, 255 }),
            without(u"Boton_Mas2"_s, { 1920, 720, 255, 255 }),
            without(u"Lista1"_s, { 120, 1080, 1695, 2010 }),
            without(u"Lista2"_s, { 1920, 1080, 1695, 2010 }),
            textOf(u"TXT_Sevaaañadir"_s, Kind::Label, { 120, 3240, 1185, 210 }),
            without(u"Texto5"_s, { 120, 3480, 3120, 225 }),
            without(u"Aceptar2"_s, { 180, 3960, 465, 405 }),
            without(u"Flecha2"_s, { 900, 3960, 615, 375 }),
            textOf(u"TXT_Aceptar"_s, Kind::Centred, { 75, 4400, 615, 210 }),
            textOf(u"TXT_Volver"_s, Kind::Centred, { 855, 4400, 720, 210 }),
            without(u"Shape1"_s, { 1800, 3960, 1815, 615 }, Kind::Frame),
            textOf(u"TXT_Leyenda"_s, Kind::Label, { 1920, 3855, 900, 210 }),
            without(u"Texto8"_s, { 1890, 4110, 105, 210 }),
            textOf(u"TXT_Añadir"_s, Kind::Label, { 2010, 4110, 660, 210 }),
            without(u"Texto10"_s, { 1890, 4335, 105, 210 }),
            textOf(u"TXT_Borrar"_s, Kind::Label, { 2010, 4335, 660, 210 }),
            without(u"Texto12"_s, { 2745, 4110, 150, 210 }),
            textOf(u"TXT_Extensiones"_s, Kind::Label, { 2910, 4110, 660, 210 }),
            without(u"Texto14"_s, { 2745, 4335, 150, 210 }),
        } };
}

Screen configuracion2()
{
    return { "Configuracion2", 3720, 6720, u"TXT_TituloCFG2"_s,
        {
            textOf(u"TXT_CFGDe"_s, Kind::Bold, { 120, 120, 1695, 210 }),
            without(u"Texto2"_s, { 120, 360, 3120, 225 }),
            textOf(u"TXT_CFGGeneral"_s, Kind::Bold, { 720, 720, 2100, 210 }),
            without(u"Shape1"_s, { 120, 840, 3495, 2895 }, Kind::Frame),
            textOf(u"TXT_EXE"_s, Kind::Label, { 240, 1080, 2445, 210 }),
            without(u"Casilla1"_s, { 240, 1320, 2175, 285 }),
            { u"Boton1"_s, Kind::Button, { 2520, 1320, 975, 300 }, { u"TXT_Examinar"_s } },
            textOf(u"TXT_ROM"_s, Kind::Label, { 240, 1760, 1830, 210 }),
            without(u"Casilla2"_s, { 240, 2000, 2175, 285 }),
            { u"Boton2"_s, Kind::Button, { 2520, 2000, 975, 300 }, { u"TXT_Examinar"_s } },
            textOf(u"TXT_IMG"_s, Kind::Label, { 240, 2470, 2700, 210 }),
            without(u"Casilla3"_s, { 240, 2710, 2175, 285 }),
            { u"Boton3"_s, Kind::Button, { 2520, 2710, 975, 300 }, { u"TXT_Examinar"_s } },
            textOf(u"TXT_PAR"_s, Kind::Label, { 240, 3120, 1815, 210 }),
            without(u"Texto7"_s, { 260, 3465, 285, 210 }),
            without(u"Casilla4"_s, { 580, 3360, 1215, 285 }),
            without(u"Texto8"_s, { 1880, 3480, 345, 210 }),
            without(u"Casilla5"_s, { 2280, 3360, 1215, 285 }),
            without(u"Check4"_s, { 120, 3840, 255, 255 }),
            textOf(u"TXT_SoloEXE"_s, Kind::Label, { 400, 3870, 3135, 255 }),
            textOf(u"TXT_Especial"_s, Kind::Bold, { 240, 4200, 3255, 210 }),
            without(u"Shape2"_s, { 120, 4320, 3495, 1455 }, Kind::Frame),
            textOf(u"TXT_1DIR"_s, Kind::Label, { 240, 4520, 2895, 210 }),
            without(u"Check1"_s, { 3240, 4520, 255, 255 }),
            textOf(u"TXT_Comp"_s, Kind::Label, { 240, 4800, 2895, 495 }),
            without(u"Check2"_s, { 3240, 4920, 255, 195 }),
            textOf(u"TXT_AutoComp"_s, Kind::Label, { 240, 5280, 2850, 450 }),
            without(u"Check3"_s, { 3240, 5280, 255, 255 }),
            without(u"Disco1"_s, { 120, 5930, 435, 435 }),
            without(u"Flecha1"_s, { 750, 5970, 615, 375 }),
            textOf(u"TXT_Grabar"_s, Kind::Centred, { 85, 6430, 510, 210 }),
            textOf(u"TXT_Volver"_s, Kind::Centred, { 720, 6430, 720, 210 }),
            without(u"Shape3"_s, { 1560, 5880, 2055, 735 }, Kind::Frame),
            { u"TXT_Aviso"_s, Kind::Label, { 1640, 5880, 1935, 735 },
                { u"TXT_AvisoTipo0"_s, u"TXT_AvisoTipo1"_s, u"TXT_AvisoNuevo"_s } },
        } };
}

// As wide as it is for picking a directory, without the list of files.
Screen examinar()
{
    return { "Examinar", 2070, 3330, u"TXT_Examinar"_s,
        {
            without(u"Discos"_s, { 120, 120, 1815, 315 }),
            without(u"Directorios"_s, { 120, 600, 1815, 1890 }),
            without(u"Aceptar2"_s, { 180, 2620, 465, 405 }),
            without(u"Flecha2"_s, { 790, 2640, 615, 375 }),
            textOf(u"TXT_Aceptar"_s, Kind::Centred, { 90, 3080, 585, 210 }),
            textOf(u"TXT_Volver"_s, Kind::Centred, { 800, 3075, 720, 210 }),
        } };
}

QWidget *labelOf(Kind kind, QWidget *parent)
{
    auto *label = new forms::Label(parent);
    label->setFont(forms::arial(8.25, kind == Kind::Bold));
    if (kind == Kind::Centred)
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

QWidget *controlOf(Kind kind, QWidget *parent)
{
    switch (kind) {
    case Kind::Label:
    case Kind::Centred:
    case Kind::Bold:
        return labelOf(kind, parent);
    case Kind::Frame:
        return new forms::Shape(Qt::black, parent);
    case Kind::Button:
        return new QPushButton(parent);
    case Kind::Other:
        break;
    }
    return new QWidget(parent);
}

} // namespace

void PrintTo(const Screen &screen, std::ostream *out)
{
    *out << screen.name;
}

const std::vector<Screen> &screens()
{
    static const std::vector<Screen> planned { configuracion1(), configuracion2(), examinar() };
    return planned;
}

std::unique_ptr<QWidget> built(const Screen &screen)
{
    auto form = std::make_unique<QWidget>();
    form->setFixedSize(forms::pixels(screen.width), forms::pixels(screen.height));
    for (const Planned &planned : screen.controls) {
        QWidget *control = controlOf(planned.kind, form.get());
        control->setObjectName(planned.control);
        if (auto *label = dynamic_cast<forms::Label *>(control))
            label->SetPlace(planned.place);
        else
            forms::move(*control, planned.place);
    }
    return form;
}

} // namespace plans
