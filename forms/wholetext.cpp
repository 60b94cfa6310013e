#include "forms/wholetext.h"

#include "forms/shownpart.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace forms {

namespace {

constexpr int Air = 2; // pixels around the letters

// Between words; within one only where a line is too short for it.
QTextOption wrapping()
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

// As the painter lays it out.
QSize sizeOf(const QString &text, const QFont &font, int width)
{
    QTextLayout layout(text, font);
    layout.setTextOption(wrapping());
    QSizeF size;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        size = { std::max(size.width(), line.naturalTextWidth()), size.height() + line.height() };
    }
    layout.endLayout();
    return { qCeil(size.width()), qCeil(size.height()) };
}

} // namespace

WholeText::WholeText(QWidget &window)
    : QWidget(&window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(window.font());
    hide();
}

void WholeText::ShowOver(const QWidget &control, const QString &text)
{
    m_text = shownPart(text);
    const QRect window = parentWidget()->rect();
    QRect place(QPoint(0, 0), sizeOf(m_text, font(), window.width() - 2 * Air) + QSize(2 * Air, Air));
    place.moveCenter(control.mapTo(parentWidget(), control.rect().center()));
    place.moveTop(control.mapTo(parentWidget(), QPoint(0, 0)).y());
    place.moveRight(std::min(place.right(), window.right()));
    place.moveLeft(std::max(place.left(), window.left()));
    setGeometry(place);
    raise();
    show();
    update();
}

void WholeText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(NotePaper));
    painter.setPen(Qt::black);
    painter.drawText(QRectF(rect().adjusted(Air, 0, -Air, 0)), m_text, wrapping());
}

} // namespace forms
