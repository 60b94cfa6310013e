#include "tests/support/opens.h"

#include "forms/rasters.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using forms::decodeRaster;

namespace {

const QByteArray RedGif =
    QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==");
const QByteArray TinyWebP =
    QByteArray::fromBase64("UklGRiIAAABXRUJQVlA4IBYAAAAwAQCdASoBAAEADsD+JaQAA3AAAAAA");

QImage solid(int width, int height, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(width, height, format);
    image.fill(format == QImage::Format_Mono ? 1U : qRgb(255, 0, 0));
    return image;
}

QByteArray written(const QImage &image, const QByteArray &format, bool progressive = false)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image)) << format.constData();
    return buffer.data();
}

QByteArray little(int value)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(quint16(value), bytes.data());
    return bytes;
}

// Whose only picture has no pixels in the file, and is a part of the screen.
QByteArray gifOf(QSize screen, QSize picture)
{
    return "GIF89a" + little(screen.width()) + little(screen.height())
        + QByteArray::fromHex("800000000000FFFFFF") + QByteArray::fromHex("2C00000000")
        + little(picture.width()) + little(picture.height()) + QByteArray::fromHex("000202440100") + ';';
}

QByteArray gifOf(int width, int height)
{
    return gifOf({ width, height }, { width, height });
}

} // namespace

TEST(Rasters, TheFiveKinds_AreToldByTheirFirstBytes)
{
    EXPECT_EQ(decodeRaster(RedGif).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(decodeRaster("GIF87a" + RedGif.mid(6)).size(), QSize(1, 1));
    for (const QByteArray format : { "png", "bmp" }) {
        const QImage image = decodeRaster(written(solid(30, 20), format));
        EXPECT_EQ(image.size(), QSize(30, 20)) << format.constData();
        EXPECT_EQ(image.pixelColor(29, 19), QColor(Qt::red)) << format.constData();
    }
    EXPECT_EQ(decodeRaster(written(solid(30, 20), "jpg")).size(), QSize(30, 20));
    EXPECT_EQ(decodeRaster(written(solid(30, 20), "jpg", true)).size(), QSize(30, 20));
    const bool reader = QImageReader::supportedImageFormats().contains("webp");
    EXPECT_EQ(decodeRaster(TinyWebP).size(), reader ? QSize(1, 1) : QSize(0, 0));
}

TEST(Rasters, AnythingElse_IsNoPicture)
{
    for (const QByteArray &bytes :
        { QByteArray(), QByteArray("no picture"), QByteArray("GIF88a") + RedGif.mid(6),
            written(solid(3, 3), "ppm"), written(solid(3, 3), "xpm"), written(solid(3, 3), "xbm"),
            QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
            QByteArray::fromHex("1F8B08"), RedGif.first(12), QByteArray("BM"), QByteArray("RIFF1234WEBP"),
            QByteArray::fromHex("FFD8FF"), QByteArray::fromHex("89504E470D0A1A0A"),
            QByteArray::fromHex("89504E470D0A1A0AFFFFFFFF494844520000") })
        EXPECT_TRUE(decodeRaster(bytes).isNull()) << bytes.left(40).toPercentEncoding().constData();
}

TEST(Rasters, ADrawing_OpensNoFileThatItNames)
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(u"named.png"_s);
    ASSERT_TRUE(solid(2, 2).save(picture));
    const OpensOf named(picture);
    const QByteArray drawing =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        "width='9' height='9'><image width='9' height='9' xlink:href='"
        + picture.toUtf8() + "'/></svg>";
    EXPECT_TRUE(decodeRaster(drawing).isNull());
    EXPECT_TRUE(decodeRaster("GIF89a" + drawing).isNull());
    EXPECT_TRUE(decodeRaster("\n" + drawing).isNull());
    EXPECT_EQ(named.count(), 0);
}

TEST(Rasters, TooManyPixels_AreRefused)
{
    const auto mono = [](int width, int height) { return solid(width, height, QImage::Format_Mono); };
    EXPECT_FALSE(decodeRaster(written(mono(8192, 4096), "png")).isNull());
    EXPECT_TRUE(decodeRaster(written(mono(8193, 4096), "png")).isNull());
    EXPECT_TRUE(decodeRaster(written(mono(8193, 4096), "bmp")).isNull());
    EXPECT_FALSE(decodeRaster(written(mono(65'535, 1), "png")).isNull());
    EXPECT_TRUE(decodeRaster(written(mono(65'536, 1), "png")).isNull());
    EXPECT_TRUE(decodeRaster(written(mono(1, 65'536), "png")).isNull());
    EXPECT_FALSE(decodeRaster(gifOf(8192, 4096)).isNull());
    EXPECT_TRUE(decodeRaster(gifOf(8192, 4097)).isNull());
    EXPECT_TRUE(decodeRaster(gifOf(65'535, 65'535)).isNull());
}

TEST(Rasters, OfAGif_TheWholeScreenIsMeasured)
{
    // Which the environment may set too.
    const int usual = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(4 * usual);
    EXPECT_EQ(decodeRaster(gifOf({ 8192, 4096 }, { 2, 2 })).size(), QSize(8192, 4096));
    EXPECT_TRUE(decodeRaster(gifOf({ 8192, 4097 }, { 2, 2 })).isNull());
    QImageReader::setAllocationLimit(usual);
}

TEST(Rasters, ABmpFromTheTop_IsMeasuredByTheSizeOfItsHeight)
{
    QByteArray bmp = written(solid(3, 4), "bmp");
    qToLittleEndian(qint32(-4), bmp.data() + 22);
    EXPECT_EQ(decodeRaster(bmp).size(), QSize(3, 4));
    for (const qint32 height : { -65'536, std::numeric_limits<qint32>::min() }) {
        qToLittleEndian(height, bmp.data() + 22);
        EXPECT_TRUE(decodeRaster(bmp).isNull()) << height;
    }
}

TEST(Rasters, AHeaderWithoutItsPixels_TakesNoMemory)
{
    const QByteArray png = written(solid(8, 8), "png");
    const QByteArray header =
        QByteArray::fromHex("0000000D49484452000186A0000186A0080200000027309C9F"); // 100,000 by 100,000
    EXPECT_TRUE(decodeRaster(png.first(8) + header + png.mid(8 + header.size())).isNull());
}

TEST(Rasters, AJpegOfEndlessScans_IsRefused)
{
    for (const int side : { 1024, 8 }) {
        const QByteArray jpeg = written(solid(side, side), "jpg", true);
        const qsizetype last = jpeg.lastIndexOf("\xFF\xDA");
        ASSERT_GT(last, 0);
        const QByteArray scan = jpeg.mid(last, jpeg.size() - 2 - last);
        const auto withMore = [&](int scans) { return jpeg.chopped(2) + scan.repeated(scans) + "\xFF\xD9"; };
        EXPECT_FALSE(decodeRaster(withMore(450)).isNull()) << side;
        EXPECT_TRUE(decodeRaster(withMore(side == 8 ? 1000 : 520)).isNull()) << side;
        // What stands behind the picture's end isn't read.
        EXPECT_FALSE(decodeRaster(jpeg + scan.repeated(1000)).isNull()) << side;
    }
}

TEST(Rasters, TextsOfAPng_AreNotUnpacked)
{
    QImage image = solid(4, 4);
    image.setText(u"Author"_s, u"somebody"_s);
    const QByteArray png = written(image, "png");
    ASSERT_FALSE(QImage::fromData(png).textKeys().isEmpty());
    EXPECT_TRUE(decodeRaster(png).textKeys().isEmpty());
    EXPECT_EQ(decodeRaster(png).pixelColor(3, 3), QColor(Qt::red));
}

TEST(Rasters, TransparencyAndColoursOfAPng_Stay)
{
    QImage palette(2, 1, QImage::Format_Indexed8);
    palette.setColorTable({ qRgba(0, 0, 0, 0), qRgb(0, 128, 255) });
    palette.setPixel(0, 0, 0);
    palette.setPixel(1, 0, 1);
    const QImage image = decodeRaster(written(palette, "png"));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(1, 0), QColor(0, 128, 255));
}

TEST(Rasters, OfAnEndlessGif_TheFirstPictureIsTaken)
{
    const QByteArray header = RedGif.first(19);
    const QByteArray picture = RedGif.mid(19, RedGif.size() - 20);
    const QImage image = decodeRaster(header + picture.repeated(1'000'000));
    EXPECT_EQ(image.size(), QSize(1, 1));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
}
