// Reads PCX pictures of every kind that programs have written: 1, 2, 4 and 8 bits, one to four planes, packed
// or not, with the palettes of every version.
//
// Imaging libraries take the fixed palettes of the oldest versions and of the CGA, and coloured pictures of 1
// bit, for other colours, and refuse grey pictures without a palette. So this reads all kinds itself.
#pragma once

#include "converter/picture.h"

#include <span>

namespace converter {

using Bytes = std::span<const std::uint8_t>;

// An A4 page at 600 dots an inch has 35 million.
constexpr std::uint64_t MostPixels = 40'000'000;

// As many as a GIF can have; a PCX can have one more.
constexpr int MostSide = 65'535;

// Throws Unreadable: no PCX, a kind that isn't known, no pixels or too many, the file cut short, or 256
// colours without their palette. Its memory is bound by what the file
// really holds, whatever the header says.
Picture readPcx(Bytes file);

} // namespace converter
