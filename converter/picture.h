// A picture between its reading and its writing, and what reading it can end with.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace converter {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour &) const = default;
};

// Line by line from the top. With a palette a pixel is an index into it, from 0; without one, three bytes:
// red, green, blue.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Colour> palette;
    std::vector<std::uint8_t> pixels;
};

// What keeps a file from being converted, in words that go on after "can't convert NAME: ".
class Unreadable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace converter
