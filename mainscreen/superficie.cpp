// The surface: where the focus goes when a picture is pressed, the drag, the menus, the web links, and the
// tip that shows an entry too long for the list. Controls: Titulo1, IMGDescripcionLarga, WEB1, WEB2, Graf_TV.
// State: ElementoBajoRaton.

#include "mainscreen/portada.h"

#include "core/catalogo.h"

#include "forms/plaintext.h"
#include "forms/shownpart.h"
#include "forms/wholetext.h"
#include "forms/windowmove.h"
#include "forms/yield.h"

#include "host/tools.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>

namespace mainscreen {

namespace {

constexpr QRgb Amarillo = qRgb(255, 255, 0);
constexpr QRgb Rojo = qRgb(255, 0, 0);
constexpr int EsperaDelConsejo = 50; // milliseconds

QPixmap hojaDelConsejo(const QWidget &consejo)
{
    const QSizeF puntos = QSizeF(consejo.size()) * consejo.devicePixelRatioF();
    QPixmap hoja(qCeil(puntos.width()), qCeil(puntos.height()));
    hoja.setDevicePixelRatio(consejo.devicePixelRatioF());
    hoja.fill(QColor(forms::NotePaper));
    return hoja;
}

} // namespace

void Portada::ConectaSuperficie()
{
    for (forms::PictureButton *boton :
        { JugarB1, BotonA2, BotonB2, BotonC2, BotonD2, Boton1b, Boton2b, Boton3b, Boton4b, Boton5b, Boton6b })
        boton->Press = [this] { Lista1->setFocus(); };
    FlechaE2->Press = [this] {
        Lista1->setFocusProxy(nullptr);
        Lista1->setFocus();
    };
    // The text stays open, and over the list.
    FlechaE2->Cancel = [this] {
        Lista1->setFocusProxy(Editor);
        Lista1->setFocus();
    };
    Menos2b->Press = [this] { Combo2->setFocus(); };

    const auto escondeConsejo = [this](const forms::Mouse &) { IMGDescripcionLarga->hide(); };
    MouseMove = escondeConsejo;
    for (forms::Image *imagen : { Graf_TV, Graf_Imagen })
        imagen->MouseMove = escondeConsejo;
    Lista1->SetTips(false); // entries too long show in the floating one
    Lista1->MouseMove = [this](const forms::Mouse &raton) { Lista1_MouseMove(raton); };
    // The tip stays while the pointer rests on it: the move isn't the screen's.
    IMGDescripcionLarga->MouseMove = [](const forms::Mouse &) {};
    IMGDescripcionLarga->Wheel = [this](const QWheelEvent &rueda) { IMGDescripcionLarga_Wheel(rueda); };
    IMGDescripcionLarga->Click = [this] { IMGDescripcionLarga_Click(); };

    Lista1->MouseDown = [this](const forms::Mouse &raton) { Lista1_MouseDown(raton.button); };
    IMGDescripcionLarga->MouseDown = [this](const forms::Mouse &raton) {
        if (raton.button == forms::RightButton)
            Menu_Lista1->Popup();
    };
    Graf_TV->MouseDown = [this](const forms::Mouse &raton) { Graf_TV_MouseDown(raton.button); };
    Titulo1->MouseDown = [this](const forms::Mouse &raton) {
        if (raton.button != forms::RightButton)
            forms::MoveWindow(*Titulo1, raton.button);
    };

    WEB1->MouseDown = [this](const forms::Mouse &) { WEB1->SetForeColor(Amarillo); };
    WEB2->MouseDown = [this](const forms::Mouse &) { WEB2->SetForeColor(Amarillo); };
    WEB1->MouseLost = [this] { WEB1->SetForeColor(Rojo); };
    WEB2->MouseLost = [this] { WEB2->SetForeColor(Rojo); };
    WEB1->MouseUp = [this](const forms::Mouse &) { WEB1_MouseUp(); };
    WEB2->MouseUp = [this](const forms::Mouse &) { WEB2_MouseUp(); };
    for (QWidget *control : std::initializer_list<QWidget *> { Titulo1, WEB1, WEB2 })
        control->setCursor(Qt::PointingHandCursor);
}

void Portada::Lista1_MouseDown(int boton)
{
    if (boton == forms::RightButton && !Lista1->Text().isEmpty())
        Menu_Lista1->Popup();
}

void Portada::Graf_TV_MouseDown(int boton)
{
    // Not by a focus policy: a click on what stands in the set would bring it the focus too.
    Graf_TV->setFocus();
    if (boton == forms::RightButton)
        Menu_Graf_Imagen->Popup();
}

void Portada::Lista1_MouseMove(const forms::Mouse &raton)
{
    if (raton.button != 0)
        return;
    ElementoBajoRaton = Lista1->ItemFromPoint(forms::pixels(raton.x), forms::pixels(raton.y));
    const QString texto = forms::shownPart(Lista1->List(ElementoBajoRaton));
    const int ancho = forms::twips(fontMetrics().horizontalAdvance(texto));
    const forms::Place lista = forms::placeOf(*Lista1);
    if (ElementoBajoRaton < 0 || ElementoBajoRaton > Lista1->ListCount()
        || ancho <= forms::twips(Lista1->LetterWidth())) {
        IMGDescripcionLarga->hide();
        return;
    }
    const int alto = forms::twips(fontMetrics().height());
    const int fila = ElementoBajoRaton - Lista1->TopIndex();
    forms::move(
        *IMGDescripcionLarga, { lista.left + 50, alto * fila + lista.top + 20, ancho + 50, alto + 50 });
    // What the window's edge cuts off can be read a little later.
    const bool entero = rect().contains(IMGDescripcionLarga->geometry());
    IMGDescripcionLarga->setToolTip(entero ? QString() : forms::asTipOfLines(texto));
    EscribeConsejo(texto);
}

void Portada::EscribeConsejo(const QString &texto)
{
    const int elemento = ElementoBajoRaton;
    IMGDescripcionLarga->raise();
    IMGDescripcionLarga->show();
    QPixmap hoja = hojaDelConsejo(*IMGDescripcionLarga);
    IMGDescripcionLarga->SetPicture(hoja);
    const auto escribe = [this, elemento, &texto, &hoja] {
        // A further move may have come meanwhile: what it left stands.
        if (ElementoBajoRaton != elemento || IMGDescripcionLarga->isHidden())
            return;
        QPixmap escrita = hoja;
        QPainter pluma(&escrita);
        pluma.setFont(font());
        pluma.setPen(Qt::black);
        pluma.drawText(QPoint(0, fontMetrics().ascent()), texto);
        pluma.end();
        IMGDescripcionLarga->SetPicture(escrita);
        IMGDescripcionLarga->show();
    };
    // Moves that come faster than they are drawn would nest without end.
    if (!forms::IsYielding()) {
        // A menu that opens meanwhile comes back when it is shut, and the tip lies open beside it.
        QTimer mientras;
        mientras.setSingleShot(true);
        mientras.callOnTimeout(this, escribe);
        mientras.start(EsperaDelConsejo);
        forms::DoEvents();
    }
    escribe();
}

void Portada::IMGDescripcionLarga_Click()
{
    // The list may have become shorter under the tip.
    if (ElementoBajoRaton < Lista1->ListCount())
        Lista1->SetListIndex(ElementoBajoRaton);
    Lista1->setFocus();
}

// The tip lies over the list, which is what the wheel is turned for.
void Portada::IMGDescripcionLarga_Wheel(const QWheelEvent &rueda)
{
    IMGDescripcionLarga->hide();
    QWidget &filas = *Lista1->viewport();
    QWheelEvent enLista(filas.mapFromGlobal(rueda.globalPosition()), rueda.globalPosition(),
        rueda.pixelDelta(), rueda.angleDelta(), rueda.buttons(), rueda.modifiers(), rueda.phase(),
        rueda.inverted());
    QApplication::sendEvent(&filas, &enLista);
}

void Portada::WEB1_MouseUp()
{
    WEB1->SetForeColor(Rojo);
    if (Combo1->Text().isEmpty())
        return;
    AbreWeb(M.Cat_WEB1(Sistema()), M.Msg_SisNoWeb0, M.Msg_SisNoWeb1);
}

void Portada::WEB2_MouseUp()
{
    WEB2->SetForeColor(Rojo);
    if (Combo2->Text().isEmpty())
        return;
    AbreWeb(M.Cat_WEB2(Sistema(), Emulador() + 1), M.Msg_EmuNoWeb0, M.Msg_EmuNoWeb1);
}

void Portada::AbreWeb(const QString &linea, const QString &titulo, const QString &texto)
{
    if (linea.size() < core::PrefijoParametro)
        throw host::Failure(host::InvalidArgument, QStringLiteral("take the address out of a line"), linea);
    const QString direccion = core::Valor(linea, core::PrefijoParametro);
    if (direccion.isEmpty()) {
        Aviso(titulo, texto);
        return;
    }
    forms::DoEvents();
    host::openLink(direccion);
}

void Portada::PonPuntero(Puntero puntero)
{
    if (puntero == PunteroNormal)
        unsetCursor();
    else
        setCursor(Qt::WaitCursor);
}

void Portada::PonInfo(const QString &texto)
{
    TXT_Info->SetCaption(texto);
}

void Portada::PonInfoRoms(const QString &texto)
{
    TXT_InfoRoms->SetCaption(texto);
}

void Portada::Advierte(const QString &titulo, const QString &texto)
{
    Mensaje(3, texto, titulo, M.TXT_Aceptar, M.TXT_Volver, QString());
}

} // namespace mainscreen
