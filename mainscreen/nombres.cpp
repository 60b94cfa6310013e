// The names under which screen readers know the controls, in the language of the screen: the word beside a
// control, or one of its own where it stands without any. Those show their name and their key as a tip.

#include "mainscreen/portada.h"

#include "forms/assistance.h"
#include "forms/plaintext.h"

#include <array>

namespace mainscreen {

namespace {

std::array<std::pair<forms::Image *, int>, 4> puntosDeZoom(const Portada &portada)
{
    return { { { portada.X2, 2 }, { portada.X3, 3 }, { portada.X4, 4 }, { portada.X5, 5 } } };
}

// The lamp lies over the mark that it lights.
void ponConsejoDeLampara(const Portada &portada)
{
    for (const auto &[punto, zoom] : puntosDeZoom(portada)) {
        if (punto->geometry() == portada.Boton->geometry())
            portada.Boton->setToolTip(punto->toolTip());
    }
}

} // namespace

void Portada::NombraControles()
{
    const auto sinTecla = [](QString entrada) { return entrada.remove(u'&'); };
    const core::Palabras &palabras = M.Palabras;
    const std::pair<QWidget *, QString> nombres[] = {
        { Lista1, palabras.Zem_Lista1 },
        { BotonA2, TXT_Describir->Caption() },
        { BotonB2, TXT_Borrar->Caption() },
        { Menos2a, palabras.Zem_Menos2a },
        { Combo1, palabras.Zem_Combo1 },
        { Menos2b, palabras.Zem_Menos2b },
        { Combo2, palabras.Zem_Combo2 },
        { BotonC2, TXT_VerAyuda->Caption() },
        { BotonD2, TXT_VerConfig->Caption() },
        { JugarB1, M.TXT_Jugar },
        { Titulo1, palabras.Zem_Titulo1 },
        { Graf_TV, palabras.Zem_Graf_TV },
        { Graf_Imagen, palabras.Zem_Captura },
        { X2, sinTecla(Menu_ZoomX2->Caption()) },
        { X3, sinTecla(Menu_ZoomX3->Caption()) },
        { X4, sinTecla(Menu_ZoomX4->Caption()) },
        { X5, sinTecla(Menu_ZoomX5->Caption()) },
        { OFF, palabras.Zem_OFF },
        { WEB1, palabras.Zem_WEB1 },
        { WEB2, palabras.Zem_WEB2 },
        { Boton1b, TXT_Configurar->Caption() },
        { Boton2b, TXT_Opciones->Caption() },
        { Boton3b, TXT_Utilidades->Caption() },
        { Boton4b, TXT_AcercaDe->Caption() },
        { Boton5b, TXT_Ayuda->Caption() },
        { Boton6b, TXT_FAQ->Caption() },
        { Check1, M.TXT_BaseDeDatos },
        { E1, palabras.Zem_E1 },
        { D1, palabras.Zem_D1 },
        { Flecha2, palabras.Zem_Flecha2 },
        { Editor, palabras.Zem_Editor },
        { FlechaE2, palabras.Zem_FlechaE2 },
        { Edit2, palabras.Zem_Edit2 },
        { BlocDeNotas2, palabras.Zem_BlocNotas2 },
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(nombre);
    for (QWidget *control : std::initializer_list<QWidget *> {
             Menos2a, Menos2b, Check1, E1, D1, Flecha2, X2, X3, X4, X5, OFF, FlechaE2, Edit2, BlocDeNotas2 })
        forms::SetTipOfName(*control, TeclaDe(*control));
    ponConsejoDeLampara(*this);
    Graf_Imagen->setAccessibleDescription(palabras.Zem_Espacio);
    for (QWidget *web : std::initializer_list<QWidget *> { WEB1, WEB2 })
        web->setAccessibleDescription(TeclaDe(*web));
}

// What is drawn into the set and what else no class of the toolkit stands for.
void Portada::ConectaLectores()
{
    for (const auto &[punto, zoom] : puntosDeZoom(*this))
        forms::SetAssistance(*punto,
            { QAccessible::RadioButton, [control = punto] { control->Click.raise(); },
                [this, tamaño = zoom] { return M.ZoomActual == tamaño; } });
    forms::SetAssistance(*OFF, { QAccessible::Button, [this] { OFF->Click.raise(); }, {} });
    forms::SetAssistance(*Graf_TV, { QAccessible::Grouping, {}, {} });
    // The enlarged capture stays until it is pressed again.
    forms::SetAssistance(*Graf_Imagen,
        { QAccessible::Button,
            [this] {
                if (Aumento.isVisible())
                    Aumento.hide();
                else
                    Graf_Imagen_MouseDown(forms::LeftButton);
            },
            {} });
    forms::SetAssistance(
        *Titulo1, { QAccessible::Button, [this] { Titulo1->MouseDown.raise({ forms::LeftButton }); }, {} });
    for (forms::Label *web : { WEB1, WEB2 })
        forms::SetAssistance(*web, { QAccessible::Link, [this, web] { PulsaWeb(*web); }, {} });
}

void Portada::AvisaDelZoom()
{
    ponConsejoDeLampara(*this);
    for (const auto &[punto, zoom] : puntosDeZoom(*this))
        forms::TellOfChoice(*punto);
}

} // namespace mainscreen
