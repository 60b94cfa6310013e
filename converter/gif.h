// Writes a picture as a GIF, by way of GraphicsMagick.
#pragma once

#include "converter/picture.h"

#include <string>

namespace converter {

// The whole file. Up to 256 colours stay as they are; more are reduced to the 256 that fit best. Throws what
// GraphicsMagick throws.
std::string writeGif(const Picture &picture);

} // namespace converter
