#include "forms/focusframe.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace forms {

void drawFocusFrame(QPainter &painter, const QWidget &control)
{
    if (QApplication::focusWidget() != &control)
        return;
    painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
    painter.drawRect(control.rect().adjusted(0, 0, -1, -1));
}

} // namespace forms
