#include "forms/textbox.h"

#include "forms/colours.h"
#include "forms/plaintext.h"
#include "forms/shownpart.h"

#include <QMimeData>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFrame>

namespace forms {

namespace {

QString firstLine(const QString &text)
{
    static const QRegularExpression end(QStringLiteral("[\\r\\n\u2028\u2029]"));
    const qsizetype place = text.indexOf(end);
    return place < 0 ? text : text.first(place);
}

// Without the half of a character that is left of one: the toolkit cuts what is pasted at the most that it
// takes.
QString wholeCharacters(QString text)
{
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        if (text[i].isHighSurrogate() && (i + 1 == text.size() || !text[i + 1].isLowSurrogate()))
            text.remove(i, 1);
    }
    return text;
}

} // namespace

TextBox::TextBox(QWidget *parent)
    : Control(parent)
{
    setMouseTracking(true);
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        const QString line = firstLine(text);
        const QString kept = line.size() == maxLength() ? wholeCharacters(line) : line;
        if (kept != text)
            return setText(kept);
        Change.raise();
        showHint();
        showTip();
    });
}

QString TextBox::Text() const
{
    const QString shown = text();
    const qsizetype place = m_rest.isEmpty() ? -1 : shown.lastIndexOf(m_dots);
    if (place < 0)
        return shown;
    const qsizetype behind = place + m_dots.size();
    return shown.first(behind - 1) + m_rest + shown.sliced(behind);
}

void TextBox::SetText(const QString &value)
{
    constexpr qsizetype Enough = 40; // letters that nobody types again ahead of dots
    const QString line = firstLine(value);
    QString shown = beginningOf(line, LongestShown);
    m_rest = line.sliced(shown.size());
    if (!m_rest.isEmpty()) {
        shown += u'…';
        m_dots = shown.last(Enough);
    }
    setText(shown);
    setCursorPosition(0);
}

void TextBox::SetTip()
{
    m_tip = true;
}

void TextBox::SetHint(const QString &hint, const QString &words)
{
    m_hint = hint;
    m_hintWords = hint.isEmpty() ? QString() : words;
    showHint();
    showTip();
}

void TextBox::SetFault(const QString &words)
{
    if (words == m_fault)
        return;
    m_fault = words;
    QPalette colours = palette();
    for (const auto group : { QPalette::Active, QPalette::Inactive })
        colours.setColor(group, QPalette::Text, words.isEmpty() ? inkColour() : faultColour());
    setPalette(colours);
    showTip();
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    const bool takesOver = event->keyCombination() == (Qt::CTRL | Qt::Key_Space);
    if (takesOver && text().isEmpty() && !m_hint.isEmpty())
        return insert(m_hint); // as if it were typed: it can be undone
    Control::keyPressEvent(event);
}

// Of a box with a text, assistive programs would take it for the description.
void TextBox::showHint()
{
    setPlaceholderText(
        text().isEmpty() ? fontMetrics().elidedText(shownPart(m_hint), Qt::ElideMiddle, room()) : QString());
}

void TextBox::showTip()
{
    QStringList lines;
    if (text().isEmpty())
        lines << m_hintWords;
    else
        lines << m_fault << (m_tip && !fits(text()) ? text() : QString());
    lines.removeAll(QString());
    if (!lines.isEmpty() || m_tells)
        forms::SetTip(*this, lines.join(u'\n'));
    m_tells = !lines.isEmpty();
}

int TextBox::room() const
{
    constexpr int inset = 2; // pixels that a line leaves free at each end
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    return style()->subElementRect(QStyle::SE_LineEditContents, &frame, this).width() - 2 * inset;
}

bool TextBox::fits(const QString &text) const
{
    return fontMetrics().horizontalAdvance(shownPart(text)) <= room();
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
