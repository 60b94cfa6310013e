// Passes over a directory that turn out to take long.
#pragma once

#include <functional>

namespace host {

// While it lives, `tell` runs in the thread that makes such a pass, again and again while that goes on: a busy
// machine makes a disk look slow for a moment. There is one at a time.
class SlowDiskWatch {
public:
    explicit SlowDiskWatch(std::function<void()> tell);
    ~SlowDiskWatch();
    SlowDiskWatch(const SlowDiskWatch &) = delete;
    SlowDiskWatch &operator=(const SlowDiskWatch &) = delete;
};

} // namespace host
