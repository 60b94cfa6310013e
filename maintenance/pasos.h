// The two steps of configuring an emulator, and the way from one to the other.
#pragma once

#include "core/modulo.h"

#include "forms/form.h"

#include "maintenance/configuracion1.h"

namespace mainscreen {
class Portada;
}

namespace maintenance {

class Pasos {
public:
    Pasos(core::Modulo &modulo, mainscreen::Portada &portada);

    // Shows the first step in the language of the moment; returns when both have closed.
    void Muestra();

private:
    forms::FormHolder<Configuracion1> m_paso1;
};

} // namespace maintenance
