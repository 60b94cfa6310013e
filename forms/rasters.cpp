#include "forms/rasters.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>

namespace forms {

namespace {

// By the toolkit's names; empty for what isn't read.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return "gif";
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.startsWith("BM"))
        return "bmp";
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return "webp";
    return {};
}

// A PNG's packed texts and profiles unpack to a thousand times their size, ahead of the first pixel, and none
// of them shows.
QByteArray onlyPixels(const QByteArray &png)
{
    constexpr qsizetype SignatureSize = 8;
    constexpr qsizetype FrameSize = 12; // length, kind and check sum
    QByteArray result = png.first(SignatureSize);
    for (qsizetype place = SignatureSize; place + FrameSize <= png.size();) {
        const qsizetype size = FrameSize + qFromBigEndian<quint32>(png.constData() + place);
        const QByteArray kind = png.mid(place + 4, 4);
        if (kind == "IHDR" || kind == "PLTE" || kind == "tRNS" || kind == "IDAT" || kind == "IEND")
            result += png.mid(place, size);
        place += size;
    }
    return result;
}

// Each scan of a JPEG goes over all of its pixels once more, and a few bytes make one.
qint64 scansOf(const QByteArray &jpeg)
{
    constexpr auto EndOfPicture = '\xD9';
    constexpr auto Scan = '\xDA';
    qint64 scans = 0;
    for (qsizetype place = 2; (place = jpeg.indexOf('\xFF', place)) >= 0 && place + 4 <= jpeg.size();) {
        const auto marker = jpeg[place + 1];
        const bool withoutLength =
            marker == '\0' || marker == '\x01' || (marker >= '\xD0' && marker <= '\xD7');
        if (marker == EndOfPicture)
            break;
        if (marker == Scan)
            ++scans;
        if (marker == '\xFF')
            place += 1;
        else
            place += 2 + (withoutLength ? 0 : qFromBigEndian<quint16>(jpeg.constData() + place + 2));
    }
    return scans;
}

// A GIF's reader tells the size of the first picture, and decodes the whole screen that this is a part of.
QSize sizeOf(const QImageReader &reader, const QByteArray &bytes)
{
    constexpr qsizetype ScreenPlace = 6;
    const QSize size = reader.size();
    if (reader.format() != "gif" || !size.isValid())
        return size;
    const char *screen = bytes.constData() + ScreenPlace;
    return size.expandedTo({ qFromLittleEndian<quint16>(screen), qFromLittleEndian<quint16>(screen + 2) });
}

bool isWithinLimits(const QSize &size, qint64 passes)
{
    constexpr qint64 MostPasses = 1000;
    constexpr qint64 MostDecodedPixels = 16 * MostRasterPixels;
    const qint64 width = size.width();
    const qint64 height = std::abs(qint64(size.height())); // below 0: a BMP whose first line is the top one
    const qint64 pixels = width * height;
    return width > 0 && height > 0 && std::max(width, height) <= MostRasterSide && pixels <= MostRasterPixels
        && passes <= MostPasses && pixels * passes <= MostDecodedPixels;
}

} // namespace

QImage decodeRaster(QByteArray bytes)
{
    const QByteArray format = formatOf(bytes);
    if (format.isEmpty() || bytes.size() > MostRasterBytes)
        return {};
    if (format == "png")
        bytes = onlyPixels(bytes);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    if (!isWithinLimits(sizeOf(reader, bytes), format == "jpeg" ? scansOf(bytes) : 1))
        return {};
    return reader.read();
}

} // namespace forms
