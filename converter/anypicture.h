// Reads pictures of every kind that captures come in, by way of GraphicsMagick where it isn't a PCX.
#pragma once

#include "converter/kind.h"
#include "converter/pcx.h"

namespace converter {

// Of more pixels than are read.
class TooLarge : public Unreadable {
public:
    using Unreadable::Unreadable;
};

// The first picture of the file: upright, opaque on black, eight bits a channel, in its proportions at most
// so wide, never enlarged. Throws TooLarge, Unreadable for a file that is damaged or cut short, and what
// GraphicsMagick throws.
Picture readPicture(Bytes file, Kind kind, int mostWide);

} // namespace converter
