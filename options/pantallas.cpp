#include "options/pantallas.h"

#include "mainscreen/portada.h"

namespace options {

Pantallas::Pantallas(core::Modulo &modulo, mainscreen::Portada &portada)
    : P(portada)
    , m_opciones1([&modulo, &portada] { return std::make_unique<Opciones1>(modulo, portada); })
    , m_utilidades(
          [this, &modulo, &portada] { return std::make_unique<Utilidades>(modulo, portada, m_opciones1); })
    , m_acercaDe([&modulo, &portada] { return std::make_unique<AcercaDe>(modulo, portada); })
{
    P.Boton2b->Release = [this] { Abre(m_opciones1); };
    P.Boton3b->Release = [this] { Abre(m_utilidades); };
    P.Boton4b->Release = [this] { Abre(m_acercaDe); };
}

template <class Forma> void Pantallas::Abre(forms::FormHolder<Forma> &forma)
{
    forma->PonTextos();
    forma.ShowModal(&P);
}

} // namespace options
