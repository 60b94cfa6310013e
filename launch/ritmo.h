// How often windows are searched while an emulator runs: often enough for a user, seldom enough to cost
// nothing.
#pragma once

#include <chrono>

namespace launch {

class RitmoDeBusqueda {
public:
    static constexpr std::chrono::milliseconds Pausa { 500 };

    // True if a search is due: the first, one a pause or more after the last, and any that has to be.
    bool Toca(std::chrono::steady_clock::time_point ahora, bool siempre)
    {
        if (!siempre && ahora < m_siguiente)
            return false;
        m_siguiente = ahora + Pausa;
        return true;
    }

private:
    std::chrono::steady_clock::time_point m_siguiente {};
};

} // namespace launch
