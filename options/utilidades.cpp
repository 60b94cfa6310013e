#include "options/utilidades.h"

#include "options/montaje.h"

#include "core/capturas.h"
#include "core/rutas.h"

#include "dialogs/etiqueta.h"

#include "forms/yield.h"

#include "host/paths.h"
#include "host/process.h"
#include "host/replacement.h"
#include "host/windows.h"

#include "launch/esperaremulador.h"
#include "launch/intenta.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

using namespace Qt::StringLiterals;

namespace options {

namespace {

constexpr int Ancho = 2130; // client area, twips
constexpr int Alto = 2220;

} // namespace

Utilidades::Utilidades(
    core::Modulo &modulo, mainscreen::Portada &portada, forms::FormHolder<Opciones1> &opciones1)
    : Form(u"Utilidades"_s, Ancho, Alto, Border::FixedWithCloseBox)
    , M(modulo)
    , P(portada)
{
    Monta();
    Boton1->Click = [this] { Boton1_Click(); };
    Flecha2->Release = [this] { Unload(); };
    montaje::PonFondo(*this, P.Teja());
    // Built and loaded, though not shown: what it takes for saved is of this moment.
    *opciones1;
}

void Utilidades::Monta()
{
    using namespace montaje;

    SetCaption(u"Utilidades"_s);
    TXT_Convertir = PonEtiqueta(*this, u"TXT_Convertir"_s, { 120, 120, 1935, 615 },
        u"Convertir a GIF las capturas de juegos del emulador escogido:"_s, CianClaro);
    Boton1 = PonBoton(*this, u"Boton1"_s, { 120, 840, 495, 315 }, u"OK"_s);
    PonSeparador(*this, u"Linea1"_s, 1320, Ancho);
    Flecha2 = PonPareja(*this, u"Flecha2"_s, u"Flecha1"_s, { 200, 1500, 615, 375 });
    TXT_Volver = dialogs::palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 120, 1920, 720, 210 });
}

void Utilidades::PonTextos()
{
    TXT_Volver->SetCaption(M.TXT_Volver);
    SetCaption(M.TXT_TituloUtil);
    TXT_Convertir->SetCaption(M.TXT_Convertir);
    Boton1->SetCaption(M.TXT_Si);
    Boton1->setAccessibleName(TXT_Convertir->Caption());
    Flecha2->setAccessibleName(TXT_Volver->Caption());
}

void Utilidades::Boton1_Click()
{
    if (P.Combo2->Text().isEmpty())
        return;
    const int sistema = P.Combo1->ItemData(P.Combo1->ListIndex());
    const int emulador = P.Combo2->ItemData(P.Combo2->ListIndex()) + 1;
    M.RutaTrabajo = core::RutaExigida(M.Cat_IMG(sistema, emulador));
    const QStringList capturas = core::CapturasPCX(M.RutaTrabajo);
    if (capturas.isEmpty()) {
        P.Mensaje(3, M.Msg_NingunPCX1, M.Msg_NingunPCX0, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
        return;
    }
    // Each would fail, and be lost where the converter has no say in that.
    if (host::liesInReadOnlyPlace(host::withClosingSeparator(M.RutaTrabajo) + capturas.front())) {
        mainscreen::AvisaDeSoloLectura(M, P, M.Palabras.Zem_SoloCapt1);
        return;
    }
    Trabaja(true);
    Convierte(capturas);
    Trabaja(false);
    host::changeDirectory(host::programDirectory());
    // The preview shows the capture that it may have now.
    P.Lista1->SetText(P.Lista1->List(P.Lista1->ListIndex()));
    P.Mensaje(4, core::TextoDeConversion(M, capturas.size()), M.Msg_IMGTransXX, M.TXT_Aceptar,
        TXT_Volver->Caption(), QString());
}

// The box for closing stays: it hides the form, and the run goes on to its end.
void Utilidades::Trabaja(bool trabajando)
{
    if (trabajando)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
    Boton1->setEnabled(!trabajando);
    Flecha2->setEnabled(!trabajando);
}

void Utilidades::Convierte(const QStringList &capturas)
{
    M.TituloDOS = u"CVTGIF15"_s;
    host::changeDirectory(M.RutaTrabajo);
    const QString directorio = host::currentDirectory();
    for (const QString &captura : capturas)
        ConvierteUna(directorio, captura);
}

// Each time from the directory anew: a game that the user starts meanwhile moves the working directory, and
// a capture of the same name there must not go in this one's place.
void Utilidades::ConvierteUna(const QString &directorio, const QString &captura)
{
    host::changeDirectory(directorio);
    host::Process conversor;
    // One that doesn't start is as one that fails: the capture goes all the same.
    launch::Intenta([&] {
        conversor = host::Process::start({ host::programFile(u"CVTGIF15.EXE"_s), captura });
    });
    launch::Vigila(
        M, std::move(conversor), &forms::WaitForEvents, [] {}, &host::closeWindowTitled);
    host::deleteFile(directorio + u'/' + captura);
}

} // namespace options
