#include "converter/anypicture.h"

#include "converter/completeness.h"
#include "converter/magick.h"
#include "converter/webpframe.h"

#include <Magick++.h>

#include <algorithm>
#include <optional>
#include <string>

namespace converter {

namespace {

const char *libraryNameOf(Kind kind)
{
    switch (kind) {
    case Kind::Png:
        return "PNG";
    case Kind::Jpeg:
        return "JPEG";
    case Kind::Bmp:
        return "BMP";
    case Kind::Gif:
        return "GIF";
    case Kind::WebP:
        return "WEBP";
    case Kind::Tiff:
        return "TIFF";
    default:
        throw Unreadable("it is no picture of a known kind");
    }
}

Picture withColours(const Picture &picture)
{
    Picture result { picture.width, picture.height, {}, {} };
    result.pixels.reserve(picture.pixels.size() * 3);
    for (const std::uint8_t pixel : picture.pixels) {
        const Colour colour = picture.palette[pixel];
        result.pixels.insert(result.pixels.end(), { colour.red, colour.green, colour.blue });
    }
    return result;
}

Magick::Image imageOf(const Picture &picture)
{
    return Magick::Image(static_cast<unsigned int>(picture.width), static_cast<unsigned int>(picture.height),
        "RGB", Magick::CharPixel, picture.pixels.data());
}

// Who reads it has been told that the picture is too large.
std::string limitInWords()
{
    constexpr std::uint64_t million = 1'000'000;
    return "at most " + std::to_string(MostPixels / million) + " million of them are read, and "
        + std::to_string(MostSide) + " a side";
}

void checkSize(std::uint64_t width, std::uint64_t height)
{
    if (width > MostSide || height > MostSide || width * height > MostPixels) {
        throw TooLarge(std::to_string(width) + " by " + std::to_string(height) + " pixels; " + limitInWords());
    }
}

Magick::Image readByLibrary(Bytes file, Kind kind)
{
    const Magick::Blob blob(file.data(), file.size());
    Magick::Image image;
    image.quiet(true); // with whatever is odd about a picture that is whole
    image.magick(libraryNameOf(kind));
    image.subImage(0);
    image.subRange(1);
    try {
        image.read(blob);
    } catch (const Magick::ErrorResourceLimit &) {
        throw TooLarge(limitInWords());
    }
    checkSize(image.columns(), image.rows());
    return image;
}

// Where an animation's first picture lies may be a part of what is seen.
Magick::Image onCanvas(const Magick::Image &image, const Magick::Geometry &canvas)
{
    const auto width = static_cast<unsigned>(std::max<std::size_t>(canvas.width(), image.columns()));
    const auto height = static_cast<unsigned>(std::max<std::size_t>(canvas.height(), image.rows()));
    checkSize(width, height);
    Magick::Image whole(Magick::Geometry(width, height), Magick::Color("black"));
    whole.composite(image, int(canvas.xOff()), int(canvas.yOff()), Magick::OverCompositeOp);
    return whole;
}

Magick::Image readFirst(Bytes file, Kind kind)
{
    if (!isComplete(file, kind))
        throw Unreadable("the file ends before the picture does");
    if (const std::optional<Size> size = sizeInHeader(file, kind))
        checkSize(size->width, size->height);
    if (const std::optional<WebPFrame> frame = kind == Kind::WebP ? firstWebPFrame(file) : std::nullopt) {
        checkSize(std::uint64_t(frame->canvasWidth), std::uint64_t(frame->canvasHeight));
        return onCanvas(readByLibrary(frame->file, kind),
            Magick::Geometry(static_cast<unsigned>(frame->canvasWidth),
                static_cast<unsigned>(frame->canvasHeight), static_cast<unsigned>(frame->left),
                static_cast<unsigned>(frame->top)));
    }
    const Magick::Image image = readByLibrary(file, kind);
    const Magick::Geometry page = image.page();
    const bool partial = page.width() > image.columns() || page.height() > image.rows();
    return kind == Kind::Gif && partial ? onCanvas(image, page) : image;
}

bool isInvisible(const Magick::Image &image)
{
    const auto width = static_cast<unsigned>(image.columns());
    for (int y = 0; y < int(image.rows()); ++y) {
        const Magick::PixelPacket *pixels = image.getConstPixels(0, y, width, 1);
        if (std::any_of(pixels, pixels + width,
                [](const Magick::PixelPacket &pixel) { return pixel.opacity != TransparentOpacity; }))
            return false;
    }
    return true;
}

void layOnBlack(Magick::Image &image, Kind kind)
{
    if (!image.matte())
        return;
    // Programs that write bitmaps of 32 bits leave the fourth byte at nothing.
    if (kind == Kind::Bmp && isInvisible(image))
        return image.matte(false);
    image.classType(Magick::DirectClass);
    const auto over = [](unsigned channel, unsigned opacity) {
        return Magick::Quantum((channel * (MaxRGB - std::uint64_t(opacity)) + MaxRGB / 2) / MaxRGB);
    };
    const auto width = static_cast<unsigned>(image.columns());
    for (int y = 0; y < int(image.rows()); ++y) {
        Magick::PixelPacket *pixel = image.getPixels(0, y, width, 1);
        for (unsigned x = 0; x < width; ++x, ++pixel) {
            pixel->red = over(pixel->red, pixel->opacity);
            pixel->green = over(pixel->green, pixel->opacity);
            pixel->blue = over(pixel->blue, pixel->opacity);
            pixel->opacity = OpaqueOpacity;
        }
        image.syncPixels();
    }
    image.matte(false);
}

void narrow(Magick::Image &image, int mostWide)
{
    const auto width = static_cast<unsigned>(mostWide);
    if (image.columns() <= width)
        return;
    const std::uint64_t height =
        (std::uint64_t(image.rows()) * width + image.columns() / 2) / image.columns();
    Magick::Geometry size(width, std::max(1U, static_cast<unsigned>(height)));
    size.aspect(true);
    // Each pixel is the mean of those that it stands for: screens of square pixels stay clear, and nothing
    // rings.
    image.scale(size);
}

Picture pixelsOf(Magick::Image &image)
{
    Picture picture { int(image.columns()), int(image.rows()), {}, {} };
    picture.pixels.resize(std::size_t(picture.width) * std::size_t(picture.height) * 3);
    image.write(0, 0, static_cast<unsigned>(picture.width), static_cast<unsigned>(picture.height), "RGB",
        Magick::CharPixel, picture.pixels.data());
    return picture;
}

} // namespace

Picture readPicture(Bytes file, Kind kind, int mostWide)
{
    startLibrary();
    if (kind == Kind::Pcx) {
        const Picture picture = readPcx(file);
        if (picture.width <= mostWide)
            return picture;
        Magick::Image image = imageOf(picture.palette.empty() ? picture : withColours(picture));
        narrow(image, mostWide);
        return pixelsOf(image);
    }
    Magick::Image image = readFirst(file, kind);
    image.autoOrient();
    image.colorSpace(Magick::RGBColorspace);
    layOnBlack(image, kind);
    narrow(image, mostWide);
    return pixelsOf(image);
}

} // namespace converter
