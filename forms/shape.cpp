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
    // Filled, not stroked: at a fraction of the design size a line between two pixels gets lost.
    painter.fillRect(0, 0, width(), 1, m_colour);
    painter.fillRect(0, height() - 1, width(), 1, m_colour);
    painter.fillRect(0, 0, 1, height(), m_colour);
    painter.fillRect(width() - 1, 0, 1, height(), m_colour);
}

} // namespace forms
