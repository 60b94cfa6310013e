// The capture as a magnifying glass. Controls: Graf_Imagen, the hot spots X2 to X5 and OFF with their lamps,
// and Menu_Graf_Imagen. State: ZoomActual, 0 while the set is off. The menu's OFF differs from the switch's:
// it hides the capture whatever it shows, and leaves the pointer.

#include "mainscreen/portada.h"

#include "forms/pictures.h"

#include <array>

using namespace Qt::StringLiterals;

namespace mainscreen {

namespace {

// Twips. The factors are names rather than ratios.
struct Tamaño {
    int zoom;
    int ancho;
    int alto;
    int lampara; // left edge of Boton
};

constexpr std::array<Tamaño, 4> Tamaños { {
    { 2, 3495, 2835, 680 },
    { 3, 4335, 3315, 930 },
    { 4, 5035, 3780, 1180 },
    { 5, 5760, 4290, 1440 },
} };

} // namespace

void Portada::ConectaZoom()
{
    Graf_Imagen->MouseDown = [this](const forms::Mouse &raton) { Graf_Imagen_MouseDown(raton.button); };
    Graf_Imagen->MouseUp = [this](const forms::Mouse &) { Aumento.hide(); };
    X2->Click = Menu_ZoomX2->Click = [this] { EligeZoom(2); };
    X3->Click = Menu_ZoomX3->Click = [this] { EligeZoom(3); };
    X4->Click = Menu_ZoomX4->Click = [this] { EligeZoom(4); };
    X5->Click = Menu_ZoomX5->Click = [this] { EligeZoom(5); };
    OFF->Click = [this] { OFF_Click(); };
    Menu_OFF->Click = [this] { Menu_OFF_Click(); };
    PonLupa();
}

void Portada::Graf_Imagen_MouseDown(int boton)
{
    if (boton == forms::MiddleButton)
        return;
    if (boton == forms::RightButton) {
        if (!Aumento.isVisible())
            Menu_Graf_Imagen->Popup();
        return;
    }
    for (const Tamaño &tamaño : Tamaños) {
        if (M.ZoomActual == tamaño.zoom)
            Aumento.Muestra(tamaño.ancho, tamaño.alto, *this);
    }
}

void Portada::EligeZoom(int zoom)
{
    PonLupa();
    Graf_Imagen->show();
    M.ZoomActual = zoom;
    BotonARR->hide();
    BotonABJ->hide();
    Boton->show();
    for (const Tamaño &tamaño : Tamaños) {
        if (tamaño.zoom == zoom)
            forms::move(*Boton, { tamaño.lampara, 3000, 195, 120 });
    }
    AvisaDelZoom();
}

void Portada::OFF_Click()
{
    ApagaTelevisor();
    Graf_Imagen->setCursor(Qt::ArrowCursor);
    if (M.Lista1Cambio != 1)
        Graf_Imagen->hide();
}

void Portada::Menu_OFF_Click()
{
    ApagaTelevisor();
    Graf_Imagen->hide();
}

void Portada::ApagaTelevisor()
{
    M.ZoomActual = 0;
    Aumento.hide(); // hidden under the held button, the capture would never see the release
    Boton->hide();
    BotonABJ->show();
    BotonARR->show();
    AvisaDelZoom();
}

void Portada::PonLupa()
{
    constexpr int Lado = 24; // pixels
    constexpr int Foco = 9; // middle of the glass
    Graf_Imagen->setCursor(
        QCursor(forms::artwork(u"Lupa"_s, { Lado, Lado }, devicePixelRatioF()), Foco, Foco));
}

} // namespace mainscreen
