#include "options/opciones2.h"

#include "options/montaje.h"

#include "core/ajustes.h"

#include "dialogs/coloca.h"
#include "dialogs/etiqueta.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

using namespace Qt::StringLiterals;

namespace options {

namespace {

constexpr int Ancho = 2655; // client area, twips
constexpr int Alto = 5685;

} // namespace

Opciones2::Opciones2(core::Modulo &modulo, mainscreen::Portada &portada)
    : Form(u"Opciones2"_s, Ancho, Alto, Border::FixedWithCloseBox)
    , M(modulo)
    , P(portada)
{
    Monta();
    Conecta();
    Carga();
}

void Opciones2::Monta()
{
    using namespace montaje;

    SetCaption(u"Opciones avanzadas"_s);
    MontaAjustes();
    PonSeparador(*this, u"Line1"_s, 1800, Ancho);
    PonSeparador(*this, u"Linea3"_s, 2850, Ancho);
    Disco1 = PonPareja(*this, u"Disco1"_s, u"Disco2"_s, { 120, 4900, 435, 435 });
    TXT_Grabar = dialogs::palabra(this, u"TXT_Grabar"_s, u"Grabar"_s, { 90, 5385, 510, 210 });
    Flecha2 = PonPareja(*this, u"Flecha2"_s, u"Flecha1"_s, { 750, 4950, 615, 375 });
    TXT_Volver = dialogs::palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 735, 5385, 705, 210 });
}

void Opciones2::MontaAjustes()
{
    using namespace montaje;

    TXT_Guardar = PonEtiqueta(*this, u"TXT_Guardar"_s, { 120, 120, 2370, 690 },
        u"¿Quieres comenzar siempre el programa con el último emulador  y sistema que hayas escogido?"_s,
        CianClaro);
    Opcion1 = dialogs::coloca(new forms::OptionButton(this), u"Opcion1"_s, { 600, 840, 255, 255 });
    TXT_Si = PonEtiqueta(*this, u"TXT_Si"_s, { 860, 870, 135, 195 }, u"Si"_s, VerdeClaro);
    Opcion2 = dialogs::coloca(new forms::OptionButton(this), u"Opcion2"_s, { 1320, 840, 255, 255 });
    TXT_No = PonEtiqueta(*this, u"TXT_No"_s, { 1575, 870, 210, 195 }, u"No"_s, VerdeClaro);
    TXT_GuardarAviso = PonEtiqueta(*this, u"TXT_GuardarAviso"_s, { 120, 1200, 2175, 495 },
        u"(Escoge NO si quieres usar el programa desde CD-ROM)"_s, CianClaro);
    TXT_Filtros = PonEtiqueta(*this, u"TXT_Filtros"_s, { 120, 1920, 2535, 495 },
        u"Directorios para ser filtrados, en emuladores que funcionan x DIRs"_s, CianClaro);
    CajaTexto1 = dialogs::coloca(new forms::TextBox(this), u"CajaTexto1"_s, { 120, 2400, 2355, 285 });
    TXT_FinDOS = PonEtiqueta(*this, u"TXT_FinDOS"_s, { 120, 3000, 2175, 615 },
        u"¿Que mensaje pone en la ventana del DOS al acabar un programa?"_s, CianClaro);
    CajaTexto2 = dialogs::coloca(new forms::TextBox(this), u"CajaTexto2"_s, { 120, 3720, 2415, 285 });
    CajaTexto2->SetText(u"Finalizado"_s);
    TXT_FinDOSAviso = PonEtiqueta(*this, u"TXT_FinDOSAviso"_s, { 120, 4080, 2535, 660 },
        u"(Si no pones este mensaje en el idioma de tu windows, la ventana del DOS no se cerrará)"_s,
        CianClaro);
}

void Opciones2::Conecta()
{
    Opcion1->Click = [this] { M.GuardarUltimo = u"1"_s; };
    Opcion2->Click = [this] { M.GuardarUltimo = u"0"_s; };
    Disco1->Release = [this] { Disco1_Release(); };
    Flecha2->Release = [this] { Unload(); };
}

void Opciones2::Carga()
{
    montaje::PonFondo(*this, P.Teja());
    CajaTexto1->SetText(M.FiltrosTexto);
    CajaTexto2->SetText(M.MsgEndDOS);
    const int guardar = core::NumeroDeAjuste(M.GuardarUltimo);
    if (guardar == 1)
        Opcion1->SetValue(true);
    else if (guardar == 0)
        Opcion2->SetValue(true);
    TomaPrevios();
}

void Opciones2::TomaPrevios()
{
    M.FiltrosTexto = CajaTexto1->Text();
    M.FiltrosNuevo = CajaTexto2->Text();
    M.GuardarUltimoNuevo = Opcion1->Value();
}

void Opciones2::PonTextos(const QString &grabar, const QString &volver)
{
    TXT_Volver->SetCaption(volver);
    TXT_Grabar->SetCaption(grabar);
    SetCaption(M.TXT_TituloOp2);
    TXT_Guardar->SetCaption(M.TXT_Guardar);
    TXT_GuardarAviso->SetCaption(M.TXT_GuardarAviso);
    TXT_Filtros->SetCaption(M.TXT_Filtros);
    TXT_FinDOS->SetCaption(M.TXT_FinDOS);
    TXT_FinDOSAviso->SetCaption(M.TXT_FinDOSAviso);
    TXT_Si->SetCaption(M.TXT_Si);
    TXT_No->SetCaption(M.TXT_No);
    NombraControles();
}

void Opciones2::NombraControles()
{
    Opcion1->setAccessibleName(TXT_Guardar->Caption() + u' ' + TXT_Si->Caption());
    Opcion2->setAccessibleName(TXT_Guardar->Caption() + u' ' + TXT_No->Caption());
    CajaTexto1->setAccessibleName(TXT_Filtros->Caption());
    CajaTexto2->setAccessibleName(TXT_FinDOS->Caption());
    Disco1->setAccessibleName(TXT_Grabar->Caption());
    Flecha2->setAccessibleName(TXT_Volver->Caption());
}

bool Opciones2::HayCambios() const
{
    return Opcion1->Value() != M.GuardarUltimoNuevo || CajaTexto1->Text() != M.FiltrosTexto
        || CajaTexto2->Text() != M.FiltrosNuevo;
}

void Opciones2::Disco1_Release()
{
    if (!HayCambios()) {
        P.Mensaje(3, M.Msg_SinCambios1, M.Msg_SinCambios0, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
        return;
    }
    if (Rechaza())
        return;
    if (!mainscreen::Escribe(M, P, [this] { Graba(); }))
        return;
    M.MsgEndDOS = CajaTexto2->Text();
    P.Mensaje(4, M.Msg_GrabacionOK1, M.Msg_GrabacionOK0, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
    TomaPrevios();
}

// What the next start would read otherwise, or end on, is refused with a word, and the boxes keep it.
bool Opciones2::Rechaza()
{
    const auto advierte = [this](const QString &titulo, const QString &texto) {
        P.Mensaje(3, texto, titulo, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
        return true;
    };
    const core::Palabras &palabras = M.Palabras;
    if (CajaTexto1->Text() != M.FiltrosTexto && !core::VuelvenFiltros(CajaTexto1->Text()))
        return advierte(palabras.Zem_NoFiltro0, palabras.Zem_NoFiltro1);
    if (CajaTexto2->Text() != M.FiltrosNuevo && !core::VuelveMsgEndDOS(CajaTexto2->Text()))
        return advierte(palabras.Zem_NoFinal0, palabras.Zem_NoFinal1);
    return false;
}

// Each change is a rewrite of its own.
void Opciones2::Graba()
{
    if (Opcion1->Value() != M.GuardarUltimoNuevo)
        core::GuardaAjuste(M, core::Ajuste::GuardarUltimo,
            { core::LineaDeGuardarUltimo(core::NumeroDeAjuste(M.GuardarUltimo)) });
    if (CajaTexto1->Text() != M.FiltrosTexto)
        GrabaFiltros();
    if (CajaTexto2->Text() != M.FiltrosNuevo)
        core::GuardaAjuste(M, core::Ajuste::MsgEndDOS, { core::LineaDeMsgEndDOS(CajaTexto2->Text()) });
}

// The table that the lists are made with is read at the start alone: these filters count from the next one
// on.
void Opciones2::GrabaFiltros()
{
    M.Respuesta_Caja = CajaTexto1->Text();
    core::GuardaFiltros(M, core::FiltrosDeTexto(M.Respuesta_Caja));
}

} // namespace options
