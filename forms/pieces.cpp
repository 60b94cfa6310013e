#include "forms/pieces.h"

#include "forms/sharp.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace forms {

namespace {

constexpr int Roundness = 3; // design pixels

// In pixels of the device, as all below.
void fillRound(QPainter &painter, const QRect &place, int radius, const QBrush &brush)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(place), radius, radius);
    painter.fillPath(path, brush);
}

QRect within(const QRect &place, int inset)
{
    return place.adjusted(inset, inset, -inset, -inset);
}

QLinearGradient faceOf(const QRect &place, const QPalette &palette, Face face)
{
    QLinearGradient light(place.topLeft(), place.bottomLeft() + QPoint(0, 1));
    if (face == Face::Pressed) {
        light.setColorAt(0, palette.color(QPalette::Shadow));
        light.setColorAt(0.2, palette.color(QPalette::Mid).darker(130));
        light.setColorAt(1, palette.color(QPalette::Mid));
        return light;
    }
    light.setColorAt(0, palette.color(QPalette::Midlight));
    light.setColorAt(0.5, palette.color(QPalette::Button));
    light.setColorAt(1, palette.color(QPalette::Mid));
    return light;
}

} // namespace

void drawRaised(
    QPainter &painter, const QRect &place, const QPalette &palette, Face face, const QColor &outline)
{
    const Sharp sharp(painter, place);
    const int line = sharp.line();
    const int radius = std::min(sharp.pixels(Roundness), sharp.place().height() / 6);
    const QRect inside = within(sharp.place(), line);
    fillRound(painter, sharp.place(), radius, outline);
    fillRound(painter, inside, std::max(radius - line, 0), faceOf(inside, palette, face));
    if (face == Face::Pressed)
        return;
    const int width = inside.width() - 2 * radius;
    QColor light = palette.color(QPalette::Light);
    light.setAlphaF(0.7F);
    painter.fillRect(inside.left() + radius, inside.top(), width, line, light);
}

void drawSunk(QPainter &painter, const QRect &place, const QColor &frame, const QColor &ground)
{
    const Sharp sharp(painter, place);
    const int line = sharp.line();
    const int radius = std::min(sharp.pixels(Roundness), sharp.place().height() / 6);
    fillRound(painter, sharp.place(), radius, frame);
    fillRound(painter, within(sharp.place(), line), std::max(radius - line, 0), ground);
}

void drawFrame(QPainter &painter, const QRect &place, const QColor &colour)
{
    const Sharp sharp(painter, place);
    const int line = sharp.line();
    const QRect &outer = sharp.place();
    painter.fillRect(outer.left(), outer.top(), outer.width(), line, colour);
    painter.fillRect(outer.left(), outer.bottom() + 1 - line, outer.width(), line, colour);
    painter.fillRect(outer.left(), outer.top(), line, outer.height(), colour);
    painter.fillRect(outer.right() + 1 - line, outer.top(), line, outer.height(), colour);
}

void drawDots(QPainter &painter, const QRect &place, const QColor &colour)
{
    const Sharp sharp(painter, place);
    const int line = sharp.line();
    const QRect &outer = sharp.place();
    const int bottom = outer.bottom() + 1 - line;
    const int right = outer.right() + 1 - line;
    for (int x = outer.left(); x <= right; x += 2 * line) {
        painter.fillRect(x, outer.top(), line, line, colour);
        painter.fillRect(x, bottom, line, line, colour);
    }
    for (int y = outer.top(); y <= bottom; y += 2 * line) {
        painter.fillRect(outer.left(), y, line, line, colour);
        painter.fillRect(right, y, line, line, colour);
    }
}

void drawArrow(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &colour)
{
    const Sharp sharp(painter, place);
    const int half = std::min({ sharp.pixels(4), sharp.place().width() / 3, sharp.place().height() / 3 });
    const QRect &area = sharp.place();
    painter.translate(QRectF(area).center());
    switch (direction) {
    case Qt::UpArrow:
        painter.rotate(180);
        break;
    case Qt::LeftArrow:
        painter.rotate(90);
        break;
    case Qt::RightArrow:
        painter.rotate(-90);
        break;
    default:
        break;
    }
    const double height = half * 1.2;
    const QPointF corners[] = { { -1.0 * half, -height / 2 }, { 1.0 * half, -height / 2 },
        { 0, height / 2 } };
    painter.setBrush(colour);
    painter.drawPolygon(corners, 3);
}

void drawTick(QPainter &painter, const QRect &place, const QColor &colour)
{
    const Sharp sharp(painter, place);
    const QRect &area = sharp.place();
    const auto at = [&area](double x, double y) {
        return QPointF(area.left() + x * area.width(), area.top() + y * area.height());
    };
    QPainterPath path(at(0.24, 0.52));
    path.lineTo(at(0.43, 0.73));
    path.lineTo(at(0.77, 0.27));
    painter.strokePath(path, QPen(colour, 0.15 * area.height(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawFolder(QPainter &painter, const QRect &place, bool open)
{
    // Those of the folder on the main screen.
    const QColor outline(qRgb(74, 44, 8));
    const QColor back(qRgb(201, 138, 44));
    constexpr double Side = 12;
    const Sharp sharp(painter, place);
    const QRect &area = sharp.place();
    const auto at = [&area](double x, double y) {
        return QPointF(area.left() + std::round(x * area.width() / Side),
            area.top() + std::round(y * area.height() / Side));
    };
    const auto fill = [&](std::initializer_list<QPointF> corners, const QBrush &brush) {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(corners)));
        path.closeSubpath();
        painter.fillPath(path, brush);
    };
    QLinearGradient light(at(0, 5), at(0, 11));
    light.setColorAt(0, QColor(qRgb(255, 233, 168)));
    light.setColorAt(1, QColor(qRgb(232, 168, 60)));
    const double right = open ? 11 : 12;
    fill({ at(0, 1), at(5, 1), at(6, 3), at(right, 3), at(right, 11), at(0, 11) }, outline);
    fill({ at(1, 2), at(4, 2), at(5, 4), at(right - 1, 4), at(right - 1, 10), at(1, 10) }, back);
    if (!open)
        return fill({ at(1, 5), at(11, 5), at(11, 10), at(1, 10) }, light);
    fill({ at(3, 5), at(12, 5), at(11, 11), at(0, 11) }, outline);
    fill({ at(4, 6), at(11, 6), at(10, 10), at(2, 10) }, light);
}

void drawGrip(QPainter &painter, const QRect &place, Qt::Orientation bar, const QPalette &palette)
{
    const Sharp sharp(painter, place);
    const int line = sharp.line();
    const bool upright = bar == Qt::Vertical;
    const QRect &area = sharp.place();
    const int length = upright ? area.height() : area.width();
    const int across = upright ? area.width() : area.height();
    if (length < 16 * line)
        return;
    const int size = across / 2;
    const int start = (upright ? area.left() : area.top()) + (across - size) / 2;
    const int middle = (upright ? area.top() : area.left()) + length / 2;
    for (const int step : { -3, 0, 3 }) {
        const int at = middle + step * line;
        const QRect dark = upright ? QRect(start, at, size, line) : QRect(at, start, line, size);
        painter.fillRect(dark, palette.color(QPalette::Shadow));
        painter.fillRect(
            dark.translated(upright ? 0 : line, upright ? line : 0), palette.color(QPalette::Light));
    }
}

void drawRing(QPainter &painter, const QRect &place, const Ring &ring)
{
    const Sharp sharp(painter, place);
    const double line = sharp.line();
    const QRectF outer(sharp.place());
    painter.setBrush(ring.frame);
    painter.drawEllipse(outer);
    painter.setBrush(ring.ground);
    painter.drawEllipse(outer.adjusted(line, line, -line, -line));
    if (ring.dot.isValid()) {
        const double inset = outer.width() * 0.3;
        painter.setBrush(ring.dot);
        painter.drawEllipse(outer.adjusted(inset, inset, -inset, -inset));
    }
    if (!ring.focus.isValid())
        return;
    // As many dots as fit in evenly.
    const double half = line / 2;
    const double around = (outer.width() - line) * 3.14159265 / line;
    QPen dots(ring.focus, line, Qt::SolidLine, Qt::FlatCap);
    const double gap = around / (2 * std::max(1.0, std::floor(around / 2))) * 1.0;
    dots.setDashPattern({ gap, gap });
    painter.setPen(dots);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(outer.adjusted(half, half, -half, -half));
}

} // namespace forms
