#include "forms/rows.h"

#include "forms/colours.h"
#include "forms/plaintext.h"
#include "forms/sharp.h"
#include "forms/shownpart.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace forms {

namespace {

using Reach = Rows::Reach;

// A row on the screen's dots.
struct Ground {
    QTransform toDots;
    QRectF exact; // the row
    QRect dots; // all that it has a share of
    QRectF list; // what shows of it

    Ground(const QPainter &painter, const QRect &row, const QRect &view)
        : toDots(painter.deviceTransform())
        , exact(toDots.mapRect(QRectF(row)))
        , dots(QPoint(qFloor(exact.left()), qFloor(exact.top())),
              QPoint(qCeil(exact.right()) - 1, qCeil(exact.bottom()) - 1))
        , list(toDots.mapRect(QRectF(view)))
    {
    }

    qreal scale() const { return toDots.m22(); }
};

// In the units of the painter's own transformation, a hair below the dot's edge, so that no rounding reaches
// the dot above.
void drawLetters(QPainter &painter, const QTransform &toDots, const QPointF &start, const QString &text)
{
    constexpr qreal Hair = 0.1;
    painter.drawText(toDots.inverted().map(start + QPointF(Hair, Hair)), text);
}

QImage inkOf(const QString &text, const QFont &font, qreal scale, const QSize &size, const QPoint &start)
{
    QImage ink(size, QImage::Format_Alpha8);
    ink.fill(0);
    QPainter painter(&ink);
    painter.setFont(font);
    painter.scale(scale, scale);
    drawLetters(painter, painter.deviceTransform(), start, text);
    return ink;
}

bool isBlank(const QImage &ink, int line)
{
    const uchar *dots = ink.constScanLine(line);
    return std::all_of(dots, dots + ink.width(), [](uchar dot) { return dot == 0; });
}

// Measured, as rounding and hinting differ from scale to scale.
Reach measuredReach(const QFont &font, qreal scale)
{
    const int room = qCeil(2 * font.pixelSize() * scale);
    const QImage ink =
        inkOf(QStringLiteral("Ágjpqy_"), font, scale, QSize(4 * room, 2 * room), QPoint(0, room));
    int first = 0;
    while (first < room && isBlank(ink, first))
        ++first;
    int end = ink.height();
    while (end > room && isBlank(ink, end - 1))
        --end;
    return { room - first, end - room };
}

// In the middle of what is the row's alone, with an accent rather than a tail over its edge where the letters
// are higher; but never over the edges of the list.
int baseLine(const Ground &ground, const Reach &reach)
{
    const int first = qCeil(ground.exact.top());
    const int room = qFloor(ground.exact.bottom()) - first;
    const int line = first + reach.above + qFloor((room - reach.above - reach.below) / 2.0);
    const int lowest = qFloor(ground.list.bottom()) - reach.below;
    const bool whole = ground.exact.bottom() < ground.list.bottom() + 1;
    const int highest =
        ground.exact.top() > ground.list.top() - 1 ? qCeil(ground.list.top()) + reach.above : line;
    return std::max(whole ? std::min(line, lowest) : line, highest);
}

bool touches(const QImage &ink, const QRect &dot)
{
    const QRect around = dot.adjusted(-1, -1, 1, 1) & ink.rect();
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            if (ink.constScanLine(y)[x] != 0)
                return true;
        }
    }
    return false;
}

void drawFrame(QPainter &painter, const QRect &row, const QImage &ink, int size, const QColor &colour)
{
    const int right = row.width() - size;
    const int bottom = row.height() - size;
    const auto dot = [&](int x, int y) {
        const QRect place(x, y, size, size);
        if (!touches(ink, place))
            painter.fillRect(place.translated(row.topLeft()), colour);
    };
    for (int x = 0; x <= right; x += 2 * size) {
        dot(x, 0);
        dot(x, bottom);
    }
    for (int y = 2 * size; y < bottom; y += 2 * size) {
        dot(0, y);
        dot(right, y);
    }
}

QString letters(const QString &entry)
{
    QString text = shownPart(entry);
    text.replace(QChar::LineSeparator, QChar::Space);
    return text;
}

QPalette::ColorGroup groupOf(QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

bool isSelected(const QStyleOptionViewItem &row)
{
    return row.state.testFlag(QStyle::State_Selected);
}

void drawGround(QPainter &painter, const QStyleOptionViewItem &row, const Ground &ground, const Reach &reach,
    const QPoint &start)
{
    const QTransform own = painter.worldTransform();
    painter.setWorldTransform(ground.toDots.inverted() * own);
    QRect whole = ground.dots;
    whole.setTop(std::min(whole.top(), start.y() - reach.above));
    whole.setBottom(std::max(whole.bottom(), start.y() + reach.below - 1));
    // Of a dot at its edges that is shared the list shows all or none.
    const QRect seen = ground.list.toRect();
    whole.setLeft(std::max(whole.left(), seen.left()));
    whole.setRight(std::min(whole.right(), seen.right()));
    if (ground.exact.top() > ground.list.top() - 1)
        whole.setTop(std::max(whole.top(), seen.top()));
    if (ground.exact.bottom() < ground.list.bottom() + 1)
        whole.setBottom(std::min(whole.bottom(), seen.bottom()));
    if (isSelected(row))
        painter.fillRect(whole, row.palette.brush(groupOf(row.state), QPalette::Highlight));
    if (row.state.testFlag(QStyle::State_HasFocus)) {
        const QImage ink = inkOf(row.text, row.font, ground.scale(), whole.size(), start - whole.topLeft());
        drawFrame(painter, whole, ink, std::max(qRound(ground.scale()), 1),
            dotsOn(row.palette.color(
                groupOf(row.state), isSelected(row) ? QPalette::Highlight : QPalette::Base)));
    }
    painter.setWorldTransform(own);
}

// Where a row's letters stand, in pixels of its view.
struct Room {
    int left;
    int width; // up to the view's edge
};

Room roomOf(const QStyleOptionViewItem &row)
{
    const QStyle &style = *row.widget->style();
    // Without a picture ahead of it the toolkit need not lay it out, which takes longer than to paint it.
    const int text = row.icon.isNull()
        ? row.rect.left()
        : style.subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget).left();
    const int left = text + style.pixelMetric(QStyle::PM_FocusFrameHMargin, &row, row.widget) + 1;
    const auto *view = qobject_cast<const QAbstractScrollArea *>(row.widget);
    return { left, (view ? view->viewport()->width() : row.rect.right() + 1) - left };
}

// Neither smoothed nor, in the selected row, dulled.
void drawIcon(QPainter &painter, const QStyle &style, const QStyleOptionViewItem &row)
{
    const auto picture = row.index.data(Qt::DecorationRole).value<QPixmap>();
    if (picture.isNull())
        return;
    const QRect place = style.subElementRect(QStyle::SE_ItemViewItemDecoration, &row, row.widget);
    const QSize size = picture.deviceIndependentSize().toSize().boundedTo(place.size());
    drawUnscaled(
        painter, QStyle::alignedRect(Qt::LeftToRight, row.decorationAlignment, size, place), picture);
}

} // namespace

const Reach &Rows::reachOf(const QFont &font, qreal scale) const
{
    if (m_scale != scale || m_font != font) {
        m_reach = measuredReach(font, scale);
        m_scale = scale;
        m_font = font;
    }
    return m_reach;
}

Rows::Rows(Height height, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_height(height)
{
}

QSize Rows::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int room = m_height == Height::WithRoom ? 2 : 0;
    return { QStyledItemDelegate::sizeHint(option, index).width(), option.fontMetrics.height() + room };
}

QStyleOptionViewItem Rows::rowOf(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text = letters(row.text);
    return row;
}

bool Rows::helpEvent(
    QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid()
        || !index.data(Qt::ToolTipRole).toString().isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QStyleOptionViewItem row = rowOf(option, index);
    const bool whole = row.fontMetrics.horizontalAdvance(row.text) <= roomOf(row).width;
    QToolTip::showText(event->globalPos(), m_tips && !whole ? asTipOfLines(row.text) : QString(),
        view->viewport(), view->visualRect(index));
    return true;
}

void Rows::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (m_layer == Layer::Grounds && !isSelected(option) && !option.state.testFlag(QStyle::State_HasFocus))
        return;
    QStyleOptionViewItem row = rowOf(option, index);
    const Room room = roomOf(row);
    if (m_height == Height::WithRoom) {
        row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight, room.width);
        row.state.setFlag(
            QStyle::State_Selected, isSelected(row) || row.state.testFlag(QStyle::State_HasFocus));
    }
    const auto *view = qobject_cast<const QAbstractScrollArea *>(row.widget);
    const Ground ground(*painter, row.rect, view ? view->viewport()->rect() : row.rect);
    const Reach &reach = reachOf(row.font, ground.scale());
    const QStyle &style = *row.widget->style();
    const QPointF left = ground.toDots.map(QPointF(room.left, 0));
    const QPoint start(qRound(left.x()), baseLine(ground, reach));
    painter->save();
    if (m_layer != Layer::Letters)
        drawGround(*painter, row, ground, reach, start);
    if (m_layer != Layer::Grounds) {
        drawIcon(*painter, style, row);
        painter->setFont(row.font);
        painter->setPen(row.palette.color(
            groupOf(row.state), isSelected(row) ? QPalette::HighlightedText : QPalette::Text));
        drawLetters(*painter, ground.toDots, start, row.text);
    }
    painter->restore();
}

} // namespace forms
