#include "forms/styleparts.h"

#include "forms/pieces.h"
#include "forms/shownpart.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace forms {

namespace {

// Of a menu's entries, in design pixels.
constexpr int Margin = 12;
constexpr int Air = 4; // above and below the letters
constexpr int MarkColumn = 16;
constexpr int KeyGap = 20;
constexpr int LineHeight = 7;

bool is(const QStyleOption &option, QStyle::StateFlag state)
{
    return option.state.testFlag(state);
}

QColor colour(const QStyleOption &option, QPalette::ColorRole role)
{
    return option.palette.color(
        is(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled, role);
}

// With the colours of what is disabled where it is.
QPalette coloursOf(const QStyleOption &option)
{
    QPalette palette = option.palette;
    palette.setCurrentColorGroup(is(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled);
    return palette;
}

// A square in the middle of a place that may be higher than wide.
QRect squareIn(const QRect &place)
{
    const int side = std::min(place.width(), place.height());
    return { place.left() + (place.width() - side) / 2, place.top() + (place.height() - side) / 2, side,
        side };
}

QRect markColumnOf(const QStyleOptionMenuItem &item)
{
    return { item.rect.left() + Margin / 2, item.rect.top(), MarkColumn, item.rect.height() };
}

int textStart(const QStyleOptionMenuItem &item)
{
    return Margin + (item.menuHasCheckableItems ? MarkColumn : 0);
}

} // namespace

void drawButton(QPainter &painter, const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool pressed = is(option, QStyle::State_Sunken) || is(option, QStyle::State_On);
    drawRaised(painter, option.rect, coloursOf(option), pressed ? Face::Pressed : Face::AtRest,
        colour(option, isDefault ? QPalette::Link : QPalette::Shadow));
    if (is(option, QStyle::State_HasFocus))
        drawDots(painter, option.rect.adjusted(1, 1, -1, -1), colour(option, QPalette::BrightText));
}

void drawCheckBox(QPainter &painter, const QStyleOption &option)
{
    const QRect place = squareIn(option.rect);
    const QColor ground = colour(option, QPalette::Base);
    drawSunk(painter, place, colour(option, QPalette::Dark),
        is(option, QStyle::State_Sunken) ? colour(option, QPalette::Highlight) : ground);
    if (is(option, QStyle::State_On))
        drawTick(painter, place, colour(option, QPalette::Text));
    if (is(option, QStyle::State_HasFocus))
        drawDots(painter, place, colour(option, QPalette::BrightText));
}

void drawOptionButton(QPainter &painter, const QStyleOption &option)
{
    Ring ring { colour(option, QPalette::Dark),
        colour(option, is(option, QStyle::State_Sunken) ? QPalette::Highlight : QPalette::Base), {}, {} };
    if (is(option, QStyle::State_On))
        ring.dot = colour(option, QPalette::Text);
    if (is(option, QStyle::State_HasFocus))
        ring.focus = colour(option, QPalette::BrightText);
    drawRing(painter, squareIn(option.rect), ring);
}

void drawCombo(QPainter &painter, const QStyleOptionComboBox &option, const QRect &arrow)
{
    constexpr int Inset = 2;
    const bool open = is(option, QStyle::State_On) || is(option, QStyle::State_Sunken);
    const QRect inside = option.rect.adjusted(Inset, Inset, -Inset, -Inset);
    const bool atTheRight = arrow.center().x() > inside.center().x();
    QRect button = inside;
    QRect field = inside;
    if (atTheRight) {
        button.setLeft(arrow.left());
        field.setRight(arrow.left() - Inset);
    } else {
        button.setRight(arrow.right());
        field.setLeft(arrow.right() + Inset);
    }
    drawSunk(painter, option.rect, colour(option, QPalette::Dark), colour(option, QPalette::Shadow));
    drawRaised(painter, button, coloursOf(option), open ? Face::Pressed : Face::AtRest,
        colour(option, QPalette::Shadow));
    drawArrow(painter, button, Qt::DownArrow, colour(option, QPalette::ButtonText));
    if (is(option, QStyle::State_HasFocus))
        drawDots(painter, field, colour(option, QPalette::BrightText));
}

QString shownInCombo(const QStyleOptionComboBox &option, const QStyle &style, const QWidget *widget)
{
    constexpr int Free = 1; // pixels that the toolkit leaves free at each end
    const QRect field =
        style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, widget);
    return option.fontMetrics.elidedText(
        shownPart(option.currentText), Qt::ElideRight, field.width() - 2 * Free);
}

void drawScrollBar(QPainter &painter, const QStyleOptionSlider &option, const BarPlaces &places)
{
    const bool upright = option.orientation == Qt::Vertical;
    const QPalette palette = coloursOf(option);
    const auto faceOf = [&option](QStyle::SubControl part) {
        const bool held = is(option, QStyle::State_Sunken) && option.activeSubControls.testFlag(part);
        return held ? Face::Pressed : Face::AtRest;
    };
    const QColor outline = palette.color(QPalette::Shadow);
    painter.fillRect(option.rect, outline);
    drawFrame(painter, option.rect, palette.color(QPalette::Mid));
    drawRaised(painter, places.back, palette, faceOf(QStyle::SC_ScrollBarSubLine), outline);
    drawRaised(painter, places.forth, palette, faceOf(QStyle::SC_ScrollBarAddLine), outline);
    const QColor letters = palette.color(QPalette::ButtonText);
    const bool mirrored = !upright && option.direction == Qt::RightToLeft;
    drawArrow(painter, places.back,
        upright        ? Qt::UpArrow
            : mirrored ? Qt::RightArrow
                       : Qt::LeftArrow,
        letters);
    drawArrow(painter, places.forth,
        upright        ? Qt::DownArrow
            : mirrored ? Qt::LeftArrow
                       : Qt::RightArrow,
        letters);
    if (option.minimum == option.maximum)
        return;
    drawRaised(painter, places.slider, palette, faceOf(QStyle::SC_ScrollBarSlider), outline);
    drawGrip(painter, places.slider, option.orientation, palette);
}

void drawMenuItem(QPainter &painter, const QStyleOptionMenuItem &item, const QStyle &style)
{
    const bool chosen = is(item, QStyle::State_Selected) && is(item, QStyle::State_Enabled);
    painter.fillRect(item.rect, colour(item, chosen ? QPalette::Highlight : QPalette::Window));
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const QRect line(
            item.rect.left() + Margin / 2, item.rect.center().y(), item.rect.width() - Margin, 1);
        painter.fillRect(line, colour(item, QPalette::Dark));
        return;
    }
    const QPalette::ColorRole role = chosen ? QPalette::HighlightedText : QPalette::WindowText;
    if (item.checked)
        drawTick(painter, squareIn(markColumnOf(item)), colour(item, role));
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawArrow(painter, item.rect.adjusted(item.rect.width() - Margin - 2, 0, -2, 0), Qt::RightArrow,
            colour(item, role));
    const bool marksKeys = style.styleHint(QStyle::SH_UnderlineShortcut, &item) != 0;
    const int flags =
        Qt::AlignVCenter | Qt::TextSingleLine | (marksKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    const QRect text = item.rect.adjusted(textStart(item), 0, -Margin, 0);
    const bool enabled = is(item, QStyle::State_Enabled);
    painter.setFont(item.font);
    style.drawItemText(
        &painter, text, flags | Qt::AlignLeft, item.palette, enabled, item.text.section(u'\t', 0, 0), role);
    style.drawItemText(
        &painter, text, flags | Qt::AlignRight, item.palette, enabled, item.text.section(u'\t', 1), role);
}

QSize menuItemSize(const QStyleOptionMenuItem &item, const QSize &text)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return { 2 * Margin, LineHeight };
    const int keys = item.reservedShortcutWidth > 0 ? KeyGap : 0;
    return { textStart(item) + text.width() + keys + Margin, text.height() + 2 * Air };
}

void drawEdge(QPainter &painter, const QStyleOption &option)
{
    drawFrame(painter, option.rect,
        colour(option, is(option, QStyle::State_HasFocus) ? QPalette::Link : QPalette::Dark));
}

} // namespace forms
