#include "converter/gif.h"

#include <Magick++.h>

#include <algorithm>

namespace converter {

namespace {

constexpr std::size_t MostColours = 256;

// The reduction's tree at a depth of 4 has this many leaves. With more colours than that, the greater depth
// that it chooses itself finds no better ones, in five times the time.
constexpr std::size_t LeavesOfShallowTree = 4096;
constexpr unsigned int ShallowTree = 4;

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

// Without the library's handlers of signals, which end the process as if it had ended by itself.
void startLibrary()
{
    MagickLib::ExceptionInfo exception;
    MagickLib::GetExceptionInfo(&exception);
    MagickLib::InitializeMagickEx(nullptr, MAGICK_OPT_NO_SIGNAL_HANDER, &exception);
    MagickLib::DestroyExceptionInfo(&exception);
    Magick::InitializeMagick(nullptr);
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

Magick::Image reducedImage(const Picture &picture, std::size_t colours)
{
    Magick::Image image(static_cast<unsigned int>(picture.width), static_cast<unsigned int>(picture.height),
        "RGB", Magick::CharPixel, picture.pixels.data());
    image.quantizeColors(MostColours);
    image.quantizeDither(true);
    if (colours > LeavesOfShallowTree)
        image.quantizeTreeDepth(ShallowTree);
    image.quantize();
    return image;
}

Magick::Image imageOf(const Picture &picture)
{
    if (!picture.palette.empty())
        return indexedImage(picture);
    const std::vector<std::uint32_t> colours = coloursIn(picture);
    if (colours.size() <= MostColours)
        return indexedImage(withPalette(picture, colours));
    return reducedImage(picture, colours.size());
}

} // namespace

std::string writeGif(const Picture &picture)
{
    startLibrary();
    Magick::Image image = imageOf(picture);
    image.magick("GIF");
    Magick::Blob blob;
    image.write(&blob);
    return { static_cast<const char *>(blob.data()), blob.length() };
}

} // namespace converter
