#include "forms/shape.h"

#include <QPainter>

namespace forms {

Shape::Shape(const QColor &colour, QWidget *parent)
    : QWidget(parent)
    , m_colour(colour)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_colour);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace forms
