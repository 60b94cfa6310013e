#include "forms/textbox.h"

namespace forms {

TextBox::TextBox(QWidget *parent)
    : Control(parent)
{
    setMouseTracking(true);
}

TextArea::TextArea(QWidget *parent)
    : Control(parent)
{
    viewport()->setMouseTracking(true);
}

void TextArea::SetColours(const QColor &back, const QColor &text)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Base, back);
    colours.setColor(QPalette::Text, text);
    setPalette(colours);
}

} // namespace forms
