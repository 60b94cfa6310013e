// Pictures whose bytes come from outside: a capture's bytes can be anything, whatever its name ends in.
#pragma once

#include <QByteArray>
#include <QImage>

namespace forms {

constexpr qint64 MostRasterBytes = 64 << 20; // no capture is larger, and a huge file would hold up the screen
constexpr int MostRasterSide = 65'535; // pixels, as many as a GIF can have
constexpr qint64 MostRasterPixels = 8192 * 4096; // 128 MB once decoded

// The first bytes tell which it is of GIF, PNG, JPEG, BMP and WebP (where the toolkit has a reader for that),
// and it is read as that alone. Null for anything else, also for a drawing, which may name other files and be
// of any size; for one beyond the limits, which is found out ahead of the decoding; and where that fails.
// Of several pictures it is the first.
QImage decodeRaster(QByteArray bytes);

} // namespace forms
