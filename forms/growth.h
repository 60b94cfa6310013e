// The room that a caption may take which is wider than its place.
#pragma once

#include <QList>
#include <QRect>

namespace forms {

// The place widened to `width`, as far as there is room, about its point of alignment: a left-aligned one to
// the right, a right-aligned one to the left, a centred one to both sides evenly; what one side lacks the
// other gives. It stays within `room`, and out of the obstacles at its height. Where the place itself lies
// over an obstacle's edge it doesn't grow on that side. A place wide enough stays as it is.
QRect grownPlace(
    const QRect &place, int width, Qt::Alignment alignment, const QRect &room, const QList<QRect> &obstacles);

// The four lines, a pixel wide, of a frame that may have something within.
QList<QRect> frameLines(const QRect &frame);

} // namespace forms
