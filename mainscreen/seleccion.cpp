// Selection of system and emulator, and the two views. Controls: Combo1, Combo2, Check1.
// The combos' handlers also run while the combos are filled; Combo1Listo and Combo2Listo alone silence them,
// and what the second one does ahead of its test (the type, the word under the play button) is wanted at the
// start.

#include "mainscreen/portada.h"

#include "core/catalogo.h"
#include "core/lista.h"

#include "forms/yield.h"

#include "host/letters.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace mainscreen {

namespace {

// The controls that the view of the database switches off.
std::vector<QWidget *> controlesDelCatalogo(Portada &p)
{
    return { p.Boton1b, p.Boton2b, p.Boton3b, p.Boton4b, p.Boton5b, p.Boton6b, p.BotonC2, p.BotonD2,
        p.Menos2a, p.Menos2b, p.E1, p.D1, p.BotonA2, p.BotonB2, p.JugarB1, p.Lista1 };
}

} // namespace

void Portada::ConectaSeleccion()
{
    Combo1->Selection = [this] { Combo1_Selection(); };
    Combo2->Selection = [this] { Combo2_Selection(); };
    for (forms::ComboBox *combo : { Combo1, Combo2 }) {
        combo->KeyDown = [this](int tecla) {
            if (tecla == forms::EnterKey)
                Jugar();
        };
    }
    Check1->Click = [this] { Check1_Click(); };
}

void Portada::Llena_Combos()
{
    try {
        if (M.SoloTablas == 0) {
            Combo1->Clear();
            Combo2->Clear();
        }
        M.Combo1Listo = M.Combo2Listo = 0;
        core::LeeCatalogo(M);
        if (M.SoloTablas == 1 || M.Indice_Sistema == -1)
            return;
        M.TotalSistemas = M.Indice_Sistema + 1;
        RellenaCombo1();
        RellenaCombo2();
        M.Combo1Listo = M.Combo2Listo = 1;
    } catch (const host::Failure &) {
        // The flags stay 0: the combos are inert until the next filling.
    }
}

void Portada::RellenaCombo1()
{
    for (int s = 0; s < M.TotalSistemas; ++s)
        Combo1->AddItem(core::Valor(M.Cat_Nombre(s, 0), 1), s);
    Combo1->SetListIndex(core::NumeroDeAjuste(M.UltimoSistema));
}

void Portada::RellenaCombo2()
{
    Combo2->Clear();
    LlenaEmuladores();
    const int ultimo = core::NumeroDeAjuste(M.UltimoEmulador);
    if (ultimo == core::NingunEmulador)
        return;
    Combo2->SetText(Combo2->List(0));
    Combo2->SetListIndex(ultimo);
}

int Portada::LlenaEmuladores()
{
    const int sistema = Sistema();
    const int total = core::TotalEmuladores(M, sistema);
    for (int e = 1; e <= total; ++e)
        Combo2->AddItem(core::Valor(M.Cat_Nombre(sistema, e), 1), e - 1);
    return total;
}

void Portada::Combo1_Selection()
{
    if (M.Combo1Listo != 1 || Combo1->Text() == M.Combo1Previo)
        return;

    if (Lista1->ListCount() == 0 && M.VerBaseDeDatos == 0)
        PonInfo(M.TXT_NingunaROM);
    Combo2->Clear();
    forms::DoEventsWithoutInput();
    if (LlenaEmuladores() == 1)
        Combo2->SetText(Combo2->List(0));
    if (!Combo1->Text().isEmpty() && Combo2->Text().isEmpty())
        SistemaSinEmulador();
    if (Combo1->Text().isEmpty() && Combo2->Text().isEmpty()) {
        PonInfoRoms(core::ResumenVacio);
        TXT_Boton->SetCaption(core::SinPalabra);
    }
    Combo1->setFocus();
}

void Portada::SistemaSinEmulador()
{
    Lista1->Clear();
    if (M.RestaurarROM == 0)
        PonInfoRoms(M.TXT_EmuNoSelec);
    TXT_Boton->SetCaption(core::SinPalabra);
    if (M.VerBaseDeDatos == 0)
        PonInfo(M.TXT_NingunaROM);
    PonNegro();
    // An empty slot: the next emulator picked compares unequal, and is listed.
    if (M.IndiceRutas == 2)
        M.IndiceRutas = 0;
    RecuerdaRuta(QString());
}

// Writes the next of the two slots; behind the second the count starts again.
void Portada::RecuerdaRuta(const QString &ruta)
{
    ++M.IndiceRutas;
    M.RutasROM(M.IndiceRutas) = ruta;
    if (M.IndiceRutas == 2)
        M.IndiceRutas = 0;
}

void Portada::RecuerdaRutaElegida()
{
    RecuerdaRuta(host::upper(M.Cat_ROM(Sistema(), Emulador() + 1)));
}

void Portada::Combo2_Selection()
{
    if (!Combo2->Text().isEmpty())
        M.TipoEmu = core::TipoDe(M.Cat_XDI(Sistema(), Emulador() + 1));
    if (Combo1->Text().isEmpty() || Combo2->Text().isEmpty())
        M.TXT_Jugar = core::SinPalabra; // the language's word is gone until the language is read again
    if (Check1->Value() == 0)
        PalabraDelBoton();
    if (M.VerBaseDeDatos == 1 && Combo2->Text().isEmpty())
        PonInfoRoms(M.TXT_EmuNoSelec);
    if (M.VerBaseDeDatos == 1 && Lista1->ListCount() == 0)
        PonInfoRoms(u"---"_s);
    if (M.VerBaseDeDatos == 1 || M.Combo2Listo == 0 || Combo2->Text() == M.Combo2Previo)
        return;

    if (M.Combo2Listo == 1 && M.EmuConfigurado == 1)
        Llena_Lista();
    else if (M.Combo2Listo != 1 || CambiaDeDirectorio())
        ListaElegida();
}

// Type 4 leaves the word as it is.
void Portada::PalabraDelBoton()
{
    const int tipo = core::Numero(M.TipoEmu);
    if (core::CargaSoloElEmulador(tipo))
        TXT_Boton->SetCaption(M.TXT_Cargar);
    else if (tipo >= 0 && tipo <= 3)
        TXT_Boton->SetCaption(M.TXT_Jugar);
}

void Portada::EstadoEnIdioma()
{
    if (Lista1->ListCount() == 0)
        MuestraNingunaROM();
    if (Combo2->Text().isEmpty()) {
        PonInfoRoms(M.TXT_EmuNoSelec);
        return;
    }
    PalabraDelBoton();
    // Not the entries of the list: a count that every listing sets to 0.
    if (core::UnDirectorioPorJuego(core::Numero(M.TipoEmu)))
        PonInfoRoms(QString::number(M.NumROMsBorradas) + u' ' + M.TXT_Directorios);
}

// True if the emulator's ROM directory is another than that of the one before. The "ROM" line alone decides:
// two emulators of one directory share the list of the first, whatever their types.
bool Portada::CambiaDeDirectorio()
{
    RecuerdaRutaElegida();
    if (M.RutasROM(2) != M.RutasROM(1))
        return true;
    if (Lista1->ListCount() == 0)
        PonInfoRoms(core::ResumenVacio);
    return false;
}

void Portada::ListaElegida()
{
    forms::DoEventsWithoutInput();
    if (M.Combo2Listo == 1 && !Combo1->Text().isEmpty() && Combo2->Text().isEmpty())
        PonInfoRoms(M.TXT_EmuNoSelec);
    Llena_Lista();
    Combo2->setFocus();
    if (M.NumLista == 0) {
        MuestraNingunaROM();
        Combo2->setFocus();
    }
}

void Portada::Check1_Click()
{
    if (Check1->Value() == 1)
        EntraEnBaseDeDatos();
    else
        SaleDeBaseDeDatos();
}

void Portada::ActivaConCatalogo(bool activo)
{
    for (QWidget *control : controlesDelCatalogo(*this))
        control->setEnabled(activo);
}

void Portada::EntraEnBaseDeDatos()
{
    M.SistemaGuardado = Combo1->Text();
    M.EmuladorGuardado = Combo2->Text();
    M.ROMGuardada = Lista1->Text();
    Lista1->Clear();
    Graf_Imagen->SetPicture(Aumento.Negro->Picture());
    ActivaConCatalogo(false);
    TXT_Boton->SetCaption(core::SinPalabra);
    M.VerBaseDeDatos = 1;
    M.UltimoSistema = u"0"_s;
    M.UltimoEmulador = QString::number(core::NingunEmulador);
    Llena_Combos();
    PonInfoRoms(Combo2->Text().isEmpty() ? M.TXT_EmuNoSelec : u"..."_s);
    TXT_Info->SetForeColor(forms::colourFromNumber(0x800000));
    PonInfo(M.TXT_BaseDeDatos);
}

void Portada::SaleDeBaseDeDatos()
{
    PonInfoRoms(QString());
    ActivaConCatalogo(true);
    M.VerBaseDeDatos = 0;
    M.RestaurarROM = 1;
    TXT_Info->SetForeColor(Qt::black);
    Llena_Combos();
    RestauraSeleccion();
    M.Combo1Listo = M.Combo2Listo = 1;
    if (Lista1->ListCount() == 0 && !Combo2->Text().isEmpty())
        Llena_Lista();
    Lista1->SetText(M.ROMGuardada);
    if (!Combo2->Text().isEmpty())
        PalabraDelBoton();
    else
        PonInfoRoms(M.TXT_EmuNoSelec);
    if (Combo1->Text().isEmpty() && Combo2->Text().isEmpty()) {
        PonInfoRoms(core::ResumenVacio);
        TXT_Boton->SetCaption(core::SinPalabra);
    }
    if (Lista1->ListCount() == 0)
        MuestraNingunaROM();
    Lista1->setFocus();
    M.RestaurarROM = 0;
}

// A name that the catalogue no longer holds fails here, and nothing catches it. Where nothing stood selected,
// nothing does again.
void Portada::RestauraSeleccion()
{
    if (!M.SistemaGuardado.isEmpty()) {
        Combo1->SetText(M.SistemaGuardado);
    } else {
        Combo1->SetListIndex(-1);
        Combo2->Clear();
    }
    M.Combo2Listo = 0;
    if (!M.EmuladorGuardado.isEmpty())
        Combo2->SetText(M.EmuladorGuardado);
}

} // namespace mainscreen
