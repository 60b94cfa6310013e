#include "forms/wholetext.h"

#include "forms/shownpart.h"

#include <QPainter>

#include <algorithm>

namespace forms {

namespace {

constexpr int Air = 2; // pixels around the letters
constexpr int Wrapping = Qt::TextWrapAnywhere;

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
    const QRect letters = fontMetrics().boundingRect(window.adjusted(Air, 0, -Air, 0), Wrapping, m_text);
    QRect place(QPoint(0, 0), letters.size() + QSize(2 * Air, Air));
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
    painter.drawText(rect().adjusted(Air, 0, -Air, 0), Wrapping, m_text);
}

} // namespace forms
