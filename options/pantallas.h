// The way from the main screen to the screens of the options: its buttons Boton2b, Boton3b and Boton4b.
#pragma once

#include "core/modulo.h"

#include "forms/form.h"

#include "options/opciones1.h"

namespace mainscreen {
class Portada;
}

namespace options {

class Pantallas {
public:
    // Puts its handlers on the buttons; must live as long as the screen does.
    Pantallas(core::Modulo &modulo, mainscreen::Portada &portada);

private:
    void Boton2b_Release();

    mainscreen::Portada &P;
    forms::FormHolder<Opciones1> m_opciones1;
};

} // namespace options
