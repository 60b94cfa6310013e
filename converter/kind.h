// What kind of picture a file is, by its first bytes and never by its name. Without an imaging library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace converter {

enum class Kind { None, Png, Jpeg, Bmp, Gif, WebP, Pcx, Tiff };

// So many bytes tell.
constexpr std::size_t TellingBytes = 16;

// Of a file's first bytes, fewer where it has no more. None for everything else.
Kind kindOf(std::span<const std::uint8_t> bytes);

} // namespace converter
