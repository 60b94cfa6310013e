// The first picture of an animated WebP, which the imaging library doesn't take.
#pragma once

#include "converter/pcx.h"

#include <optional>

namespace converter {

struct WebPFrame {
    std::vector<std::uint8_t> file; // a WebP of this picture alone
    int left = 0; // where it lies on the canvas
    int top = 0;
    int canvasWidth = 0;
    int canvasHeight = 0;
};

// None for a WebP that isn't animated, or whose first picture isn't there.
std::optional<WebPFrame> firstWebPFrame(Bytes file);

} // namespace converter
