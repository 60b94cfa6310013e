// Whether a picture is there to its end, and how large it is, where the imaging library wouldn't say so.
#pragma once

#include "converter/kind.h"
#include "converter/pcx.h"

#include <optional>

namespace converter {

// False for a JPEG that ends ahead of its end mark: the library fills up with grey what is missing. True for
// all other kinds, of which the library takes none that is cut short.
bool isComplete(Bytes file, Kind kind);

// Width and height in a PNG's header; none of other kinds, and where there is none. The library refuses a
// picture that is too large in words that fit a damaged one.
struct Size {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};
std::optional<Size> sizeInHeader(Bytes file, Kind kind);

} // namespace converter
