#include "converter/pcxpalette.h"

#include <algorithm>
#include <cstdlib>

namespace converter {

namespace {

constexpr std::array<Colour, HeaderColours> Ega = { {
    { 0x00, 0x00, 0x00 },
    { 0x00, 0x00, 0xAA },
    { 0x00, 0xAA, 0x00 },
    { 0x00, 0xAA, 0xAA },
    { 0xAA, 0x00, 0x00 },
    { 0xAA, 0x00, 0xAA },
    { 0xAA, 0x55, 0x00 },
    { 0xAA, 0xAA, 0xAA },
    { 0x55, 0x55, 0x55 },
    { 0x55, 0x55, 0xFF },
    { 0x55, 0xFF, 0x55 },
    { 0x55, 0xFF, 0xFF },
    { 0xFF, 0x55, 0x55 },
    { 0xFF, 0x55, 0xFF },
    { 0xFF, 0xFF, 0x55 },
    { 0xFF, 0xFF, 0xFF },
} };
constexpr Colour Black = Ega.front();
constexpr Colour White = Ega.back();

// The first version with a palette of 256 colours.
constexpr int LastingPalettes = 5;
constexpr std::size_t EndPaletteSize = 3 * 256;
constexpr std::uint8_t EndPaletteMark = 0x0C;

// Two colours of a header that are closer than this are chance, not a choice.
constexpr int TellableApart = 64;

// Versions 0 and 3 are those that write no palette.
bool hasOwnColours(const PcxHeader &header)
{
    return header.version != 0 && header.version != 3;
}

std::vector<Colour> greys(int count)
{
    std::vector<Colour> result;
    for (int i = 0; i < count; ++i) {
        const auto level = static_cast<std::uint8_t>(i * 255 / (count - 1));
        result.push_back({ level, level, level });
    }
    return result;
}

// The video card's registers instead of colours: the background in the upper half of the first colour's first
// byte, and in the upper three bits of the second colour's first byte: colour signal off, white instead of
// yellow, bright.
std::vector<Colour> cgaColours(const PcxHeader &header)
{
    const int background = header.colours[0].red >> 4;
    const int mode = header.colours[1].red;
    const int bright = (mode & 0x20) != 0 ? 8 : 0;
    std::array<int, 3> foreground = { 2, 4, 6 };
    if ((mode & 0x80) != 0)
        foreground = { 3, 4, 7 }; // what a colour screen shows of the signal that should have been grey
    else if ((mode & 0x40) != 0)
        foreground = { 3, 5, 7 };
    std::vector<Colour> result = { Ega[std::size_t(background)] };
    for (const int colour : foreground)
        result.push_back(Ega[std::size_t(colour + bright)]);
    return result;
}

std::vector<Colour> fourColours(const PcxHeader &header)
{
    const auto &colours = header.colours;
    const bool registers = colours[2] == Black && colours[3] == Black;
    if (!hasOwnColours(header) || registers)
        return cgaColours(header);
    return { colours.begin(), colours.begin() + 4 };
}

// Programs that drew in black and white left the card's usual palette in the header, or nothing of use.
std::vector<Colour> twoColours(const PcxHeader &header)
{
    const Colour first = header.colours[0];
    const Colour second = header.colours[1];
    const int distance = std::max({ std::abs(first.red - second.red), std::abs(first.green - second.green),
        std::abs(first.blue - second.blue) });
    const bool leftOver = first == Ega[0] && second == Ega[1];
    if (!hasOwnColours(header) || leftOver || distance < TellableApart)
        return { Black, White };
    return { first, second };
}

std::vector<Colour> upToSixteenColours(const PcxHeader &header)
{
    const int count = header.colourCount();
    const auto &colours = header.colours;
    const bool blank = std::all_of(
        colours.begin(), colours.begin() + count, [&](Colour colour) { return colour == colours[0]; });
    if (hasOwnColours(header) && !blank)
        return { colours.begin(), colours.begin() + count };
    if (header.grey)
        return greys(count);
    return { Ega.begin(), Ega.begin() + count };
}

bool isEndPalette(Bytes file, std::size_t place)
{
    return place + 1 + EndPaletteSize <= file.size() && file[place] == EndPaletteMark;
}

// It stands at the end of the file. Where something was appended to the file, it stands behind the pixels.
std::vector<Colour> endPalette(const PcxHeader &header, Bytes file, std::size_t end)
{
    const std::size_t last = std::max(end, file.size() - std::min(file.size(), 1 + EndPaletteSize));
    for (const std::size_t place : { last, end }) {
        if (!isEndPalette(file, place))
            continue;
        std::vector<Colour> result;
        for (Bytes rest = file.subspan(place + 1, EndPaletteSize); !rest.empty(); rest = rest.subspan(3))
            result.push_back({ rest[0], rest[1], rest[2] });
        return result;
    }
    if (header.grey || header.version < LastingPalettes)
        return greys(header.colourCount());
    throw Unreadable("the palette of 256 colours at its end is missing");
}

} // namespace

std::vector<Colour> paletteOf(const PcxHeader &header, Bytes file, std::size_t end)
{
    if (header.bits == 8)
        return endPalette(header, file, end);
    if (header.bits == 2)
        return fourColours(header);
    return header.colourCount() == 2 ? twoColours(header) : upToSixteenColours(header);
}

} // namespace converter
