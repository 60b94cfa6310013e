// Drawings in SVG as images. The build renders the program's artwork by it too.
#pragma once

#include <QImage>
#include <QString>

namespace forms {

// The scales at which the artwork is rendered while building: its size on the screen to a design pixel.
inline constexpr qreal RenderedScales[] = { 1, 1.5, 2, 3 };

// The sides, in pixels, of the icons that desktops ask for.
inline constexpr int IconSides[] = { 16, 22, 24, 32, 48, 64, 128 };

// The size in pixels of a picture of so many design pixels.
QSize pixelsOf(const QSize &size, qreal scale);

// The drawing in a file, stretched to so many pixels on a transparent ground.
QImage renderSvg(const QString &file, const QSize &pixels);

} // namespace forms
