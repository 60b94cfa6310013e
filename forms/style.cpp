#include "forms/style.h"

#include "forms/messageicons.h"
#include "forms/pieces.h"
#include "forms/shownpart.h"
#include "forms/styleparts.h"

#include <QAbstractScrollArea>
#include <QDialog>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QStyleOptionViewItem shownRow(const QStyleOptionViewItem &row)
{
    QStyleOptionViewItem shown = row;
    shown.text = shownPart(row.text);
    return shown;
}

// Between both bars, where it is painted ahead of the frame.
QRect cornerOf(const QAbstractScrollArea &area, const QRect &within)
{
    if (area.verticalScrollBar()->isHidden() || area.horizontalScrollBar()->isHidden())
        return {};
    return { area.viewport()->geometry().bottomRight() + QPoint(1, 1), within.bottomRight() };
}

// The line may be thinner than the frame that it is drawn on. Where the area within isn't opaque, what it
// leaves bare is seen too.
void fillUnderEdge(QPainter &painter, const QStyleOption &option, const QAbstractScrollArea &area)
{
    const int width = area.frameWidth();
    QRegion edge(option.rect);
    const QRect within = option.rect.adjusted(width, width, -width, -width);
    edge -= area.viewport()->autoFillBackground() ? within : cornerOf(area, within);
    for (const QRect &side : edge)
        painter.fillRect(side, option.palette.brush(QPalette::Base));
}

} // namespace

Style::Style()
    : QProxyStyle(u"fusion"_s)
{
}

void Style::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // Nothing changes under the pointer: it needn't be told of.
    widget->setAttribute(Qt::WA_Hover, false);
    if (qobject_cast<QDialog *>(widget))
        widget->installEventFilter(&m_edge);
}

int Style::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returned) const
{
    switch (hint) {
    // A drop-down list drops down, and doesn't lay itself over the control as a menu.
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_Widget_Animation_Duration:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
        return 0;
    case PM_ButtonShiftVertical:
    case PM_MenuPanelWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &size, const QWidget *widget) const
{
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        item && type == CT_MenuItem)
        return menuItemSize(*item, size);
    if (const auto *row = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        const QStyleOptionViewItem shown = shownRow(*row);
        return QProxyStyle::sizeFromContents(type, &shown, size, widget);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const
{
    switch (which) {
    case SP_MessageBoxQuestion:
        return messageIcon(MessageSign::Question);
    case SP_MessageBoxInformation:
        return messageIcon(MessageSign::Information);
    case SP_MessageBoxWarning:
        return messageIcon(MessageSign::Warning);
    case SP_MessageBoxCritical:
        return messageIcon(MessageSign::Failure);
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}

// Of texts without end only what can be seen is measured and painted.
void Style::drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette,
    bool enabled, const QString &text, QPalette::ColorRole role) const
{
    QProxyStyle::drawItemText(painter, place, flags, palette, enabled, shownPart(text), role);
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        return drawButton(*painter, *option);
    case PE_IndicatorCheckBox:
        return drawCheckBox(*painter, *option);
    case PE_IndicatorRadioButton:
        return drawOptionButton(*painter, *option);
    case PE_FrameFocusRect:
        if (qobject_cast<const QPushButton *>(widget))
            return; // it was drawn with the button
        return drawDots(*painter, option->rect, option->palette.color(QPalette::BrightText));
    case PE_PanelLineEdit: {
        const auto *box = qstyleoption_cast<const QStyleOptionFrame *>(option);
        painter->fillRect(option->rect, option->palette.brush(QPalette::Base));
        if (box && box->lineWidth > 0)
            drawEdge(*painter, *option);
        return;
    }
    case PE_Frame:
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget))
            fillUnderEdge(*painter, *option, *area);
        return drawEdge(*painter, *option);
    case PE_FrameLineEdit:
        return drawEdge(*painter, *option);
    case PE_PanelMenu:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    case PE_FrameMenu:
        return drawFrame(*painter, option->rect, option->palette.color(QPalette::Dark));
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, option->palette.color(QPalette::ToolTipBase));
        return drawFrame(*painter, option->rect, option->palette.color(QPalette::Dark));
    case PE_PanelScrollAreaCorner:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Shadow));
    case PE_FrameDefaultButton: // the button's own line says it
        return;
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (const auto *row = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        const QStyleOptionViewItem shown = shownRow(*row);
        return QProxyStyle::drawControl(element, &shown, painter, widget);
    }
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        item && element == CE_MenuItem)
        return drawMenuItem(*painter, *item, *proxy());
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        combo && element == CE_ComboBoxLabel) {
        QStyleOptionComboBox shown = *combo;
        shown.currentText = shownInCombo(*combo, *proxy(), widget);
        return QProxyStyle::drawControl(element, &shown, painter, widget);
    }
    switch (element) {
    case CE_CheckBox:
    case CE_RadioButton:
        return drawMark(element, *option, *painter, widget);
    case CE_MenuEmptyArea:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    default:
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

// The box shows the focus itself: beside its word there may be no room, and it may have none.
void Style::drawMark(
    ControlElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    if (!button)
        return;
    const bool box = element == CE_CheckBox;
    QStyleOptionButton part = *button;
    // A control may be smaller than the box.
    part.rect =
        subElementRect(box ? SE_CheckBoxIndicator : SE_RadioButtonIndicator, button, widget) & button->rect;
    drawPrimitive(box ? PE_IndicatorCheckBox : PE_IndicatorRadioButton, &part, &painter, widget);
    part.rect = subElementRect(box ? SE_CheckBoxContents : SE_RadioButtonContents, button, widget);
    drawControl(box ? CE_CheckBoxLabel : CE_RadioButtonLabel, &part, &painter, widget);
}

void Style::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto part = [&](SubControl which) { return subControlRect(control, option, which, widget); };
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        combo && !combo->editable)
        drawCombo(*painter, *combo, part(SC_ComboBoxArrow));
    else if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
             bar && control == CC_ScrollBar)
        drawScrollBar(*painter, *bar,
            { part(SC_ScrollBarSubLine), part(SC_ScrollBarAddLine), part(SC_ScrollBarSlider) });
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace forms
