// The two files of a conversion: reading the one, and putting the other beside it, whole or not at all.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace converter {

// A packed PCX of the greatest size, at its worst.
constexpr std::int64_t LargestFile = 320'000'000;

// All bytes of a plain file. Throws Unreadable if it is something else or larger than LargestFile,
// std::system_error if it can't be read.
std::vector<std::uint8_t> readCapture(const std::string &name);

// "GAME.PCX" has "GAME.GIF"; a name that doesn't end in ".pcx", in any case, has ".GIF" behind it whole.
// Where there is a GIF of that name already whose ending is in lower case, it is that one.
std::string gifNameFor(const std::string &name);

// Writes under a name of its own beside it, flushes that to the disk, and puts it in the old file's place in
// one step. What killed runs left unfinished there goes. A link in that place is replaced, not followed.
// Throws std::system_error, and then the old file is as it was.
void replaceFile(const std::string &name, const std::string &bytes);

} // namespace converter
