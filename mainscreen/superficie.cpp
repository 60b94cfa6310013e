// The surface: where the focus goes when a picture is pressed, the tip that hides, the pointer.

#include "mainscreen/portada.h"

namespace mainscreen {

void Portada::ConectaSuperficie()
{
    for (forms::PictureButton *boton : { JugarB1, BotonA2, BotonB2, BotonC2, BotonD2, Boton1b, Boton2b,
             Boton3b, Boton4b, Boton5b, Boton6b, FlechaE2, Edit2, BlocDeNotas2 })
        boton->Press = [this] { Lista1->setFocus(); };
    Menos2b->Press = [this] { Combo2->setFocus(); };
    const auto escondeConsejo = [this](const forms::Mouse &) { IMGDescripcionLarga->hide(); };
    MouseMove = escondeConsejo;
    for (forms::Image *imagen : { Graf_TV, Graf_Imagen })
        imagen->MouseMove = escondeConsejo;
}

void Portada::PonPuntero(Puntero puntero)
{
    if (puntero == PunteroNormal)
        unsetCursor();
    else
        setCursor(Qt::WaitCursor);
}

void Portada::PonInfo(const QString &texto)
{
    TXT_Info->SetCaption(texto);
}

void Portada::PonInfoRoms(const QString &texto)
{
    TXT_InfoRoms->SetCaption(texto);
}

} // namespace mainscreen
