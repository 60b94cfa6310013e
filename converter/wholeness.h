// Whether a picture of a kind that the screen shows is there to its end. Without an imaging library.
#pragma once

#include "converter/kind.h"

#include <cstdint>
#include <span>

namespace converter {

// By the lengths that the file tells: of a GIF up to the end of its first picture, of a PNG and a JPEG up to
// their end marks, of a BMP and a WebP up to the last of their bytes. True for the other kinds.
bool isWhole(std::span<const std::uint8_t> file, Kind kind);

} // namespace converter
