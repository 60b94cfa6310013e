// The GIF holds what the picture held, as another program reads it.

#include "converter/gif.h"
#include "converter/pcx.h"
#include "pcxfile.h"

#include <QImage>
#include <QSet>

#include <cmath>

namespace {

QImage written(const converter::Picture &picture)
{
    const QByteArray gif = QByteArray::fromStdString(converter::writeGif(picture));
    EXPECT_TRUE(gif.startsWith("GIF8"));
    EXPECT_TRUE(gif.endsWith(';'));
    return QImage::fromData(gif, "GIF");
}

// Every colour of a cube of 32 by 32 by 32, as some 24-bit pictures have them.
converter::Picture manyColours()
{
    converter::Picture picture { 256, 128, {}, {} };
    for (int i = 0; i < 256 * 128; ++i) {
        for (const int level : { i % 32, i / 32 % 32, i / 1024 })
            picture.pixels.push_back(static_cast<std::uint8_t>(level * 8));
    }
    return picture;
}

// This many colours that lie close together, at levels of 0 to 31, as in a picture of the night.
converter::Picture closeColours(int colours)
{
    converter::Picture picture { 16, colours / 16, {}, {} };
    for (int i = 0; i < colours; ++i) {
        for (const int level : { i % 16 * 2, i / 16 % 16 * 2, i * 32 / colours })
            picture.pixels.push_back(static_cast<std::uint8_t>(level));
    }
    return picture;
}

// A picture without a palette, with this many greys from left to right.
converter::Picture ramp(int colours)
{
    converter::Picture picture { colours, 1, {}, {} };
    for (int i = 0; i < colours; ++i) {
        for (const int level : { i % 256, i % 256, i / 256 })
            picture.pixels.push_back(static_cast<std::uint8_t>(level));
    }
    return picture;
}

// Of all channels, in levels of 255.
double meanDifference(const QImage &image, const converter::Picture &picture)
{
    double sum = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const QRgb is = image.pixel(x, y);
            const std::uint8_t *was = &picture.pixels[std::size_t(3 * (y * picture.width + x))];
            sum += std::abs(qRed(is) - was[0]) + std::abs(qGreen(is) - was[1]) + std::abs(qBlue(is) - was[2]);
        }
    }
    return sum / double(picture.pixels.size());
}

int colourCount(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return int(colours.size());
}

TEST(Gif, TakesTheLongestSidesThatAPictureCanHave)
{
    using converter::MostSide;
    const std::vector<std::uint8_t> pixels(MostSide, 1);
    const std::vector<converter::Colour> palette { {}, { 0, 128, 255 } };
    for (const QSize size : { QSize(MostSide, 1), QSize(1, MostSide) }) {
        const QImage image = written({ size.width(), size.height(), palette, pixels });
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image.pixelColor(size.width() - 1, size.height() - 1), QColor(0, 128, 255));
    }
}

TEST(Gif, KeepsEveryLevelOfEveryChannel)
{
    converter::Picture picture { 256, 1, {}, {} };
    for (int i = 0; i < 256; ++i) {
        const auto level = static_cast<std::uint8_t>(i);
        picture.palette.push_back(
            { level, static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(i * 7) });
        picture.pixels.push_back(level);
    }
    const QImage image = written(picture);
    ASSERT_EQ(image.size(), QSize(256, 1));
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(image.pixel(i, 0), qRgb(i, 255 - i, i * 7 % 256)) << i;
}

TEST(Gif, HoldsASinglePixel)
{
    const QImage image = written({ 1, 1, { { 1, 2, 3 }, { 4, 5, 6 } }, { 1 } });
    ASSERT_EQ(image.size(), QSize(1, 1));
    EXPECT_EQ(image.pixel(0, 0), qRgb(4, 5, 6));
}

TEST(Gif, KeepsThePlacesOfThePixels)
{
    const QImage image =
        written({ 3, 2, { { 0, 0, 0 }, { 255, 0, 0 }, { 0, 255, 0 } }, { 0, 1, 2, 2, 1, 1 } });
    ASSERT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixel(1, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(2, 0), qRgb(0, 255, 0));
    EXPECT_EQ(image.pixel(0, 1), qRgb(0, 255, 0));
}

TEST(Gif, ShowsNothingThrough)
{
    EXPECT_FALSE(written({ 1, 1, { { 0, 0, 0 }, { 1, 1, 1 } }, { 0 } }).hasAlphaChannel());
    EXPECT_FALSE(written(manyColours()).hasAlphaChannel());
}

TEST(Gif, Keeps256ColoursOfAPictureWithoutAPalette)
{
    const QImage image = written(ramp(256));
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(image.pixel(i, 0), qRgb(i, i, 0)) << i;
}

TEST(Gif, Reduces257Colours_BarelyVisibly)
{
    const converter::Picture picture = ramp(257);
    const QImage image = written(picture);
    EXPECT_LE(colourCount(image), 256);
    EXPECT_LT(meanDifference(image, picture), 2.0);
}

TEST(Gif, ReducesManyColours_NearEnough)
{
    const converter::Picture picture = manyColours();
    const QImage image = written(picture);
    EXPECT_LE(colourCount(image), 256);
    EXPECT_LT(meanDifference(image, picture), 16.0);
}

TEST(Gif, ReducesColoursThatLieCloseTogether_ToAsManyAsOthers)
{
    for (const int colours : { 2000, 8192 }) {
        const converter::Picture picture = closeColours(colours);
        const QImage image = written(picture);
        EXPECT_GT(colourCount(image), 200) << colours;
        EXPECT_LE(colourCount(image), 256) << colours;
        EXPECT_LT(meanDifference(image, picture), 2.5) << colours;
    }
}

} // namespace
