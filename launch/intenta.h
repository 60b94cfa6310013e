// A launch goes on whatever fails: each of its steps is tried by itself, and one that fails is skipped alone.
#pragma once

#include "host/failure.h"

namespace launch {

// True if the step ran to its end.
template <typename Paso> bool Intenta(Paso &&paso)
{
    try {
        paso();
        return true;
    } catch (const host::Failure &) {
        return false;
    }
}

} // namespace launch
