// Writing to an open file. Without Qt.
#pragma once

#include <cstddef>

namespace host {

// Writes them all, however few the system takes at once. False, with errno, if it fails or takes none: to ask
// for that again could go on for ever.
bool writeBytes(int file, const char *bytes, std::size_t count);

} // namespace host
