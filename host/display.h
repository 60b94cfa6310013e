// Whether there is a screen to draw on.
#pragma once

namespace host {

// True if the toolkit will find a display: the socket of a Wayland one is there, an X server answers, or the
// user has chosen another platform of the toolkit. Without one the toolkit would abort.
bool hasDisplay();

// The lines of the main monitor where nothing says how large things are to be drawn: neither the toolkit's
// variables, nor the X resource Xft.dpi, nor the compositor of a Wayland desktop. Else 0.
int linesWithoutScale();

// The factor by which the desktop draws everything larger on the main monitor. To be asked for ahead of the
// program's own start of the toolkit, as the toolkit is started and ended for it where nothing else tells.
double desktopFactor(int argc, char **argv);

} // namespace host
