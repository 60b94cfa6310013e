#include "maintenance/pasos.h"

#include "mainscreen/portada.h"

namespace maintenance {

Pasos::Pasos(core::Modulo &modulo, mainscreen::Portada &portada)
    : m_paso1([&modulo, &portada] { return std::make_unique<Configuracion1>(modulo, portada); })
{
}

void Pasos::Muestra()
{
    m_paso1->PonTextos();
    m_paso1.ShowModal(nullptr);
}

} // namespace maintenance
