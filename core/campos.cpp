#include "core/campos.h"

#include "host/textsource.h"

namespace core {

namespace {

bool vuelve(const QString &campo, const QString &texto)
{
    return host::TextSource(campo + u',').readField() == texto;
}

} // namespace

std::optional<QString> CampoEscrito(const QString &texto, Comillas comillas)
{
    if (texto.contains(u'\n') || texto.contains(u'\r') || !texto.isValidUtf16())
        return std::nullopt;
    if (comillas == Comillas::SiHacenFalta && vuelve(texto, texto))
        return texto;
    const QString entreComillas = u'"' + texto + u'"';
    return vuelve(entreComillas, texto) ? std::optional(entreComillas) : std::nullopt;
}

bool CabeEnUnCampo(const QString &texto)
{
    return CampoEscrito(texto).has_value();
}

} // namespace core
