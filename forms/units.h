// Measures of the screens: twips, 15 to the design pixel; fonts in design pixels; colours.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>

class QWidget;

namespace forms {

inline constexpr int TwipsPerPixel = 15;

// Design pixels, rounded half away from zero.
int pixels(int twips);
int twips(int pixels);

// Left, top, width and height in twips, in the client area of the parent.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

QRect inPixels(const Place &place);
Place placeOf(const QWidget &control);
void move(QWidget &control, const Place &place);

// Point sizes are those of a screen with 96 dots to the inch; the fonts are set in design pixels,
// so that the layout holds at any resolution.
QFont arial(double points, bool bold = false);
QFont courier(double points, bool bold = false);
QFont terminal(double points, bool bold = false);

// A colour given as a number in blue-green-red order, as in 0xC0 for red. The system's colours
// 0x80000005 (window) and 0x80000012 (text on a control) give those of the program's own palette.
QColor colourFromNumber(unsigned int number);

} // namespace forms
