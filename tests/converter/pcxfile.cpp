#include "pcxfile.h"

#include <array>
#include <cstdio>
#include <initializer_list>

namespace {

constexpr int HeaderSize = 128;
constexpr int ColoursSize = 48;

QByteArray bytesOf(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values)
        result.append(char(value));
    return result;
}

QByteArray word(int value)
{
    return bytesOf({ value & 0xFF, value >> 8 });
}

} // namespace

QByteArray PcxFile::bytes() const
{
    QByteArray result = bytesOf({ maker, version, encoding, bits });
    result += word(left) + word(top) + word(right) + word(bottom) + word(72) + word(72);
    result += QByteArray::fromHex(colours).leftJustified(ColoursSize, '\0');
    result += bytesOf({ 0, planes }) + word(bytesPerLine) + word(paletteKind);
    return result.leftJustified(HeaderSize, '\0') + QByteArray::fromHex(data);
}

converter::Bytes span(const QByteArray &bytes)
{
    return { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) };
}

std::string pixelsOf(const converter::Picture &picture)
{
    std::string result;
    const std::size_t bytesPerPixel = picture.palette.empty() ? 3 : 1;
    for (std::size_t i = 0; i < picture.pixels.size(); i += bytesPerPixel) {
        const std::uint8_t *pixel = &picture.pixels[i];
        const converter::Colour colour = picture.palette.empty()
            ? converter::Colour { pixel[0], pixel[1], pixel[2] }
            : picture.palette.at(*pixel);
        std::array<char, 8> text;
        snprintf(text.data(), text.size(), "%02X%02X%02X", colour.red, colour.green, colour.blue);
        const bool lineEnds = (i / bytesPerPixel + 1) % std::size_t(picture.width) == 0;
        result += std::string(text.data()) + (lineEnds ? '\n' : ' ');
    }
    return result;
}

std::string pixelsOf(const PcxFile &file)
{
    return pixelsOf(converter::readPcx(span(file.bytes())));
}

std::string complaintAbout(const QByteArray &bytes)
{
    try {
        converter::readPcx(span(bytes));
    } catch (const converter::Unreadable &complaint) {
        return complaint.what();
    }
    return {};
}

std::string complaintAbout(const PcxFile &file)
{
    return complaintAbout(file.bytes());
}

QByteArray endPalette()
{
    QByteArray result("0C");
    for (int i = 0; i < 256; ++i)
        result += bytesOf({ i, 255 - i, 7 }).toHex();
    return result;
}
