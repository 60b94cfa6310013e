#include "converter/completeness.h"

namespace converter {

namespace {

constexpr std::uint8_t Mark = 0xFF;
constexpr std::uint8_t Filler = 0x00; // behind a byte of the picture that equals the mark
constexpr std::uint8_t FirstRestart = 0xD0; // of eight, within the picture
constexpr std::uint8_t Start = 0xD8;
constexpr std::uint8_t End = 0xD9;
constexpr std::uint8_t Scan = 0xDA;
constexpr std::uint8_t Temporary = 0x01;

bool isWithinScan(std::uint8_t code)
{
    return code == Filler || (code >= FirstRestart && code < Start);
}

bool standsAlone(std::uint8_t code)
{
    return code == Temporary || (code >= FirstRestart && code <= Start);
}

// The place of the next mark's code at or behind this one; the file's length if there is none.
std::size_t nextCode(Bytes file, std::size_t place, bool inScan)
{
    for (; place + 1 < file.size(); ++place) {
        const std::uint8_t code = file[place + 1];
        if (file[place] == Mark && code != Mark && !(inScan && isWithinScan(code)))
            return place + 1;
    }
    return file.size();
}

// A thumbnail in a segment has an end mark of its own: the segments are stepped over.
bool hasEndMark(Bytes file)
{
    bool inScan = false;
    std::size_t place = 0;
    for (;;) {
        place = nextCode(file, place, inScan);
        if (place >= file.size())
            return false;
        const std::uint8_t code = file[place++];
        if (code == End)
            return true;
        if (standsAlone(code))
            continue;
        if (place + 2 > file.size())
            return false;
        place += std::size_t(file[place]) << 8 | file[place + 1];
        inScan = inScan || code == Scan;
    }
}

} // namespace

bool isComplete(Bytes file, Kind kind)
{
    return kind != Kind::Jpeg || hasEndMark(file);
}

std::optional<Size> sizeInHeader(Bytes file, Kind kind)
{
    constexpr std::size_t place = 16;
    if (kind != Kind::Png || file.size() < place + 8)
        return std::nullopt;
    const auto number = [&](std::size_t first) {
        return std::uint32_t(file[first]) << 24 | std::uint32_t(file[first + 1]) << 16
            | std::uint32_t(file[first + 2]) << 8 | file[first + 3];
    };
    return Size { number(place), number(place + 4) };
}

} // namespace converter
