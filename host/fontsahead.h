// The machine's list of fonts, read while something else goes on.
#pragma once

#include <thread>

namespace host {

// Takes a fifth of a bare start, and doesn't need the toolkit: it is read in a thread of its own while that
// one connects to the screen. To be made in the main thread, behind the program's own changes of the
// environment; the toolkit takes the mark of a desktop's start out of it, and in that moment a variable could
// be overlooked.
class FontsAhead {
public:
    FontsAhead();

    // Until it is read. Whoever needs a font earlier would read it once more.
    void wait();

private:
    std::jthread m_reader;
};

} // namespace host
