// Where every control of the second step stands: one table a kind, in twips, in the order of the screen.

#include "maintenance/configuracion2.h"
#include "maintenance/montaje.h"

#include <array>

namespace maintenance {

namespace {

using C = Configuracion2;

constexpr int AltoSinEspeciales = 5420; // of the whole window

const FilaMarco<C> Marcos[] = {
    { &C::Shape1, u"Shape1", { 120, 840, 3495, 2895 }, &C::TXT_CFGGeneral },
    { &C::Shape2, u"Shape2", { 120, 4320, 3495, 1455 }, &C::TXT_Especial },
    { &C::Shape3, u"Shape3", { 1560, 5880, 2055, 735 }, nullptr },
};

const FilaEtiqueta<C> Etiquetas[] = {
    { &C::TXT_CFGDe, u"TXT_CFGDe", { 120, 120, 1695, 210 }, u"CONFIGURACION DE...", Cian, Letra::Negrita },
    { &C::Texto2, u"Texto2", { 120, 360, 3120, 225 }, u"", Blanco },
    { &C::TXT_CFGGeneral, u"TXT_CFGGeneral", { 720, 720, 2100, 210 }, u"CONFIGURACION GENERAL", Cian,
        Letra::Negrita },
    { &C::TXT_EXE, u"TXT_EXE", { 240, 1080, 2445, 210 }, u"Archivo ejecutable del emulador...", Verde },
    { &C::TXT_ROM, u"TXT_ROM", { 240, 1760, 1830, 210 }, u"Directorio de los juegos...", Verde },
    { &C::TXT_IMG, u"TXT_IMG", { 240, 2470, 2700, 210 }, u"Directorio de capturas de imágenes...", Verde },
    { &C::TXT_PAR, u"TXT_PAR", { 240, 3120, 1815, 210 }, u"Parámetros necesarios...", Verde },
    { &C::Texto7, u"Texto7", { 260, 3465, 285, 210 }, u"EXE", Cian },
    { &C::Texto8, u"Texto8", { 1880, 3480, 345, 210 }, u"ROM", Cian },
    { &C::TXT_SoloEXE, u"TXT_SoloEXE", { 400, 3870, 3135, 255 },
        u"Cargar SOLO el exe del emu. sin parámetros", Verde },
    { &C::TXT_Especial, u"TXT_Especial", { 240, 4200, 3255, 210 }, u"CASOS ESPECIALES (Arcade, Neo-geo...)",
        Cian, Letra::Negrita },
    { &C::TXT_1DIR, u"TXT_1DIR", { 240, 4520, 2895, 210 }, u"¿Tienes cada juego en un directorio?", Blanco },
    { &C::TXT_Comp, u"TXT_Comp", { 240, 4800, 2895, 495 },
        u"¿Tienes todas las ROMS comprimidas en un directorio?", Blanco },
    { &C::TXT_AutoComp, u"TXT_AutoComp", { 240, 5280, 2850, 450 },
        u"¿El emulador puede manejar ROMS comprimidas?", Blanco },
    { &C::TXT_Grabar, u"TXT_Grabar", { 85, 6430, 510, 210 }, u"Grabar", Verde, Letra::Normal,
        Alineacion::Centro },
    { &C::TXT_Volver, u"TXT_Volver", { 720, 6430, 720, 210 }, u"Volver", Verde, Letra::Normal,
        Alineacion::Centro },
    { &C::TXT_Aviso, u"TXT_Aviso", { 1640, 5880, 1935, 735 }, u"", Cian, Letra::Normal, Alineacion::EnMedio },
};

const FilaControl<C, forms::TextBox> Casillas[] = {
    { &C::Casilla1, u"Casilla1", { 240, 1320, 2175, 285 } },
    { &C::Casilla2, u"Casilla2", { 240, 2000, 2175, 285 } },
    { &C::Casilla3, u"Casilla3", { 240, 2710, 2175, 285 } },
    { &C::Casilla4, u"Casilla4", { 580, 3360, 1215, 285 } },
    { &C::Casilla5, u"Casilla5", { 2280, 3360, 1215, 285 } },
};

const FilaOrden<C> Ordenes[] = {
    { &C::Boton1, u"Boton1", { 2520, 1320, 975, 300 }, u"Examinar..." },
    { &C::Boton2, u"Boton2", { 2520, 2000, 975, 300 }, u"Examinar..." },
    { &C::Boton3, u"Boton3", { 2520, 2710, 975, 300 }, u"Examinar..." },
};

const FilaControl<C, forms::CheckBox> Cuadros[] = {
    { &C::Check4, u"Check4", { 120, 3840, 255, 255 } },
    { &C::Check1, u"Check1", { 3240, 4520, 255, 255 } },
    { &C::Check2, u"Check2", { 3240, 4920, 255, 195 } },
    { &C::Check3, u"Check3", { 3240, 5280, 255, 255 } },
};

// The arrow at rest has the name that elsewhere is that of the pressed one.
const FilaPareja<C> Parejas[] = {
    { &C::Disco1, u"Disco1", u"Disco2", { 120, 5930, 435, 435 }, u"Disco1", u"Disco2" },
    { &C::Flecha1, u"Flecha1", u"Flecha2", { 750, 5970, 615, 375 }, u"Flecha2", u"Flecha1" },
};

void muevePareja(forms::PictureButton &pareja, int arriba)
{
    forms::Place lugar = forms::placeOf(pareja);
    lugar.top = arriba;
    pareja.SetPlace(lugar);
}

} // namespace

void Configuracion2::Monta()
{
    SetBackColour(AzulNoche);
    for (const FilaMarco<C> &fila : Marcos)
        monta(*this, fila);
    for (const FilaEtiqueta<C> &fila : Etiquetas)
        monta(*this, fila);
    for (const FilaMarco<C> &fila : Marcos)
        titula(*this, fila);
    for (const FilaControl<C, forms::TextBox> &fila : Casillas)
        coloca(*this, fila, new forms::TextBox(this));
    for (const FilaOrden<C> &fila : Ordenes)
        monta(*this, fila);
    for (const FilaControl<C, forms::CheckBox> &fila : Cuadros)
        coloca(*this, fila, new forms::CheckBox(this));
    for (const FilaPareja<C> &fila : Parejas)
        monta(*this, fila);

    const std::array<QWidget *, 14> orden { Casilla1, Boton1, Casilla2, Boton2, Casilla3, Boton3, Casilla4,
        Casilla5, Check4, Check1, Check2, Check3, Disco1, Flecha1 };
    for (size_t i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

// A system that is known and no arcade: the window ends above what it cuts off, TXT_AutoComp and Check3.
void Configuracion2::QuitaEspeciales()
{
    for (QWidget *control :
        std::initializer_list<QWidget *> { TXT_Especial, Shape2, TXT_1DIR, TXT_Comp, Check1, Check2 })
        control->hide();
    for (forms::CheckBox *marca : { Check1, Check2, Check3 })
        marca->SetValue(0);
    SetOuterHeight(AltoSinEspeciales);
    muevePareja(*Disco1, 4300);
    muevePareja(*Flecha1, 4300);
    TXT_Grabar->SetPlace({ 85, 4780, 510, 210 });
    TXT_Volver->SetPlace({ 720, 4780, 720, 210 });
    forms::move(*Shape3, { 1560, 4200, 2055, 735 });
    TXT_Aviso->SetPlace({ 1640, 4200, 1935, 735 });
}

} // namespace maintenance
