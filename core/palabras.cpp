#include "core/palabras.h"

#include "core/textos.h"

#include <QHash>

namespace core {

std::span<const ClaveDePalabra> ClavesDePalabras()
{
    using P = Palabras;
    static constexpr ClaveDePalabra claves[] = {
        { u"Zem_Papelera0", &P::Zem_Papelera0 },
        { u"Zem_Papelera1", &P::Zem_Papelera1 },
        { u"Zem_NoPapelera0", &P::Zem_NoPapelera0 },
        { u"Zem_NoPapelera1", &P::Zem_NoPapelera1 },
        { u"Zem_NoNota0", &P::Zem_NoNota0 },
        { u"Zem_NoNota1", &P::Zem_NoNota1 },
        { u"Zem_NoDescrip1", &P::Zem_NoDescrip1 },
        { u"Zem_NoLinea1", &P::Zem_NoLinea1 },
        { u"Zem_Comillas0", &P::Zem_Comillas0 },
        { u"Zem_Comillas1", &P::Zem_Comillas1 },
        { u"Zem_NoParam0", &P::Zem_NoParam0 },
        { u"Zem_NoParam1", &P::Zem_NoParam1 },
        { u"Zem_PideNota", &P::Zem_PideNota },
        { u"Zem_NoNombre0", &P::Zem_NoNombre0 },
        { u"Zem_NoNombre1", &P::Zem_NoNombre1 },
        { u"Zem_Cambiado0", &P::Zem_Cambiado0 },
        { u"Zem_Cambiado1", &P::Zem_Cambiado1 },
        { u"Zem_SoloLeer0", &P::Zem_SoloLeer0 },
        { u"Zem_SoloLeer1", &P::Zem_SoloLeer1 },
        { u"Zem_SoloIdioma1", &P::Zem_SoloIdioma1 },
        { u"Zem_SoloFin1", &P::Zem_SoloFin1 },
        { u"Zem_SoloCapt1", &P::Zem_SoloCapt1 },
        { u"Zem_SoloTamano1", &P::Zem_SoloTamano1 },
        { u"Zem_NoZip0", &P::Zem_NoZip0 },
        { u"Zem_NoZip1", &P::Zem_NoZip1 },
        { u"Zem_NoJunto0", &P::Zem_NoJunto0 },
        { u"Zem_NoJunto1", &P::Zem_NoJunto1 },
        { u"Zem_NoCampo0", &P::Zem_NoCampo0 },
        { u"Zem_NoCampo1", &P::Zem_NoCampo1 },
        { u"Zem_NoFiltro0", &P::Zem_NoFiltro0 },
        { u"Zem_NoFiltro1", &P::Zem_NoFiltro1 },
        { u"Zem_NoFinal0", &P::Zem_NoFinal0 },
        { u"Zem_NoFinal1", &P::Zem_NoFinal1 },
        { u"Zem_Falta0", &P::Zem_Falta0 },
        { u"Zem_FaltaEditor", &P::Zem_FaltaEditor },
        { u"Zem_FaltaEdit", &P::Zem_FaltaEdit },
        { u"Zem_FaltaTerm", &P::Zem_FaltaTerm },
        { u"Zem_FaltaGestor", &P::Zem_FaltaGestor },
        { u"Zem_FaltaDOSBox", &P::Zem_FaltaDOSBox },
        { u"Zem_FaltaWine", &P::Zem_FaltaWine },
        { u"Zem_NoDOS0", &P::Zem_NoDOS0 },
        { u"Zem_NombreDOS", &P::Zem_NombreDOS },
        { u"Zem_LargoDOS", &P::Zem_LargoDOS },
        { u"Zem_NoWindows0", &P::Zem_NoWindows0 },
        { u"Zem_NombreWin", &P::Zem_NombreWin },
        { u"Zem_SignoDOS", &P::Zem_SignoDOS },
        { u"Zem_NoTmp0", &P::Zem_NoTmp0 },
        { u"Zem_NoTmp1", &P::Zem_NoTmp1 },
        { u"Zem_SinUnidad", &P::Zem_SinUnidad },
        { u"Zem_NoVuelve0", &P::Zem_NoVuelve0 },
        { u"Zem_NoVuelve1", &P::Zem_NoVuelve1 },
        { u"Zem_Lista1", &P::Zem_Lista1 },
        { u"Zem_Combo1", &P::Zem_Combo1 },
        { u"Zem_Combo2", &P::Zem_Combo2 },
        { u"Zem_Menos2a", &P::Zem_Menos2a },
        { u"Zem_Menos2b", &P::Zem_Menos2b },
        { u"Zem_Titulo1", &P::Zem_Titulo1 },
        { u"Zem_Graf_TV", &P::Zem_Graf_TV },
        { u"Zem_Captura", &P::Zem_Captura },
        { u"Zem_OFF", &P::Zem_OFF },
        { u"Zem_WEB1", &P::Zem_WEB1 },
        { u"Zem_WEB2", &P::Zem_WEB2 },
        { u"Zem_Mas1", &P::Zem_Mas1 },
        { u"Zem_Boton_Mas2", &P::Zem_Boton_Mas2 },
        { u"Zem_Boton_E", &P::Zem_Boton_E },
        { u"Zem_Casilla4", &P::Zem_Casilla4 },
        { u"Zem_Casilla5", &P::Zem_Casilla5 },
        { u"Zem_Discos", &P::Zem_Discos },
        { u"Zem_Directorios", &P::Zem_Directorios },
        { u"Zem_Archivos", &P::Zem_Archivos },
        { u"Zem_D1", &P::Zem_D1 },
        { u"Zem_E1", &P::Zem_E1 },
        { u"Zem_Flecha2", &P::Zem_Flecha2 },
        { u"Zem_Editor", &P::Zem_Editor },
        { u"Zem_FlechaE2", &P::Zem_FlechaE2 },
        { u"Zem_Edit2", &P::Zem_Edit2 },
        { u"Zem_BlocNotas2", &P::Zem_BlocNotas2 },
        { u"Zem_Pista", &P::Zem_Pista },
        { u"Zem_NoEsta", &P::Zem_NoEsta },
        { u"Zem_Tamano", &P::Zem_Tamano },
        { u"Zem_NoTamano", &P::Zem_NoTamano },
        { u"Zem_Ctrl", &P::Zem_Ctrl },
        { u"Zem_Mayus", &P::Zem_Mayus },
        { u"Zem_Espacio", &P::Zem_Espacio },
        { u"Zem_Ins", &P::Zem_Ins },
        { u"Zem_Supr", &P::Zem_Supr },
        { u"Zem_Cancelar", &P::Zem_Cancelar },
        { u"Zem_Logotipo", &P::Zem_Logotipo },
        { u"Zem_Autores", &P::Zem_Autores },
        { u"Zem_Correo", &P::Zem_Correo },
        { u"Zem_Web", &P::Zem_Web },
        { u"Zem_Redir", &P::Zem_Redir },
    };
    return claves;
}

namespace {

QHash<QString, QString Palabras::*> porClaveRellena()
{
    QHash<QString, QString Palabras::*> tabla;
    for (const ClaveDePalabra &clave : ClavesDePalabras())
        tabla.insert(clave.nombre.toString().leftJustified(AnchoClave, u'.'), clave.variable);
    return tabla;
}

} // namespace

void LeePalabra(Palabras &palabras, const QString &linea)
{
    static const QHash<QString, QString Palabras::*> claves = porClaveRellena();

    if (const auto variable = claves.value(linea.left(AnchoClave)))
        palabras.*variable = TextoDeLinea(linea);
}

} // namespace core
