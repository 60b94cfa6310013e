#include "companion/palabras.h"

#include "core/textos.h"

#include <QHash>

namespace companion {

std::span<const ClaveDePalabra> ClavesDePalabras()
{
    using P = Palabras;
    static constexpr ClaveDePalabra claves[] = {
        { u"Zbo_Uso", &P::Zbo_Uso }, { u"Zbo_Ordenes", &P::Zbo_Ordenes },
        { u"Zbo_Opciones", &P::Zbo_Opciones }, { u"Zbo_MasAyuda", &P::Zbo_MasAyuda },
        { u"Zbo_OpDir", &P::Zbo_OpDir }, { u"Zbo_OpJson", &P::Zbo_OpJson },
        { u"Zbo_OpAyuda", &P::Zbo_OpAyuda }, { u"Zbo_OpVersion", &P::Zbo_OpVersion },
        { u"Zbo_Help", &P::Zbo_Help }, { u"Zbo_NoOrden", &P::Zbo_NoOrden },
        { u"Zbo_NoOpcion", &P::Zbo_NoOpcion }, { u"Zbo_NoValor", &P::Zbo_NoValor },
        { u"Zbo_SinValor", &P::Zbo_SinValor }, { u"Zbo_NoDir", &P::Zbo_NoDir },
        // Bulk work.
    };
    return claves;
}

namespace {

QHash<QString, QString Palabras::*> porClaveRellena()
{
    QHash<QString, QString Palabras::*> tabla;
    for (const ClaveDePalabra &clave : ClavesDePalabras())
        tabla.insert(clave.nombre.toString().leftJustified(core::AnchoClave, u'.'), clave.variable);
    return tabla;
}

} // namespace

void LeePalabra(Palabras &palabras, const QString &linea)
{
    static const QHash<QString, QString Palabras::*> claves = porClaveRellena();

    if (const auto variable = claves.value(linea.left(core::AnchoClave)))
        palabras.*variable = core::TextoDeLinea(linea);
}

} // namespace companion
