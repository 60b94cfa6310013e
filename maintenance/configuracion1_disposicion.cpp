// Where every control of the first step stands: one table a kind, in twips, in the order of the screen.

#include "maintenance/configuracion1.h"
#include "maintenance/montaje.h"

namespace maintenance {

namespace {

using C = Configuracion1;

const FilaMarco<C> Marco { &C::Shape1, u"Shape1", { 1800, 3960, 1815, 615 }, &C::TXT_Leyenda };

const FilaEtiqueta<C> Etiquetas[] = {
    { &C::TXT_Escoge, u"TXT_Escoge", { 120, 120, 3540, 210 }, u"Escoge SISTEMA y EMULADOR para añadir...",
        Cian },
    { &C::TXT_Sistemas, u"TXT_Sistemas", { 120, 480, 795, 210 }, u"Sistemas...", Verde },
    { &C::TXT_Emuladores, u"TXT_Emuladores", { 1920, 480, 975, 210 }, u"Emuladores...", Verde },
    { &C::TXT_Sevaaañadir, u"TXT_Sevaaañadir", { 120, 3240, 1185, 210 }, u"Se va a añadir...", Verde },
    { &C::Texto5, u"Texto5", { 120, 3480, 3120, 225 }, u"", Blanco },
    { &C::TXT_Aceptar, u"TXT_Aceptar", { 75, 4400, 615, 210 }, u"Aceptar", Verde, Letra::Normal,
        Alineacion::Centro },
    { &C::TXT_Volver, u"TXT_Volver", { 855, 4400, 720, 210 }, u"Volver", Verde, Letra::Normal,
        Alineacion::Centro },
    { &C::TXT_Leyenda, u"TXT_Leyenda", { 1920, 3855, 900, 210 }, u"Leyenda", Cian },
    { &C::Texto8, u"Texto8", { 1845, 4110, 135, 210 }, u"+", Cian, Letra::Normal, Alineacion::Centro },
    { &C::TXT_Añadir, u"TXT_Añadir", { 1995, 4110, 660, 210 }, u"Añadir", Verde },
    { &C::Texto10, u"Texto10", { 1845, 4335, 135, 210 }, u"-", Cian, Letra::Normal, Alineacion::Centro },
    { &C::TXT_Borrar, u"TXT_Borrar", { 1995, 4335, 660, 210 }, u"Borrar", Verde },
    { &C::Texto12, u"Texto12", { 2700, 4110, 195, 210 }, u"E", Cian, Letra::Normal, Alineacion::Centro },
    { &C::TXT_Extensiones, u"TXT_Extensiones", { 2940, 4110, 645, 210 }, u"Extens.", Verde },
    { &C::Texto14, u"Texto14", { 2700, 4335, 195, 210 }, u"W", Cian, Letra::Normal, Alineacion::Centro },
    { &C::TXT_Webs, u"TXT_Webs", { 2940, 4335, 645, 210 }, u"Webs", Verde },
};

const FilaOrden<C> Ordenes[] = {
    { &C::Mas1, u"Mas1", { 120, 720, 255, 255 }, u"+" },
    { &C::Menos1, u"Menos1", { 380, 720, 255, 255 }, u"-" },
    { &C::Boton_E, u"Boton_E", { 630, 720, 255, 255 }, u"E" },
    { &C::Boton_W1, u"Boton_W1", { 890, 720, 255, 255 }, u"W" },
    { &C::Boton_Mas2, u"Boton_Mas2", { 1920, 720, 255, 255 }, u"+" },
    { &C::Boton_Menos2, u"Boton_Menos2", { 2180, 720, 255, 255 }, u"-" },
    { &C::Boton_W2, u"Boton_W2", { 2430, 720, 255, 255 }, u"W" },
};

const FilaControl<C, forms::ListBox> Listas[] = {
    { &C::Lista1, u"Lista1", { 120, 1080, 1695, 2010 } },
    { &C::Lista2, u"Lista2", { 1920, 1080, 1695, 2010 } },
};

const FilaPareja<C> Parejas[] = {
    { &C::Aceptar2, u"Aceptar2", u"Aceptar1", { 180, 3960, 465, 405 }, u"Aceptar2", u"Aceptar1" },
    { &C::Flecha2, u"Flecha2", u"Flecha1", { 900, 3960, 615, 375 }, u"Flecha2", u"Flecha1" },
};

} // namespace

void Configuracion1::Monta()
{
    SetBackColour(AzulNoche);
    monta(*this, Marco);
    for (const FilaEtiqueta<C> &fila : Etiquetas)
        monta(*this, fila);
    titula(*this, Marco);
    for (const FilaOrden<C> &fila : Ordenes)
        monta(*this, fila);
    for (const FilaControl<C, forms::ListBox> &fila : Listas)
        coloca(*this, fila, new forms::ListBox(this, true));
    for (const FilaPareja<C> &fila : Parejas)
        monta(*this, fila);
    // A list behind its own buttons.
    setTabOrder(Boton_W1, Lista1);
    setTabOrder(Lista1, Boton_Mas2);
}

} // namespace maintenance
