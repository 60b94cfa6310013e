#include "converter/gif.h"

#include "converter/magick.h"

#include <Magick++.h>

#include <algorithm>

namespace converter {

namespace {

constexpr std::size_t MostColours = 256;

// The reduction sorts the colours into a tree, whose cells halve each channel at every level; what shares a
// cell of the deepest level becomes one colour. The depth that the library chooses itself leaves some twenty
// colours of a picture of close ones, and the greatest takes seconds where there are many.
constexpr unsigned int LeastDepth = 4;
constexpr unsigned int GreatestDepth = 8;
constexpr std::size_t CellsThatSuffice = 2 * MostColours;

std::uint32_t colourAt(const Picture &picture, std::size_t byte)
{
    const std::uint8_t *pixel = &picture.pixels[byte];
    return std::uint32_t(pixel[0]) << 16 | std::uint32_t(pixel[1]) << 8 | pixel[2];
}

// Of a picture without a palette; in ascending order.
std::vector<std::uint32_t> coloursIn(const Picture &picture)
{
    std::vector<bool> seen(std::size_t(1) << 24);
    std::vector<std::uint32_t> result;
    for (std::size_t i = 0; i < picture.pixels.size(); i += 3) {
        const std::uint32_t colour = colourAt(picture, i);
        if (!seen[colour])
            result.push_back(colour);
        seen[colour] = true;
    }
    std::sort(result.begin(), result.end());
    return result;
}

Picture withPalette(const Picture &picture, const std::vector<std::uint32_t> &colours)
{
    Picture result { picture.width, picture.height, {}, {} };
    for (const std::uint32_t colour : colours) {
        result.palette.push_back({ static_cast<std::uint8_t>(colour >> 16),
            static_cast<std::uint8_t>(colour >> 8 & 0xFF), static_cast<std::uint8_t>(colour & 0xFF) });
    }
    result.pixels.reserve(picture.pixels.size() / 3);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 3) {
        const auto place = std::lower_bound(colours.begin(), colours.end(), colourAt(picture, i));
        result.pixels.push_back(static_cast<std::uint8_t>(place - colours.begin()));
    }
    return result;
}

Magick::Image indexedImage(const Picture &picture)
{
    std::vector<Magick::Color> colours;
    for (const Colour colour : picture.palette)
        colours.push_back(Magick::ColorRGB(colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0));
    const auto width = static_cast<unsigned int>(picture.width);
    const auto height = static_cast<unsigned int>(picture.height);
    Magick::Image image(Magick::Geometry(width, height), Magick::Color());
    image.classType(Magick::PseudoClass);
    image.colorMapSize(static_cast<unsigned int>(colours.size()));
    for (std::size_t i = 0; i < colours.size(); ++i)
        image.colorMap(static_cast<unsigned int>(i), colours[i]);
    auto pixel = picture.pixels.begin();
    for (int y = 0; y < picture.height; ++y) {
        Magick::PixelPacket *packets = image.setPixels(0, y, width, 1);
        Magick::IndexPacket *indices = image.getIndexes();
        for (unsigned int x = 0; x < width; ++x, ++pixel) {
            packets[x] = colours[*pixel];
            indices[x] = *pixel;
        }
        image.syncPixels();
    }
    return image;
}

std::size_t cellsAt(unsigned int depth, const std::vector<std::uint32_t> &colours)
{
    const std::uint32_t channel = 0xFFU << (8 - depth) & 0xFF;
    const std::uint32_t cell = channel << 16 | channel << 8 | channel;
    std::vector<bool> seen(std::size_t(1) << 24);
    std::size_t result = 0;
    for (const std::uint32_t colour : colours) {
        result += seen[colour & cell] ? 0 : 1;
        seen[colour & cell] = true;
    }
    return result;
}

// The least that tells enough of these colours apart.
unsigned int depthFor(const std::vector<std::uint32_t> &colours)
{
    unsigned int depth = LeastDepth;
    while (depth < GreatestDepth && cellsAt(depth, colours) < CellsThatSuffice)
        ++depth;
    return depth;
}

Magick::Image reducedImage(const Picture &picture, const std::vector<std::uint32_t> &colours)
{
    Magick::Image image(static_cast<unsigned int>(picture.width), static_cast<unsigned int>(picture.height),
        "RGB", Magick::CharPixel, picture.pixels.data());
    image.quantizeColors(MostColours);
    image.quantizeDither(true);
    image.quantizeTreeDepth(depthFor(colours));
    image.quantize();
    return image;
}

Magick::Image indexedImageOf(const Picture &picture)
{
    if (!picture.palette.empty())
        return indexedImage(picture);
    const std::vector<std::uint32_t> colours = coloursIn(picture);
    if (colours.size() <= MostColours)
        return indexedImage(withPalette(picture, colours));
    return reducedImage(picture, colours);
}

} // namespace

std::string writeGif(const Picture &picture)
{
    startLibrary();
    Magick::Image image = indexedImageOf(picture);
    image.magick("GIF");
    Magick::Blob blob;
    image.write(&blob);
    return { static_cast<const char *>(blob.data()), blob.length() };
}

} // namespace converter
