// Pictures: from files the user brings, and the program's own artwork.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace forms {

// A picture file, found in any case, read as decodeRaster tells. Fails with 53 if it is missing, 75 if it is
// no plain file, 481 if it is no picture that can be read or one beyond the limits.
QPixmap LoadPicture(const QString &path);

// Whether the file, found as LoadPicture does, is a picture that it would load. Fails where it can't be read.
bool isPicture(const QString &path);

// The artwork of this name (":/artwork/<name>.svg") at the size given in design pixels, drawn for the device
// pixel ratio; kept once drawn. A name without a drawing is a fault of the build and gives an empty picture.
QPixmap artwork(const QString &name, const QSize &size, qreal devicePixelRatio);

// The same artwork as a window's icon, in the sizes that desktops ask for.
QIcon artworkIcon(const QString &name);

} // namespace forms
