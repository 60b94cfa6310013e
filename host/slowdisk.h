// Passes over a directory that turn out to take long.
#pragma once

#include <functional>

namespace host {

// While it lives, `tell` runs in the thread that makes such a pass, once it is known. There is one at a time.
class SlowDiskWatch {
public:
    explicit SlowDiskWatch(std::function<void()> tell);
    ~SlowDiskWatch();
    SlowDiskWatch(const SlowDiskWatch &) = delete;
    SlowDiskWatch &operator=(const SlowDiskWatch &) = delete;
};

} // namespace host
