#include "options/pantallas.h"

#include "mainscreen/portada.h"

namespace options {

Pantallas::Pantallas(core::Modulo &modulo, mainscreen::Portada &portada)
    : P(portada)
    , m_opciones1([&modulo, &portada] { return std::make_unique<Opciones1>(modulo, portada); })
{
    P.Boton2b->Release = [this] { Boton2b_Release(); };
}

void Pantallas::Boton2b_Release()
{
    m_opciones1->PonTextos();
    m_opciones1.ShowModal(&P);
}

} // namespace options
