#include "forms/sharp.h"

#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace forms {

Sharp::Sharp(QPainter &painter, const QRect &place)
    : m_painter(painter)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRectF exact = toDevice.mapRect(QRectF(place));
    m_place = QRect(QPoint(qRound(exact.left()), qRound(exact.top())),
        QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1));
    m_scale = std::sqrt(std::abs(toDevice.determinant()));
    painter.save();
    painter.setWorldTransform(toDevice.inverted(), true);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
}

Sharp::~Sharp()
{
    m_painter.restore();
}

int Sharp::pixels(int designPixels) const
{
    return std::max(1, qRound(designPixels * m_scale));
}

void drawUnscaled(QPainter &painter, const QRect &place, const QPixmap &picture)
{
    const Sharp sharp(painter, place);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawPixmap(QRect(sharp.place().topLeft(), picture.size()), picture);
}

void drawPart(QPainter &painter, const QRegion &part, const QPixmap &picture)
{
    const double ratio = picture.devicePixelRatio();
    if (ratio != std::floor(ratio)) { // the rectangles would leave gaps
        painter.drawPixmap(0, 0, picture);
        return;
    }
    // The toolkit copies a picture at once into a rectangle; over a region, or smoothed, it goes line by
    // line, in threads that have to wake first.
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    for (const QRect &rectangle : part) {
        painter.setClipRect(rectangle);
        painter.drawPixmap(0, 0, picture);
    }
    painter.restore();
}

} // namespace forms
