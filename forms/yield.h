// Giving way to the event loop.
#pragma once

namespace forms {

// Runs the event loop once: all that is pending on all screens. Within another such call it leaves the user's
// keys and mouse to the outer one: coming in faster than they are handled, they would nest without end.
void DoEvents();
bool IsYielding(); // a DoEvents is under way

// The same, with the user's keys and mouse left in the queue for later.
void DoEventsWithoutInput();

// Waits in the event loop until something happens there, the descriptor (-1: none) becomes readable, or the
// time is over; handles what is pending, and returns. The descriptor wakes it once and is not watched between
// calls.
void WaitForEvents(int descriptor, int milliseconds);

} // namespace forms
