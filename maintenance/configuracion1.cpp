// The lists of the first step, and what each control starts. State: the tables BD_..., Lista1Lista. A
// position in a sorted list says nothing: every entry leads to the tables by the number that it carries.

#include "maintenance/configuracion1.h"

#include "core/basededatos.h"

#include "forms/plaintext.h"

#include "mainscreen/portada.h"

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

constexpr int MaxEmuladores = core::MaxSistemas - 1;

} // namespace

Configuracion1::Configuracion1(core::Modulo &modulo, mainscreen::Portada &portada)
    : Form(u"Configuracion1"_s, 3735, 4695, Border::FixedSingle)
    , M(modulo)
    , P(portada)
{
    Monta();
    ConectaListas();
    ConectaBotones();
    const dialogs::Teja teja = P.Teja();
    SetTile(teja.imagen, teja.ancho, teja.alto);
    Llena_Configuracion1();
    Lista1->setFocus();
}

void Configuracion1::ConectaListas()
{
    Lista1->Selection = [this] { Lista1_Selection(); };
    Lista2->Selection = [this] { PonPareja(); };
    Lista1->KeyDown = [this](int tecla) {
        if (tecla == forms::InsertKey)
            AñadirSistema();
        else if (tecla == forms::DeleteKey)
            BorrarSistema();
    };
    Lista2->KeyDown = [this](int tecla) {
        if (tecla == forms::InsertKey)
            AñadirEmulador();
        else if (tecla == forms::DeleteKey)
            BorrarEmulador();
    };
}

void Configuracion1::ConectaBotones()
{
    Mas1->Click = [this] { AñadirSistema(); };
    Menos1->Click = [this] { BorrarSistema(); };
    Boton_E->Click = [this] { Boton_E_Click(); };
    Boton_W1->Click = [this] { Boton_W1_Click(); };
    Boton_Mas2->Click = [this] { AñadirEmulador(); };
    Boton_Menos2->Click = [this] { BorrarEmulador(); };
    Boton_W2->Click = [this] { Boton_W2_Click(); };
    Aceptar2->Release = [this] { Acepta(); };
    Flecha2->Release = [this] { Unload(); };
}

void Configuracion1::PonTextos()
{
    TXT_Aceptar->SetCaption(M.TXT_Aceptar);
    TXT_Volver->SetCaption(M.TXT_Volver);
    SetCaption(M.TXT_TituloCFG1);
    TXT_Escoge->SetCaption(M.TXT_Escoge);
    TXT_Sistemas->SetCaption(M.TXT_Sistemas);
    TXT_Emuladores->SetCaption(M.TXT_Emuladores);
    TXT_Sevaaañadir->SetCaption(M.TXT_Sevaaañadir);
    TXT_Añadir->SetCaption(M.TXT_Añadir);
    TXT_Borrar->SetCaption(P.TXT_Borrar->Caption());
    TXT_Extensiones->SetCaption(M.TXT_Extensiones);
    TXT_Leyenda->SetCaption(M.TXT_Leyenda);
    NombraControles();
}

void Configuracion1::NombraControles()
{
    const core::Palabras &palabras = M.Palabras;
    const std::pair<QWidget *, QString> nombres[] = {
        { Mas1, palabras.Zem_Mas1 },
        { Menos1, palabras.Zem_Menos2a },
        { Boton_E, palabras.Zem_Boton_E },
        { Boton_W1, palabras.Zem_WEB1 },
        { Boton_Mas2, palabras.Zem_Boton_Mas2 },
        { Boton_Menos2, palabras.Zem_Menos2b },
        { Boton_W2, palabras.Zem_WEB2 },
        { Lista1, M.TXT_Sistemas },
        { Lista2, M.TXT_Emuladores },
        { Aceptar2, M.TXT_Aceptar },
        { Flecha2, M.TXT_Volver },
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(nombre);
    // The keys are those of the lists.
    for (QWidget *control : { Mas1, Boton_Mas2 })
        forms::SetTipOfName(*control, palabras.Zem_Ins);
    for (QWidget *control : { Menos1, Boton_Menos2 })
        forms::SetTipOfName(*control, palabras.Zem_Supr);
    for (QWidget *control : { Boton_E, Boton_W1, Boton_W2 })
        forms::SetTipOfName(*control);
}

void Configuracion1::Mensaje(
    int tipo, const QString &mensaje, const QString &titulo, const QString &enLaCasilla)
{
    P.Mensaje(tipo, mensaje, titulo, TXT_Aceptar->Caption(), TXT_Volver->Caption(), enLaCasilla);
}

// With CambioConfig1 at 1 the tables alone: the lists keep their entries, and Lista1Lista stays 0, so that
// Lista1 leads Lista2 no more until the lists are next filled.
void Configuracion1::Llena_Configuracion1()
{
    if (M.CambioConfig1 == 0) {
        Lista1->Clear();
        Lista2->Clear();
    }
    core::LeeBaseDeDatos(M);
    if (M.CambioConfig1 == 1)
        return;
    for (int s = 0; s < M.BD_TotalSistemas; ++s)
        Lista1->AddItem(core::Valor(M.BD_Nombre(s, 0), 1), s);
    Lista1->SetListIndex(0);
    LlenaLista2();
    PonPareja();
    M.Lista1Lista = 1;
}

// What stood selected may have gone.
void Configuracion1::LlenaYElige(const QString &sistema)
{
    Llena_Configuracion1();
    Lista1->SetText(sistema);
}

// True if each entry of Lista1 still leads to its own name in the tables, and none is missing.
bool Configuracion1::SistemasAlDia() const
{
    if (Lista1->ListCount() != M.BD_Sistema + 1)
        return false;
    for (int i = 0; i < Lista1->ListCount(); ++i) {
        if (M.BD_Nombre(Lista1->ItemData(i), 0) != u'-' + Lista1->List(i))
            return false;
    }
    return true;
}

// The same of Lista2 and the emulators of the selected system.
bool Configuracion1::EmuladoresAlDia() const
{
    const int sistema = Sistema();
    if (Lista2->ListCount() != core::TotalEmuladoresDeBase(M, sistema))
        return false;
    for (int i = 0; i < Lista2->ListCount(); ++i) {
        if (M.BD_Nombre(sistema, Lista2->ItemData(i) + 1) != u'+' + Lista2->List(i))
            return false;
    }
    return true;
}

// A system of as many emulators as the table takes shows them with none selected.
void Configuracion1::LlenaLista2()
{
    Lista2->Clear();
    if (Lista1->ListIndex() < 0)
        return;
    const int sistema = Sistema();
    const int total = core::TotalEmuladoresDeBase(M, sistema);
    for (int e = 1; e <= total; ++e)
        Lista2->AddItem(core::Valor(M.BD_Nombre(sistema, e), 1), e - 1);
    M.BD_Emulador = total < MaxEmuladores ? 0 : total;
    if (total < MaxEmuladores)
        Lista2->SetListIndex(0);
}

void Configuracion1::Lista1_Selection()
{
    if (M.Lista1Lista == 0)
        return;
    LlenaLista2();
    PonPareja();
}

void Configuracion1::PonPareja()
{
    Texto5->SetCaption(Lista1->Text() + u" -> "_s + Lista2->Text());
}

int Configuracion1::Sistema() const
{
    return Lista1->ItemData(Lista1->ListIndex());
}

int Configuracion1::Emulador() const
{
    return Lista2->ItemData(Lista2->ListIndex()) + 1;
}

} // namespace maintenance
