// What everything that uses GraphicsMagick begins with.
#pragma once

namespace converter {

// Starts the library, once, without its handlers of signals, which end the process as if it had ended by
// itself.
void startLibrary();

// The library takes no picture beyond the greatest that is read here, and nothing on the disk. Stays in
// force.
void limitLibrary();

} // namespace converter
