#include "converter/wholeness.h"

#include <cstring>
#include <initializer_list>

namespace converter {

namespace {

using File = std::span<const std::uint8_t>;

std::uint64_t little(File file, std::size_t place, int bytes)
{
    std::uint64_t number = 0;
    for (int i = bytes - 1; i >= 0; --i)
        number = number << 8 | file[place + std::size_t(i)];
    return number;
}

std::uint64_t big(File file, std::size_t place, int bytes)
{
    std::uint64_t number = 0;
    for (int i = 0; i < bytes; ++i)
        number = number << 8 | file[place + std::size_t(i)];
    return number;
}

// Behind the table of colours that these flags tell of.
std::size_t behindColours(std::size_t place, std::uint8_t flags)
{
    constexpr std::uint8_t hasTable = 0x80;
    return flags & hasTable ? place + (std::size_t(6) << (flags & 7)) : place;
}

// Behind the block of length 0 that ends a run of them; 0 where the file ends ahead of it.
std::size_t behindBlocks(File file, std::size_t place)
{
    while (place < file.size()) {
        const std::size_t length = file[place];
        place += 1 + length;
        if (length == 0)
            return place;
    }
    return 0;
}

bool isWholeGif(File file)
{
    constexpr std::size_t screen = 13;
    constexpr std::size_t picture = 10;
    constexpr std::uint8_t extension = 0x21;
    constexpr std::uint8_t separator = 0x2C;
    std::size_t place = file.size() < screen ? file.size() : behindColours(screen, file[10]);
    while (place + picture <= file.size()) {
        if (file[place] == separator)
            return behindBlocks(file, behindColours(place + picture, file[place + 9]) + 1) > 0;
        place = file[place] == extension ? behindBlocks(file, place + 2) : 0;
        if (place == 0)
            return false;
    }
    return false;
}

bool isWholePng(File file)
{
    constexpr std::size_t signature = 8;
    constexpr std::size_t frame = 12; // length, kind and check sum
    for (std::size_t place = signature; place + frame <= file.size();) {
        const std::uint64_t next = place + frame + big(file, place, 4);
        if (std::memcmp(&file[place + 4], "IEND", 4) == 0)
            return next <= file.size();
        place = next < file.size() ? std::size_t(next) : file.size();
    }
    return false;
}

// A thumbnail in a segment has an end mark of its own: the segments are stepped over.
bool isWholeJpeg(File file)
{
    constexpr std::uint8_t mark = 0xFF;
    constexpr std::uint8_t firstRestart = 0xD0; // of eight, within the picture
    constexpr std::uint8_t start = 0xD8;
    constexpr std::uint8_t end = 0xD9;
    for (std::size_t place = 2; place + 1 < file.size();) {
        const std::uint8_t code = file[place + 1];
        const bool alone = code <= 1 || (code >= firstRestart && code <= start);
        if (file[place] != mark || code == mark)
            ++place;
        else if (code == end)
            return true;
        else if (alone)
            place += 2;
        else if (place + 4 > file.size())
            return false;
        else
            place += 2 + std::size_t(big(file, place + 2, 2));
    }
    return false;
}

bool isWholeBmp(File file)
{
    constexpr std::size_t headers = 54;
    constexpr std::uint64_t oldHeader = 12;
    if (file.size() < 26 || (little(file, 14, 4) != oldHeader && file.size() < headers))
        return false;
    const bool old = little(file, 14, 4) == oldHeader;
    const std::uint64_t width = little(file, 18, old ? 2 : 4);
    const std::uint64_t height = little(file, old ? 20 : 22, old ? 2 : 4);
    const std::uint64_t lines = height >> 31 ? (std::uint64_t(1) << 32) - height : height; // top line first
    const std::uint64_t line = (width * little(file, old ? 24 : 28, 2) + 31) / 32 * 4;
    const bool packed = !old && (little(file, 30, 4) == 1 || little(file, 30, 4) == 2);
    const std::uint64_t pixels = packed ? little(file, 34, 4) : line * lines;
    const std::uint64_t place = little(file, 10, 4);
    return place <= file.size() && pixels <= file.size() - place;
}

bool isWholeWebP(File file)
{
    return file.size() >= 8 && little(file, 4, 4) <= file.size() - 8;
}

} // namespace

bool isWhole(File file, Kind kind)
{
    switch (kind) {
    case Kind::Gif:
        return isWholeGif(file);
    case Kind::Png:
        return isWholePng(file);
    case Kind::Jpeg:
        return isWholeJpeg(file);
    case Kind::Bmp:
        return isWholeBmp(file);
    case Kind::WebP:
        return isWholeWebP(file);
    default:
        return true;
    }
}

} // namespace converter
