#include "options/enlace.h"

#include "forms/assistance.h"
#include "forms/focusframe.h"

#include "host/tools.h"

#include <QPainter>

namespace options {

namespace {

constexpr QRgb Amarillo = qRgb(255, 255, 0);
constexpr QRgb Rojo = qRgb(255, 0, 0);
constexpr int Alto = 210; // twips
constexpr int Margen = 2; // pixels at each side, for the dots of the focus

} // namespace

Enlace::Enlace(QWidget *padre, const QString &nombre, int izquierda, int arriba, const QString &texto,
    const QString &destino)
    : Label(padre)
    , m_destino(destino)
{
    setObjectName(nombre);
    setFont(forms::arial(8.25, true));
    SetForeColor(QColor(Rojo));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setContentsMargins(Margen, 0, Margen, 0);
    const int margen = forms::twips(Margen);
    const int ancho = forms::twips(fontMetrics().horizontalAdvance(texto));
    SetPlace({ izquierda - margen, arriba, ancho + 2 * margen, Alto });
    SetCaption(texto);
    MouseDown = [this](const forms::Mouse &) { Pulsa(); };
    MouseUp = [this](const forms::Mouse &) { Suelta(); };
    forms::SetAssistance(*this,
        { QAccessible::Link,
            [this] {
                Pulsa();
                Suelta();
            },
            {} });
}

void Enlace::Pulsa()
{
    SetForeColor(QColor(Amarillo));
}

void Enlace::Suelta()
{
    SetForeColor(QColor(Rojo));
    host::openLink(m_destino);
}

void Enlace::paintEvent(QPaintEvent *event)
{
    Label::paintEvent(event);
    QPainter pintor(this);
    forms::drawFocusFrame(pintor, *this);
}

void Enlace::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space && forms::keyCodeOf(*event) != forms::EnterKey) {
        Label::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat())
        return;
    Pulsa();
    Suelta();
}

} // namespace options
