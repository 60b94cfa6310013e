// Work on files of unknown makers, each in a process of its own: what breaks, hangs or swallows memory there
// takes nothing else along.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace converter {

// What a piece of work came to; an empty code is well.
struct Outcome {
    std::string code;
    std::string detail;
};

struct Limits {
    unsigned seconds = 30; // of a processor; of the clock twice as many
    std::size_t bytes = 1'500'000'000; // of memory
};

// Does the pieces from 0 on, so many at once, and tells of each as it ends. One that exceeds its limits, is
// ended by a signal, or can't be begun has the code "too-large", "damaged" or "failed".
void doApart(std::size_t pieces, unsigned atOnce, const Limits &limits,
    const std::function<Outcome(std::size_t)> &work,
    const std::function<void(std::size_t, const Outcome &)> &tell);

} // namespace converter
