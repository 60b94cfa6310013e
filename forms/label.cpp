#include "forms/label.h"

#include "forms/clippedtext.h"
#include "forms/growth.h"
#include "forms/plaintext.h"
#include "forms/shape.h"
#include "forms/shownpart.h"
#include "forms/wholetext.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

int widestPart(const QString &whole, const QFontMetrics &metrics, const QString &separators)
{
    const QString text = shownPart(whole);
    int widest = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !separators.contains(text[i]))
            continue;
        widest = std::max(widest, metrics.horizontalAdvance(text.mid(start, i - start)));
        start = i + 1;
    }
    return widest;
}

// What the label must stay out of. Of a frame, and of a picture that the label lies on, only the edges count.
QList<QRect> obstaclesOf(const QWidget &label, const QRect &place)
{
    QList<QRect> obstacles;
    const auto siblings = label.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (const QWidget *sibling : siblings) {
        if (sibling == &label || sibling->isHidden() || sibling->isWindow())
            continue;
        const QRect rect = sibling->geometry();
        if (dynamic_cast<const Shape *>(sibling) || rect.contains(place))
            obstacles += frameLines(rect);
        else
            obstacles += rect;
    }
    return obstacles;
}

} // namespace

Label::Label(QWidget *parent)
    : Control(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMouseTracking(true);
}

void Label::SetCaption(const QString &caption)
{
    if (caption == text())
        return;
    setText(caption);
    grow();
}

void Label::SetForeColor(const QColor &colour)
{
    if (colour == ForeColor())
        return;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colour);
    setPalette(colours);
}

QColor Label::ForeColor() const
{
    return palette().color(QPalette::Active, QPalette::WindowText);
}

void Label::SetPlace(const Place &place)
{
    m_place = m_grown = inPixels(place);
    setGeometry(m_place);
    grow();
}

void Label::SetGrowing(bool growing)
{
    m_growing = growing;
    grow();
}

void Label::SetRoom(const Place &room)
{
    m_room = inPixels(room);
    grow();
}

void Label::SetShortening(std::function<QString(const QString &, const Fits &)> shorten)
{
    m_shorten = std::move(shorten);
    grow();
}

void Label::Redraw()
{
    repaint();
}

void Label::grow()
{
    if (!parentWidget())
        return;
    if (geometry() != m_grown)
        m_place = geometry();

    const QFontMetrics metrics = fontMetrics();
    const bool wraps = m_place.height() >= 2 * metrics.lineSpacing();
    if (wraps != wordWrap())
        setWordWrap(wraps);
    const int width = m_growing ? widestPart(text(), metrics, wraps ? u" \n"_s : u"\n"_s) : 0;
    m_grown = grownPlace(m_place, width, alignment(), m_room.isNull() ? parentWidget()->rect() : m_room,
        obstaclesOf(*this, m_place));
    if (geometry() != m_grown)
        setGeometry(m_grown);
    shorten();
}

void Label::shorten()
{
    m_shown = text();
    if (!m_shorten)
        return;
    const QFontMetrics metrics = fontMetrics();
    m_shown = m_shorten(text(), [&](const QString &part) {
        return metrics.horizontalAdvance(shownPart(part)) <= contentsRect().width();
    });
    if (underMouse())
        showWhole();
}

void Label::showWhole()
{
    if (m_shown == text()) {
        hideWhole();
        return;
    }
    if (!m_whole)
        m_whole = new WholeText(*window());
    m_whole->ShowOver(*this, text());
}

void Label::hideWhole()
{
    if (m_whole)
        m_whole->hide();
}

void Label::enterEvent(QEnterEvent *event)
{
    Control::enterEvent(event);
    if (m_shorten)
        showWhole();
}

void Label::leaveEvent(QEvent *event)
{
    Control::leaveEvent(event);
    hideWhole();
}

void Label::hideEvent(QHideEvent *event)
{
    Control::hideEvent(event);
    hideWhole();
}

// Of a wrapped caption that is higher than its place: what of it is painted.
std::optional<QString> Label::clipped() const
{
    if (m_growing || !wordWrap())
        return {};
    return clippedText(shownPart(m_shown), font(), contentsRect().size());
}

void Label::paintEvent(QPaintEvent *event)
{
    const std::optional<QString> lines = clipped();
    if (m_shown == text() && !lines && !text().isRightToLeft()) {
        Control::paintEvent(event);
        return;
    }
    QPainter painter(this);
    // A name that begins with Arabic or Hebrew letters doesn't turn round what stands behind it.
    const int flags = int(alignment()) | Qt::TextForceLeftToRight | (wordWrap() ? Qt::TextWordWrap : 0);
    style()->drawItemText(
        &painter, contentsRect(), flags, palette(), isEnabled(), lines.value_or(m_shown), foregroundRole());
}

bool Label::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !clipped())
        return Control::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), asTipOfLines(text()), this);
    return true;
}

void Label::showEvent(QShowEvent *event)
{
    Control::showEvent(event);
    // The controls beside it may have come after its caption.
    grow();
}

void Label::changeEvent(QEvent *event)
{
    Control::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        grow();
}

} // namespace forms
