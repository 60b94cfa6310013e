// Whose the keyboard is, and where boxes stand, on an X11 display without a window manager.
#pragma once

class QWidget;

namespace host {

// True on X11 where no window manager runs: then nobody but the programs themselves places windows and hands
// the keyboard on.
bool isWithoutManager();

// Gives the window, or the one that blocks it, the keyboard where no window manager does and no other program
// has it; now, and a few times within the next second, as the server may learn late that a window is gone.
void takeFreeFocus(QWidget &window);

// In the middle of the window that it stands over. The toolkit leaves room for a frame, which nobody draws
// there. Call it when the box is about to be seen, with its size known.
void centreWithoutManager(QWidget &box);

} // namespace host
