// Launching: the gestures that play, and what the pipeline asks of the screen.
// Controls: JugarB1, and the keyboard and double clicks of the list, the combos, the title, the television
// and the tip.

#include "mainscreen/portada.h"

#include "core/rutas.h"

#include "forms/yield.h"

#include "host/focus.h"
#include "host/letters.h"
#include "host/windows.h"

#include "launch/jugar.h"

namespace mainscreen {

void Portada::ConectaLanzamiento()
{
    const auto conEnter = [this](int tecla) {
        if (tecla == forms::EnterKey)
            Jugar();
    };
    JugarB1->Release = [this] {
        forms::DoEvents();
        Jugar();
    };
    Lista1->DblClick = [this] { Jugar(); };
    IMGDescripcionLarga->DblClick = [this] { Jugar(); };
    Lista1->KeyDown = [this](int tecla) { Lista1_KeyDown(tecla); };
    for (forms::Image *imagen : { Graf_TV, IMGDescripcionLarga, Titulo1 }) {
        imagen->KeyDown = conEnter;
    }
    Titulo1->setFocusPolicy(Qt::ClickFocus);
    IMGDescripcionLarga->setFocusPolicy(Qt::ClickFocus);
    KeyEnter = [this] { Jugar(); };
}

void Portada::Jugar()
{
    launch::Jugar(M, *this);
    host::takeFreeFocus(*this);
}

QString Portada::TextoCombo2() const
{
    return Combo2->Text();
}

int Portada::Sistema() const
{
    return Combo1->ItemData(Combo1->ListIndex());
}

int Portada::Emulador() const
{
    return Combo2->ItemData(Combo2->ListIndex());
}

int Portada::EntradasLista1() const
{
    return Lista1->ListCount();
}

QString Portada::TextoLista1() const
{
    return Lista1->Text();
}

void Portada::MuestraCargando()
{
    TXT_Info->SetForeColor(forms::colourFromNumber(0xC0));
    PonInfo(host::upper(M.TXT_Cargando));
    TXT_Info->Redraw();
}

void Portada::InfoEnNegro()
{
    TXT_Info->SetForeColor(Qt::black);
}

void Portada::InfoEnColorDelSistema()
{
    TXT_Info->SetForeColor(forms::colourFromNumber(0x80000012));
}

void Portada::MuestraNingunaROM()
{
    const bool pareja = M.VerBaseDeDatos == 0 && !Combo1->Text().isEmpty() && !Combo2->Text().isEmpty();
    const QString ruta = pareja ? core::RutaDeLinea(M.Cat_ROM(Sistema(), Emulador() + 1)) : QString();
    const QChar unidad = core::UnidadQueFalta(ruta);
    PonInfo(unidad.isNull() ? M.TXT_NingunaROM : M.Palabras.Zem_SinUnidad.arg(unidad));
}

void Portada::SeleccionaEnLista1(const QString &texto)
{
    Lista1->SetText(texto);
}

void Portada::EnfocaLista1()
{
    Lista1->setFocus();
}

void Portada::Cede(int descriptor, int milisegundos)
{
    forms::WaitForEvents(descriptor, milisegundos);
}

void Portada::CierraVentana(const QString &titulo)
{
    host::closeWindowTitled(titulo);
}

void Portada::Aviso(const QString &titulo, const QString &texto)
{
    Mensaje(4, texto, titulo, M.TXT_Aceptar, M.TXT_Volver, QString());
}

} // namespace mainscreen
