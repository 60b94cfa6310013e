#include "companion/lineasdelcatalogo.h"

#include "core/lineas.h"

namespace companion {

LineasDelCatalogo::LineasDelCatalogo(const QString &texto)
{
    static constexpr struct {
        QStringView clave;
        int LineasDeEmulador::*numero;
    } claves[] = { { u"EXE", &LineasDeEmulador::EXE }, { u"XDI", &LineasDeEmulador::XDI },
        { u"ROM", &LineasDeEmulador::ROM }, { u"IMG", &LineasDeEmulador::IMG } };
    int sistema = -1;
    int fila = 0;
    int numero = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        ++numero;
        if (linea.linea.startsWith(u'-')) {
            ++sistema;
            fila = 0;
        } else if (linea.linea.startsWith(u'+')) {
            m_lineas[{ sistema, ++fila }].nombre = numero;
        }
        for (const auto &clave : claves) {
            if (linea.linea.startsWith(clave.clave))
                m_lineas[{ sistema, fila }].*clave.numero = numero;
        }
    }
}

LineasDeEmulador LineasDelCatalogo::De(int sistema, int fila) const
{
    const auto suyas = m_lineas.find({ sistema, fila });
    return suyas == m_lineas.end() ? LineasDeEmulador() : suyas->second;
}

} // namespace companion
