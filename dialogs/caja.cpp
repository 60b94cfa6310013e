#include "dialogs/caja.h"

#include "dialogs/etiqueta.h"

using namespace Qt::StringLiterals;

namespace dialogs {

namespace {

constexpr int Ancho = 2505; // client area, twips
constexpr int Alto = 1650;
const QColor AzulNoche(0, 0, 64);
const QColor RojoClaro(255, 128, 128);

void mueve(forms::PictureButton *boton, int izquierda, int arriba, int ancho, int alto)
{
    boton->SetPlace({ izquierda, arriba, ancho, alto });
}

} // namespace

Caja::Caja(core::Modulo &modulo, const Teja &teja)
    : Form(u"Caja"_s, Ancho, Alto, Border::FixedSingle)
    , M(modulo)
{
    SetCaption(u"-= Titulo =-"_s);
    SetBackColour(AzulNoche);
    SetTile(teja.imagen, teja.ancho, teja.alto);

    Texto1 = etiqueta(
        this, u"Texto1"_s, u"Vacio"_s, { 120, 90, 2205, 435 }, Qt::white, forms::arial(8.25), Qt::AlignLeft);
    Texto2 = etiqueta(this, u"Texto2"_s, u"Text2"_s, { 120, 120, 2415, 855 }, RojoClaro, forms::courier(9.75),
        Qt::AlignLeft);
    Texto1->SetGrowing(false);
    Texto2->SetGrowing(false);
    Casilla = new forms::TextBox(this);
    Casilla->setObjectName(u"Casilla"_s);
    forms::move(*Casilla, { 120, 600, 2295, 285 });
    Aceptar2 = new forms::PictureButton(u"Aceptar2"_s, u"Aceptar1"_s, this);
    mueve(Aceptar2, 180, 960, 465, 405);
    Flecha2 = new forms::PictureButton(u"Flecha2"_s, u"Flecha1"_s, this);
    mueve(Flecha2, 850, 975, 615, 375);
    TXT_Aceptar = palabra(this, u"TXT_Aceptar"_s, u"Aceptar"_s, { 120, 1395, 525, 210 });
    TXT_Volver = palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 870, 1395, 650, 210 });

    Aceptar2->Release = [this] { Acepta(); };
    Flecha2->Release = [this] {
        M.Respuesta_Opcion = 1;
        Unload();
    };
    // Later: the press that brings the focus would take the selection away again.
    Casilla->GotFocus = [this] {
        QMetaObject::invokeMethod(Casilla, &QLineEdit::selectAll, Qt::QueuedConnection);
    };
    Casilla->KeyDown = [this](int tecla) {
        if (tecla == forms::EnterKey)
            Acepta();
    };
    // Only its own controls close it: closed in any other way, a question would count as answered with yes.
    CloseWished = [] {};
    M.Respuesta_Opcion = 0;
}

// No picture has the focus until the user takes it there: a blank typed ahead must not answer.
void Caja::QuitaCasilla()
{
    Casilla->hide();
    setFocus();
}

void Caja::Acepta()
{
    M.Respuesta_Caja = Casilla->Text();
    Unload();
}

void Caja::PreparaEntrada(const QString &mensaje, const QString &titulo, const QString &enLaCasilla)
{
    M.RespuestaMensaje = Casilla->Text();
    Texto1->SetCaption(mensaje);
    Texto2->hide();
    SetCaption(titulo);
    Casilla->SetText(enLaCasilla);
}

void Caja::PreparaPregunta(const QString &mensaje, const QString &titulo)
{
    Texto1->SetCaption(mensaje);
    Texto2->hide();
    QuitaCasilla();
    SetCaption(titulo);
    mueve(Aceptar2, 180, 625, 465, 405);
    mueve(Flecha2, 850, 640, 615, 375);
    TXT_Aceptar->SetPlace({ 120, 1075, 525, 210 });
    TXT_Volver->SetPlace({ 870, 1075, 650, 210 });
    SetOuterHeight(1730);
    M.RespuestaMensaje = Casilla->Text();
}

void Caja::PreparaAdvertencia(const QString &mensaje, const QString &titulo)
{
    QuitaCasilla();
    Aceptar2->hide();
    TXT_Aceptar->hide();
    SetOuterHeight(1900);
    mueve(Flecha2, 150, 840, 795, 480);
    TXT_Volver->SetPlace({ 180, 1270, 585, 210 });
    Texto2->SetCaption(mensaje);
    SetCaption(titulo);
    Texto1->hide();
}

void Caja::PreparaAviso(const QString &mensaje, const QString &titulo)
{
    QuitaCasilla();
    Flecha2->hide();
    TXT_Volver->hide();
    SetOuterHeight(1900);
    mueve(Aceptar2, 180, 820, 465, 405);
    TXT_Aceptar->SetPlace({ 120, 1255, 525, 210 });
    Texto2->SetForeColor(Qt::white);
    Texto2->SetCaption(mensaje);
    SetCaption(titulo);
    Texto1->hide();
}

} // namespace dialogs
