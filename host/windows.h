// Other programs' windows, by title. On X11 alone: elsewhere nothing is found.
#pragma once

#include <QString>

#include <cstdint>

namespace host {

using WindowId = std::uint32_t;

// The first window in the window manager's list whose title is exactly this one, case apart; 0 if there is
// none.
WindowId findWindow(const QString &title);

// Asks the first window with this title to close, if there is one.
void closeWindowTitled(const QString &title);

// Asks the window to close, in the window manager's standard way; doesn't wait.
void closeWindow(WindowId window);

} // namespace host
