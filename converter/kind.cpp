#include "converter/kind.h"

#include <algorithm>
#include <string_view>

namespace converter {

namespace {

using namespace std::string_view_literals;

bool stands(std::span<const std::uint8_t> bytes, std::size_t place, std::string_view mark)
{
    return bytes.size() >= place + mark.size()
        && std::equal(mark.begin(), mark.end(), bytes.begin() + std::ptrdiff_t(place),
            [](char one, std::uint8_t other) { return static_cast<std::uint8_t>(one) == other; });
}

// Of its four bytes no one is rare alone: maker, version, packed or not, bits of a pixel.
bool isPcx(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view versions = "\0\2\3\4\5"sv;
    constexpr std::string_view bits = "\1\2\4\10"sv;
    return bytes.size() >= 4 && bytes[0] == 10 && versions.find(static_cast<char>(bytes[1])) != versions.npos
        && bytes[2] <= 1 && bits.find(static_cast<char>(bytes[3])) != bits.npos;
}

// Two letters that other files begin with too: the length of the second header tells.
bool isBmp(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view lengths = "\14\20\50\64\70\100\154\174"sv; // 12, 16, 40, 52, 56, 64, 108, 124
    return stands(bytes, 0, "BM"sv) && bytes.size() >= TellingBytes && stands(bytes, 15, "\0"sv)
        && lengths.find(static_cast<char>(bytes[14])) != lengths.npos;
}

} // namespace

Kind kindOf(std::span<const std::uint8_t> bytes)
{
    if (stands(bytes, 0, "\x89PNG\r\n\x1A\n"sv))
        return Kind::Png;
    if (stands(bytes, 0, "\xFF\xD8\xFF"sv))
        return Kind::Jpeg;
    if (stands(bytes, 0, "GIF87a"sv) || stands(bytes, 0, "GIF89a"sv))
        return Kind::Gif;
    if (stands(bytes, 0, "RIFF"sv) && stands(bytes, 8, "WEBP"sv))
        return Kind::WebP;
    if (stands(bytes, 0, "II*\0"sv) || stands(bytes, 0, "MM\0*"sv) || stands(bytes, 0, "II+\0"sv)
        || stands(bytes, 0, "MM\0+"sv))
        return Kind::Tiff;
    if (isBmp(bytes))
        return Kind::Bmp;
    return isPcx(bytes) ? Kind::Pcx : Kind::None;
}

} // namespace converter
