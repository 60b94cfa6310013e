// The converter's reading of PCX pictures.
#include "entrada.h"
#include "temas.h"

#include "converter/pcx.h"

#include <algorithm>

namespace pelusa {

namespace {

using converter::Picture;
using File = std::vector<std::uint8_t>;

// Beyond it a picture says nothing new, and takes its time.
constexpr int MostToLookAt = 100'000;

void word(File &file, int value)
{
    file.push_back(std::uint8_t(value & 0xFF));
    file.push_back(std::uint8_t(value >> 8 & 0xFF));
}

// The simplest file of a picture: not packed, 8 bits, a palette of 256 colours at its end or three planes.
File written(const Picture &picture)
{
    const int planes = picture.palette.empty() ? 3 : 1;
    File file = { 10, 5, 0, 8 };
    for (const int value : { 0, 0, picture.width - 1, picture.height - 1, 72, 72 })
        word(file, value);
    file.resize(65);
    file.push_back(std::uint8_t(planes));
    word(file, picture.width);
    file.resize(128);
    const auto width = std::size_t(picture.width);
    for (std::size_t line = 0; line < std::size_t(picture.height); ++line) {
        for (std::size_t plane = 0; plane < std::size_t(planes); ++plane) {
            for (std::size_t x = 0; x < width; ++x)
                file.push_back(picture.pixels[(line * width + x) * std::size_t(planes) + plane]);
        }
    }
    if (planes == 1) {
        file.push_back(12);
        for (std::size_t i = 0; i < 256; ++i) {
            const auto colour = i < picture.palette.size() ? picture.palette[i] : converter::Colour();
            file.insert(file.end(), { colour.red, colour.green, colour.blue });
        }
    }
    return file;
}

void shape(const Picture &picture)
{
    Exige(picture.width > 0 && picture.height > 0, "a picture has pixels");
    const std::size_t pixels = std::size_t(picture.width) * std::size_t(picture.height);
    Exige(pixels <= converter::MostPixels, "a picture isn't too large");
    Exige(picture.pixels.size() == pixels * (picture.palette.empty() ? 3 : 1), "every pixel is there");
    Exige(picture.palette.size() <= 256, "there are 256 colours at most");
    const auto known = [&picture](std::uint8_t pixel) { return pixel < picture.palette.size(); };
    Exige(picture.palette.empty() || std::ranges::all_of(picture.pixels, known), "every pixel has a colour");
}

bool samePixels(const Picture &one, const Picture &other)
{
    return one.width == other.width && one.height == other.height && one.pixels == other.pixels
        && std::equal(one.palette.begin(), one.palette.end(), other.palette.begin());
}

void readAgain(const Picture &picture)
{
    const File file = written(picture);
    try {
        Exige(samePixels(picture, converter::readPcx(file)), "what was written is read back");
    } catch (const converter::Unreadable &) {
        Exige(false, "what was written can be read back");
    }
    const File cut(file.begin(), file.end() - 769 * (picture.palette.empty() ? 0 : 1) - 1);
    try {
        converter::readPcx(cut);
        Exige(false, "a picture that is cut short is none");
    } catch (const converter::Unreadable &) {
    }
}

} // namespace

void probarPcx(Bytes bytes)
{
    Picture picture;
    try {
        picture = converter::readPcx(bytes);
    } catch (const converter::Unreadable &) {
        return;
    }
    shape(picture);
    if (picture.pixels.size() <= MostToLookAt)
        readAgain(picture);
}

} // namespace pelusa
