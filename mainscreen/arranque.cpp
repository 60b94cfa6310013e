// Start and exit. Controls: Flecha2. State: the settings, and the flags that step by step get their first
// values. The window is on the screen before the catalogue is read, and the last selection is saved at the
// exit alone.

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "core/ajustes.h"
#include "core/arranque.h"
#include "core/lista.h"

#include "forms/latehourglass.h"
#include "forms/yield.h"

#include "host/letters.h"
#include "host/questions.h"

#include "launch/rescate.h"

using namespace Qt::StringLiterals;

namespace mainscreen {

void Portada::ConectaArranque()
{
    Flecha2->Press = [this] { Flecha2_Press(); };
    Flecha2->Release = [this] { Flecha2_Release(); };
    CloseWished = [this] { Flecha2_Release(); };
}

void Portada::Carga()
{
    core::CompruebaFicheros();
    LeeConfiguracion();
    Textos();
    TXT_Boton->SetCaption(core::SinPalabra);
    if (core::NumeroDeAjuste(M.GuardarUltimo) == 0) {
        M.UltimoSistema = u"0"_s;
        M.UltimoEmulador = QString::number(core::NingunEmulador);
    }
    ApagaEditor();
    Graf_Imagen->show();
    PonNegro();
    M.ImagenCambio = 1;
    M.Lista1Cambio = 1;
    MuestraVentana();
    {
        const forms::LateHourglass reloj;
        Llena_Combos();
        Llena_Lista();
    }
    LLena_INFO();
    MuestraEstado();
    if (!M.AjustesSinGrabar.isEmpty())
        AvisaDeSoloLectura(M, *this, M.Palabras.Zem_SoloIdioma1);
    launch::RescataAlEmpezar(M.Palabras);
}

void Portada::LeeConfiguracion()
{
    if (core::EsPrimeraVez(M))
        MuestraPrimeraInstalacion();
    core::LeeAjustes(M);
}

void Portada::ApagaEditor()
{
    for (QWidget *control :
        std::initializer_list<QWidget *> { BotonARR, BotonABJ, FlechaE2, Edit2, BlocDeNotas2, Editor })
        control->hide();
}

void Portada::MuestraVentana()
{
    TXT_Info->hide();
    ShowModeless(nullptr);
    TXT_Info->show();
    PonInfo(M.TXT_NingunaROM);
    forms::DoEventsWithoutInput();
}

void Portada::MuestraEstado()
{
    if (Lista1->ListCount() == 0)
        PonInfoRoms(core::ResumenVacio);
    M.IndiceRutas = Combo2->Text().isEmpty() ? 0 : 1;
    if (M.IndiceRutas == 1)
        M.RutasROM(1) = host::upper(M.Cat_ROM(Sistema(), Emulador() + 1));
    ColoresDelEditor(core::NumeroDeAjuste(M.TypeOfEditor));
    M.ZoomActual = 2;
    M.EmuConfigurado = M.CambioConfig1 = M.SoloTablas = M.VerBaseDeDatos = M.RestaurarROM = 0;
    if (!Combo1->Text().isEmpty() && Combo2->Text().isEmpty())
        PonInfoRoms(M.TXT_EmuNoSelec);
    Lista1->setFocus();
}

void Portada::Flecha2_Press()
{
    Lista1->setEnabled(true);
    Lista1->setFocus();
}

void Portada::Flecha2_Release()
{
    if (M.VerBaseDeDatos == 1) {
        M.VerBaseDeDatos = 0;
        ActivaConCatalogo(true);
        M.RestaurarROM = 1;
        Llena_Combos();
        PonInfoRoms(core::ResumenVacio);
        TXT_Boton->SetCaption(core::SinPalabra);
        RestauraSeleccion();
        Lista1->SetText(M.ROMGuardada);
    }
    if (core::NumeroDeAjuste(M.GuardarUltimo) != 0)
        GuardaSeleccion();
    hide();
    host::questions().endProcess(0);
}

void Portada::GuardaSeleccion()
{
    EscribeAlSalir(M, *this, [this] { core::GuardaUltimaSeleccion(M, Combo1->Text(), Combo2->Text()); });
}

} // namespace mainscreen
