// How the drawn controls show that the keyboard acts on them.
#pragma once

class QPainter;
class QWidget;

namespace forms {

// Dots along the control's edge while it has the focus itself. (QWidget::hasFocus is also true where another
// widget takes the focus for it.)
void drawFocusFrame(QPainter &painter, const QWidget &control);

} // namespace forms
