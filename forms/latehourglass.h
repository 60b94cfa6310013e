// The hourglass of a start.
#pragma once

#include "host/slowdisk.h"

namespace forms {

// While it lives, an hourglass that a screen asks for isn't shown, unless a disk turns out to be slow: it is
// an animation, megabytes of it in some of the desktops' themes, and the first one takes longer to load than
// a list to fill. Once the program has come to rest it is loaded, for later.
class LateHourglass {
public:
    LateHourglass();
    ~LateHourglass();
    LateHourglass(const LateHourglass &) = delete;
    LateHourglass &operator=(const LateHourglass &) = delete;

private:
    void show();

    bool m_shown = false;
    host::SlowDiskWatch m_watch;
};

} // namespace forms
