// The hourglass of a start.
#pragma once

#include "host/slowdisk.h"

#include <chrono>

namespace forms {

// While it lives, an hourglass that a screen asks for isn't shown before a slow disk has made the start take
// long: it is an animation, megabytes of it in some of the desktops' themes, and the first one takes longer
// to load than a list to fill. Once the program has come to rest it is loaded, for later.
class LateHourglass {
public:
    LateHourglass();
    ~LateHourglass();
    LateHourglass(const LateHourglass &) = delete;
    LateHourglass &operator=(const LateHourglass &) = delete;

private:
    void show();

    std::chrono::steady_clock::time_point m_begun = std::chrono::steady_clock::now();
    bool m_shown = false;
    host::SlowDiskWatch m_watch;
};

} // namespace forms
