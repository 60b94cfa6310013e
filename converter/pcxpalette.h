// Which colours a PCX picture has. Each version of its first program kept them in another way, and several
// left the header's palette to chance.
#pragma once

#include "converter/pcx.h"

#include <array>

namespace converter {

constexpr int HeaderColours = 16;

struct PcxHeader {
    int version = 0;
    bool packed = false;
    int bits = 0; // per pixel and plane
    int planes = 0;
    int width = 0;
    int height = 0;
    int bytesPerLine = 0; // of one plane
    bool grey = false;
    std::array<Colour, HeaderColours> colours;

    bool hasPalette() const { return bits * planes <= 8; }
    int colourCount() const { return 1 << (bits * planes); }
};

// As many colours as the picture's kind can show. `end` is where its pixels end in the file. Throws
// Unreadable if the palette should stand behind them and doesn't.
std::vector<Colour> paletteOf(const PcxHeader &header, Bytes file, std::size_t end);

} // namespace converter
