// The pieces that the toolkit's controls are drawn from. Places are in the painter's coordinates; every edge
// falls on a pixel of the screen.
#pragma once

#include <QPalette>
#include <QRect>

class QPainter;

namespace forms {

enum class Face { AtRest, Pressed };

// A button's ground: a dark line around a face that is lit from above, or from below while it is pressed.
void drawRaised(
    QPainter &painter, const QRect &place, const QPalette &palette, Face face, const QColor &outline);

// What is let into the ground: a line around a plain colour.
void drawSunk(QPainter &painter, const QRect &place, const QColor &frame, const QColor &ground);

void drawFrame(QPainter &painter, const QRect &place, const QColor &colour); // one line, corners and all

// Dots along the inside of the edge.
void drawDots(QPainter &painter, const QRect &place, const QColor &colour);

void drawArrow(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &colour);
void drawTick(QPainter &painter, const QRect &place, const QColor &colour);

void drawFolder(QPainter &painter, const QRect &place, bool open);

// Three short lines across the length of a bar's slider.
void drawGrip(QPainter &painter, const QRect &place, Qt::Orientation bar, const QPalette &palette);

// An option button: a ring, in it a dot where it is chosen; of the focus the ring is of dots.
struct Ring {
    QColor frame;
    QColor ground;
    QColor dot; // not valid: none
    QColor focus; // not valid: none
};
void drawRing(QPainter &painter, const QRect &place, const Ring &ring);

} // namespace forms
