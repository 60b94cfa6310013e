// Moving a window by a control in it.
#pragma once

class QWidget;

namespace forms {

// Called in the handler of a press on the control: its window follows the pointer until the release. For the
// left button the window system does it. On X11 its own move doesn't see the release of another button, and
// the window would stay at the pointer, so there the window is moved from here, as it is where the window
// system can't.
void MoveWindow(QWidget &handle, int button);

} // namespace forms
