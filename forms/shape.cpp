#include "forms/shape.h"

#include "forms/pieces.h"
#include "forms/shownpart.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace forms {

Shape::Shape(const QColor &colour, QWidget *parent)
    : QWidget(parent)
    , m_colour(colour)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

Shape::~Shape() = default;

void Shape::SetHeading(const QLabel *heading)
{
    m_heading = heading;
    update();
}

// Where the heading's words stand, with some air beside them; empty if it shows none.
QRect Shape::headingRect() const
{
    constexpr int Air = 3;
    if (!m_heading || m_heading->isHidden() || m_heading->text().isEmpty())
        return {};
    const QFontMetrics letters = m_heading->fontMetrics();
    const QSize size(letters.horizontalAdvance(shownPart(m_heading->text())), letters.height());
    const QRect words =
        QStyle::alignedRect(Qt::LeftToRight, m_heading->alignment(), size, m_heading->geometry());
    return words.translated(-pos()).adjusted(-Air, 0, Air, 0);
}

void Shape::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - headingRect());
    drawFrame(painter, rect(), m_colour);
}

} // namespace forms
