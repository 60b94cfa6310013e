// The captures that the screen shows: pictures of a closed list of kinds, within limits.
#include "entrada.h"
#include "temas.h"

#include "forms/rasters.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include <map>

namespace pelusa {

namespace {

// A picture of this size says nothing new, and takes its time.
constexpr qint64 MostToLookAt = 1'000'000;

// By the kind that its first byte stands for, without a look at any other. Of a GIF the whole screen counts,
// of which its first picture may be a part.
QSize sizeOf(QByteArray bytes)
{
    static const std::map<char, QByteArray> formats { { 'G', "gif" }, { '\x89', "png" }, { '\xFF', "jpeg" },
        { 'B', "bmp" }, { 'R', "webp" } };
    const auto format = formats.find(bytes.isEmpty() ? '\0' : bytes.front());
    if (format == formats.end())
        return {};
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format->second);
    reader.setAutoDetectImageFormat(false);
    if (format->first != 'G' || bytes.size() < 10)
        return reader.size();
    return reader.size().expandedTo({ qFromLittleEndian<quint16>(bytes.constData() + 6),
        qFromLittleEndian<quint16>(bytes.constData() + 8) });
}

void anything(const QByteArray &bytes)
{
    const QSize size = sizeOf(bytes);
    const qint64 pixels = qint64(size.width()) * std::abs(qint64(size.height()));
    if (pixels > MostToLookAt && pixels <= forms::MostRasterPixels)
        return;
    const QImage image = forms::decodeRaster(bytes);
    if (image.isNull())
        return;
    Exige(pixels > 0 && pixels <= forms::MostRasterPixels, "a picture beyond the limits is none");
    Exige(image.width() <= size.width() && image.height() <= std::abs(size.height()),
        "a picture is as large as it says");
}

QImage madeOf(Entrada &entrada)
{
    QImage image(1 + entrada.Numero(16), 1 + entrada.Numero(16), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(entrada.Numero(256), entrada.Numero(256), entrada.Numero(256)));
    }
    return image;
}

void written(Entrada &entrada)
{
    const char *format = entrada.Numero(2) == 0 ? "PNG" : "BMP";
    const QImage image = madeOf(entrada);
    const QByteArray behind = entrada.Resto();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    for (const QByteArray &file : { bytes, bytes + behind }) {
        const QImage read = forms::decodeRaster(file);
        Exige(read.convertToFormat(QImage::Format_RGB32) == image, "what was written is read back");
    }
    Exige(forms::decodeRaster("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>" + behind)
              .isNull(),
        "a drawing is no capture");
}

} // namespace

void probarCapturas(Bytes bytes)
{
    Entrada entrada(bytes);
    if (entrada.Numero(2) == 0)
        anything(entrada.Resto());
    else
        written(entrada);
}

} // namespace pelusa
