// The way from the main screen to the screens of the options: its buttons Boton2b, Boton3b and Boton4b.
#pragma once

#include "core/modulo.h"

#include "forms/form.h"

#include "options/acercade.h"
#include "options/opciones1.h"
#include "options/utilidades.h"

namespace mainscreen {
class Portada;
}

namespace options {

class Pantallas {
public:
    // Puts its handlers on the buttons; must live as long as the screen does.
    Pantallas(core::Modulo &modulo, mainscreen::Portada &portada);

private:
    // Writes the language on the form, and shows it.
    template <class Forma> void Abre(forms::FormHolder<Forma> &forma);

    mainscreen::Portada &P;
    forms::FormHolder<Opciones1> m_opciones1;
    forms::FormHolder<Utilidades> m_utilidades;
    forms::FormHolder<AcercaDe> m_acercaDe;
};

} // namespace options
