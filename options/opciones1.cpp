#include "options/opciones1.h"

#include "options/montaje.h"

#include "core/ajustes.h"
#include "core/idiomas.h"

#include "dialogs/etiqueta.h"

#include "host/paths.h"
#include "host/tools.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

using namespace Qt::StringLiterals;

namespace options {

namespace {

constexpr int Ancho = 2655; // client area, twips
constexpr int Alto = 4620;

enum Aspecto : int { DeConsola = 0, DelSistema = 1 }; // of the editor, as TypeOfEditor tells it

} // namespace

Opciones1::Opciones1(core::Modulo &modulo, mainscreen::Portada &portada)
    : Form(u"Opciones1"_s, Ancho, Alto, Border::FixedWithCloseBox)
    , M(modulo)
    , P(portada)
    , m_avanzadas([this] { return std::make_unique<Opciones2>(M, P); })
{
    Monta();
    Conecta();
    Carga();
}

void Opciones1::Monta()
{
    using namespace montaje;

    SetCaption(u"Opciones"_s);
    TXT_Editor = PonEtiqueta(
        *this, u"TXT_Editor"_s, { 120, 240, 2340, 210 }, u"Editor de ayuda y configuración:"_s, CianClaro);
    Combo1 = PonCombo(*this, u"Combo1"_s, { 120, 480, 2415, 315 });
    PonSeparador(*this, u"Line1"_s, 930, Ancho);
    TXT_Idioma = PonEtiqueta(
        *this, u"TXT_Idioma"_s, { 120, 1080, 2415, 255 }, u"Archivo de idioma usado:"_s, CianClaro);
    Combo2 = PonCombo(*this, u"Combo2"_s, { 120, 1320, 2415, 315 });
    TXT_InfoLNG = PonEtiqueta(*this, u"TXT_InfoLNG"_s, { 120, 1800, 2400, 210 },
        u"Idioma Español, Autor:Dorvel"_s, VerdeClaro, Qt::AlignHCenter);
    TXT_EditarLNG = PonEtiqueta(*this, u"TXT_EditarLNG"_s, { 120, 2280, 2415, 495 },
        u"Editar el arch. ZB-xxx.LNG para cambiar los textos del programa."_s, CianClaro);
    Boton2 = PonBoton(*this, u"Boton2"_s, { 120, 2760, 495, 315 }, u"OK"_s);
    PonSeparador(*this, u"Linea1"_s, 3210, Ancho);
    Boton_CFGAv = PonBoton(*this, u"Boton_CFGAv"_s, { 120, 3360, 2415, 255 }, u"Opciones avanzadas"_s);
    PonSeparador(*this, u"Linea3"_s, 3720, Ancho);
    Disco1 = PonPareja(*this, u"Disco1"_s, u"Disco2"_s, { 120, 3840, 435, 435 });
    TXT_Grabar = dialogs::palabra(this, u"TXT_Grabar"_s, u"Grabar"_s, { 90, 4320, 510, 210 });
    Flecha2 = PonPareja(*this, u"Flecha2"_s, u"Flecha1"_s, { 800, 3880, 615, 375 });
    TXT_Volver = dialogs::palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 735, 4320, 705, 210 });
}

void Opciones1::Conecta()
{
    Combo1->Selection = [this] { Combo1_Selection(); };
    Combo2->Selection = [this] { Combo2_Selection(); };
    Boton2->Click = [this] { Boton2_Click(); };
    Boton_CFGAv->Click = [this] { Boton_CFGAv_Click(); };
    Disco1->Release = [this] { Disco1_Release(); };
    Flecha2->Release = [this] { Unload(); };
}

void Opciones1::Carga()
{
    M.IdiomaCambiado = 0;
    montaje::PonFondo(*this, P.Teja());
    LlenaCombo1();
    M.TypeOfEditorPrevio = core::NumeroDeAjuste(M.TypeOfEditor);
    const QStringList idiomas = core::IdiomasEnMayusculas();
    for (int i = 0; i < idiomas.size(); ++i)
        Combo2->AddItem(idiomas[i], i);
    Combo2->SetListIndex(core::PosicionDeIdioma(idiomas, M.LanguageFile));
    M.IdiomaPrevio = Combo2->Text();
    M.IdiomaCambiado = 1;
}

void Opciones1::LlenaCombo1()
{
    Combo1->Clear();
    Combo1->AddItem(M.TXT_EditorDOS, DeConsola);
    Combo1->AddItem(M.TXT_EditorWIN, DelSistema);
    Combo1->SetListIndex(core::NumeroDeAjuste(M.TypeOfEditor));
}

void Opciones1::PonTextos()
{
    TXT_Volver->SetCaption(M.TXT_Volver);
    TXT_Grabar->SetCaption(M.TXT_Grabar);
    SetCaption(M.TXT_TituloOp1);
    TXT_Editor->SetCaption(M.TXT_Editor);
    TXT_Idioma->SetCaption(M.TXT_Idioma);
    TXT_InfoLNG->SetCaption(M.TXT_InfoLNG);
    TXT_EditarLNG->SetCaption(M.TXT_EditarLNG);
    Boton_CFGAv->SetCaption(M.Boton_CFGAv);
    Boton2->SetCaption(M.TXT_Si);
    NombraControles();
}

void Opciones1::NombraControles()
{
    Combo1->setAccessibleName(TXT_Editor->Caption());
    Combo2->setAccessibleName(TXT_Idioma->Caption());
    Boton2->setAccessibleName(TXT_EditarLNG->Caption());
    Disco1->setAccessibleName(TXT_Grabar->Caption());
    Flecha2->setAccessibleName(TXT_Volver->Caption());
}

void Opciones1::Combo1_Selection()
{
    if (M.IdiomaCambiado == 0)
        return;
    const int aspecto = Combo1->ItemData(Combo1->ListIndex());
    P.ColoresDelEditor(aspecto);
    M.TypeOfEditor = QString::number(aspecto);
}

void Opciones1::Combo2_Selection()
{
    if (M.IdiomaCambiado == 0)
        return;
    M.LanguageFile = Combo2->Text();
    P.Textos();
    PonTextos();
    P.EstadoEnIdioma();
    LlenaCombo1();
}

void Opciones1::Boton2_Click()
{
    const QString ruta = host::programFile(u"LNG/"_s + M.LanguageFile);
    const QString enDisco = host::trueSpelling(ruta);
    P.AbreEnEditor(host::editorCommand(enDisco.isEmpty() ? ruta : enDisco), M.Palabras.Zem_FaltaEditor);
}

void Opciones1::Boton_CFGAv_Click()
{
    m_avanzadas->PonTextos(TXT_Grabar->Caption(), TXT_Volver->Caption());
    m_avanzadas.ShowModal(this);
}

// The editor goes first: where the language has changed too, it waits for the next press. A language that the
// next start wouldn't find again isn't written.
void Opciones1::Disco1_Release()
{
    const int aspecto = core::NumeroDeAjuste(M.TypeOfEditor);
    if (aspecto != M.TypeOfEditorPrevio) {
        if (Graba(core::Ajuste::TypeOfEditor, core::LineaDeEditor(aspecto)))
            M.TypeOfEditorPrevio = aspecto;
    } else if (Combo2->Text() == M.IdiomaPrevio) {
        Advierte(M.Msg_SinCambios0, M.Msg_SinCambios1);
    } else if (!core::VuelveIdioma(Combo2->Text())) {
        Advierte(M.Palabras.Zem_NoFinal0, M.Palabras.Zem_NoNombre1);
    } else {
        if (Graba(core::Ajuste::LanguageFile, core::LineaDeIdioma(Combo2->Text())))
            M.IdiomaPrevio = Combo2->Text();
    }
}

bool Opciones1::Graba(core::Ajuste ajuste, const QString &linea)
{
    if (!mainscreen::Escribe(M, P, [&] { core::GuardaAjuste(M, ajuste, { linea }); }))
        return false;
    Confirma();
    return true;
}

void Opciones1::Advierte(const QString &titulo, const QString &texto)
{
    P.Mensaje(3, texto, titulo, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
}

void Opciones1::Confirma()
{
    P.Mensaje(4, M.Msg_GrabacionOK1, M.Msg_GrabacionOK0, M.TXT_Aceptar, TXT_Volver->Caption(), QString());
}

} // namespace options
