#include "forms/textbox.h"

#include "forms/plaintext.h"
#include "forms/shownpart.h"

#include <QMimeData>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFrame>

namespace forms {

TextBox::TextBox(QWidget *parent)
    : Control(parent)
{
    setMouseTracking(true);
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        const qsizetype end = text.indexOf(QRegularExpression(QStringLiteral("[\\r\\n\u2028\u2029]")));
        if (end >= 0)
            setText(text.first(end));
    });
}

void TextBox::SetText(const QString &value)
{
    setText(value);
    setCursorPosition(0);
}

void TextBox::SetTip()
{
    connect(this, &QLineEdit::textChanged, this,
        [this](const QString &text) { forms::SetTip(*this, fits(text) ? QString() : text); });
}

bool TextBox::fits(const QString &text) const
{
    constexpr int inset = 2; // pixels that a line leaves free at each end
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &frame, this);
    return fontMetrics().horizontalAdvance(shownPart(text)) <= room.width() - 2 * inset;
}

TextArea::TextArea(QWidget *parent)
    : Control(parent)
{
    // On a dense screen the frame's line is thinner than the frame, and what lies below would show.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    viewport()->setMouseTracking(true);
}

void TextArea::keyPressEvent(QKeyEvent *event)
{
    Control::keyPressEvent(event);
    if (keyCodeOf(*event) == EnterKey)
        event->accept();
}

// The toolkit's own looks at the first of the source's formats, also where there is none, and would take rich
// text from another of its programs.
void TextArea::insertFromMimeData(const QMimeData *source)
{
    if (!source || !source->hasText())
        return;
    QMimeData plain;
    plain.setText(source->text());
    Control::insertFromMimeData(&plain);
}

void TextArea::SetColumns(bool columns, int tab)
{
    setFont(columns ? courier(8.25) : QFont());
    setLineWrapMode(columns ? NoWrap : WidgetWidth);
    setTabStopDistance(tab * QFontMetricsF(font()).horizontalAdvance(u' '));
}

void TextArea::SetColours(const QColor &back, const QColor &text)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Base, back);
    colours.setColor(QPalette::Text, text);
    setPalette(colours);
}

} // namespace forms
