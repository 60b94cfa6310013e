// The layout of the main screen.
#pragma once

#include "forms/units.h"

namespace mainscreen {

class Portada;

// The client area, in twips, at 0, 0.
forms::Place LugarDePortada();

struct Disposicion {
    // Makes every control of the screen and puts it in its place.
    static void Monta(Portada &portada);
};

} // namespace mainscreen
