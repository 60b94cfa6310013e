// Drawings that the build has rendered, in a form that is shown as it lies: to decode them took a quarter of
// a start.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace forms {

// The path of a drawing among the program's resources, rendered in so many pixels for a screen of this scale.
// Those of one scale lie together, so that the others take no memory.
QString renderedPath(const QString &name, const QSize &pixels, qreal scale);

// Width and height as 32-bit numbers, then the pixels, ARGB premultiplied, all in the machine's order.
QByteArray packed(const QImage &image);

// Null for what isn't a packed picture.
QImage unpacked(const QByteArray &bytes);

} // namespace forms
