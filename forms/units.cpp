#include "forms/units.h"

#include <QWidget>

#include <cmath>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QFont font(const QString &family, QFont::StyleHint kind, double points, bool bold)
{
    constexpr double DotsPerPoint = 96.0 / 72.0;
    QFont result(family);
    result.setStyleHint(kind);
    result.setPixelSize(static_cast<int>(std::lround(points * DotsPerPoint)));
    result.setBold(bold);
    return result;
}

} // namespace

int pixels(int twips)
{
    constexpr int Half = TwipsPerPixel / 2;
    return (twips < 0 ? twips - Half : twips + Half) / TwipsPerPixel;
}

int twips(int pixels)
{
    return pixels * TwipsPerPixel;
}

QRect inPixels(const Place &place)
{
    return { pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height) };
}

Place placeOf(const QWidget &control)
{
    const QRect place = control.geometry();
    return { twips(place.x()), twips(place.y()), twips(place.width()), twips(place.height()) };
}

void move(QWidget &control, const Place &place)
{
    control.setGeometry(inPixels(place));
}

QFont arial(double points, bool bold)
{
    return font(u"Liberation Sans"_s, QFont::SansSerif, points, bold);
}

QFont courier(double points, bool bold)
{
    return font(u"Liberation Mono"_s, QFont::Monospace, points, bold);
}

QFont terminal(double points, bool bold)
{
    return font(u"Liberation Mono"_s, QFont::Monospace, points, bold);
}

QColor colourFromNumber(unsigned int number)
{
    constexpr unsigned int Window = 0x80000005;
    constexpr unsigned int ControlText = 0x80000012;
    if (number == Window)
        return Qt::white;
    if (number == ControlText)
        return Qt::black;
    return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

} // namespace forms
