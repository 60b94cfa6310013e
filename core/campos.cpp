#include "core/campos.h"

#include "host/textsource.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

bool vuelve(const QString &campo, const QString &texto)
{
    const QString siguiente = u"."_s;
    host::TextSource fuente(campo + u',' + siguiente);
    return fuente.readField() == texto && fuente.rest() == siguiente;
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
