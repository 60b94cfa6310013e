// The toolkit's own connection to an X11 display.
#pragma once

#include <xcb/xcb.h>

namespace host {

// Null where the toolkit draws elsewhere.
xcb_connection_t *x11Connection();

} // namespace host
