// Calls to the system that a signal may interrupt before they have done anything.
#pragma once

#include <cerrno>

namespace host {

// Makes the call until it isn't interrupted: on network file systems any call on a file can be.
template <typename Call> auto retried(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace host
