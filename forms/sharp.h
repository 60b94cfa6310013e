// Drawing in the pixels of the screen itself.
#pragma once

#include <QRect>

class QPainter;
class QPixmap;
class QRegion;

namespace forms {

// While it lives, the painter draws in pixels of its device, smoothly. Edges at whole numbers are sharp at
// any scale, where those of design pixels would fall between two of the screen's.
class Sharp {
public:
    Sharp(QPainter &painter, const QRect &place); // in the coordinates that the painter has had
    ~Sharp();
    Sharp(const Sharp &) = delete;
    Sharp &operator=(const Sharp &) = delete;

    const QRect &place() const { return m_place; } // the same, in pixels of the device
    int line() const { return pixels(1); } // how wide a line of one design pixel is, at least 1
    int pixels(int designPixels) const; // a length

private:
    QPainter &m_painter;
    QRect m_place;
    double m_scale;
};

// Each pixel of the picture on one of the device, from the corner of the place on.
void drawUnscaled(QPainter &painter, const QRect &place, const QPixmap &picture);

// The picture from the corner of the widget on, in the part of it that is to be painted.
void drawPart(QPainter &painter, const QRegion &part, const QPixmap &picture);

} // namespace forms
