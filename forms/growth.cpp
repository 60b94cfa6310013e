#include "forms/growth.h"

#include <algorithm>

namespace forms {

namespace {

struct Span {
    int left;
    int right; // one past the last pixel
};

Span spanOf(const QRect &rect)
{
    return { rect.x(), rect.x() + rect.width() };
}

// The widest span about the place that is free at its height.
Span freeSpan(const QRect &place, const QRect &room, const QList<QRect> &obstacles)
{
    const Span own = spanOf(place);
    Span free = spanOf(room);
    for (const QRect &obstacle : obstacles) {
        if (obstacle.top() > place.bottom() || obstacle.bottom() < place.top())
            continue;
        const Span taken = spanOf(obstacle);
        if (taken.right > own.right)
            free.right = std::min(free.right, taken.left);
        if (taken.left < own.left)
            free.left = std::max(free.left, taken.right);
    }
    return { std::min(free.left, own.left), std::max(free.right, own.right) };
}

} // namespace

QRect grownPlace(
    const QRect &place, int width, Qt::Alignment alignment, const QRect &room, const QList<QRect> &obstacles)
{
    const int missing = width - place.width();
    if (missing <= 0)
        return place;

    const Span own = spanOf(place);
    const Span free = freeSpan(place, room, obstacles);
    const int roomLeft = own.left - free.left;
    const int roomRight = free.right - own.right;
    if (alignment.testFlag(Qt::AlignRight))
        return place.adjusted(-std::min(missing, roomLeft), 0, 0, 0);
    if (!alignment.testFlag(Qt::AlignHCenter))
        return place.adjusted(0, 0, std::min(missing, roomRight), 0);

    const int evenLeft = std::min(missing / 2, roomLeft);
    const int toRight = std::min(missing - evenLeft, roomRight);
    const int toLeft = std::min(missing - toRight, roomLeft);
    return place.adjusted(-toLeft, 0, toRight, 0);
}

QList<QRect> frameLines(const QRect &frame)
{
    return { QRect(frame.left(), frame.top(), frame.width(), 1),
        QRect(frame.left(), frame.bottom(), frame.width(), 1),
        QRect(frame.left(), frame.top(), 1, frame.height()),
        QRect(frame.right(), frame.top(), 1, frame.height()) };
}

} // namespace forms
