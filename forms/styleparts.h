// The controls that the style paints whole, one function each.
#pragma once

#include <QStyle>

class QStyleOption;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionFrame;
class QStyleOptionMenuItem;
class QStyleOptionSlider;

namespace forms {

void drawButton(QPainter &painter, const QStyleOption &option);
void drawCheckBox(QPainter &painter, const QStyleOption &option);
void drawOptionButton(QPainter &painter, const QStyleOption &option);

// A field with its text's place, and a button with an arrow at its end. The text is the style's to draw.
void drawCombo(QPainter &painter, const QStyleOptionComboBox &option, const QRect &arrow);

// Of the text as much as has room in the field, and dots.
QString shownInCombo(const QStyleOptionComboBox &option, const QStyle &style, const QWidget *widget);

// Where the arrows and the slider of a bar stand.
struct BarPlaces {
    QRect back;
    QRect forth;
    QRect slider;
};
void drawScrollBar(QPainter &painter, const QStyleOptionSlider &option, const BarPlaces &places);

void drawMenuItem(QPainter &painter, const QStyleOptionMenuItem &item, const QStyle &style);
QSize menuItemSize(const QStyleOptionMenuItem &item, const QSize &text);

void drawEdge(QPainter &painter, const QStyleOption &option); // around a list, or a box to type in

} // namespace forms
