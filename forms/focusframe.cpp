#include "forms/focusframe.h"

#include "forms/pieces.h"

#include <QApplication>
#include <QWidget>

namespace forms {

void drawFocusFrame(QPainter &painter, const QWidget &control)
{
    if (QApplication::focusWidget() != &control)
        return;
    drawDots(painter, control.rect(), control.palette().color(QPalette::BrightText));
}

} // namespace forms
