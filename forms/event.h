// A control's event: at most one handler, raised through the guard.
#pragma once

#include "forms/guard.h"

#include <functional>
#include <utility>

namespace forms {

template <typename... Arguments> class Event {
public:
    Event &operator=(std::function<void(Arguments...)> handler)
    {
        m_handler = std::move(handler);
        return *this;
    }

    bool hasHandler() const { return static_cast<bool>(m_handler); }

    void raise(Arguments... arguments) const
    {
        if (m_handler)
            guarded([&, handler = m_handler] { handler(arguments...); });
    }

private:
    std::function<void(Arguments...)> m_handler;
};

} // namespace forms
