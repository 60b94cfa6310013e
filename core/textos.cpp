#include "core/textos.h"

#include "host/failure.h"
#include "host/letters.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace core {

const std::array<ClaveDeTexto, TotalClaves> &ClavesDeTexto()
{
    using T = TextosIdioma;
    static const std::array<ClaveDeTexto, TotalClaves> claves { {
        { u"TXT_Grabar", &T::TXT_Grabar },
        { u"TXT_Volver", &T::TXT_Volver },
        { u"TXT_Aceptar", &T::TXT_Aceptar },
        { u"TXT_NingunaROM", &T::TXT_NingunaROM },
        { u"TXT_Cargando", &T::TXT_Cargando },
        { u"TXT_BaseDeDatos", &T::TXT_BaseDeDatos },
        { u"TXT_EmuNoSelec", &T::TXT_EmuNoSelec },
        { u"TXT_Describir", nullptr },
        { u"TXT_Directorios", &T::TXT_Directorios },
        { u"TXT_Borrar", nullptr },
        { u"TXT_VerAyuda", nullptr },
        { u"TXT_VerConfig", nullptr },
        { u"TXT_Configurar", nullptr },
        { u"TXT_Opciones", nullptr },
        { u"TXT_Utilidades", nullptr },
        { u"TXT_Ayuda", nullptr },
        { u"TXT_AcercaDe", nullptr },
        { u"TXT_Jugar", &T::TXT_Jugar },
        { u"TXT_Cargar", &T::TXT_Cargar },
        { u"TXT_Leyendo", &T::TXT_Leyendo },
        { u"TXT_Añadiendo", &T::TXT_Añadiendo },
        { u"Menu_Describir", nullptr },
        { u"Menu_Borrar", nullptr },
        { u"Menu_Parametros", nullptr },
        { u"TXT_TituloCFG1", &T::TXT_TituloCFG1 },
        { u"TXT_Escoge", &T::TXT_Escoge },
        { u"TXT_Sistemas", &T::TXT_Sistemas },
        { u"TXT_Emuladores", &T::TXT_Emuladores },
        { u"TXT_Sevaaañadir", &T::TXT_Sevaaañadir },
        { u"TXT_Añadir", &T::TXT_Añadir },
        { u"TXT_Extensiones", &T::TXT_Extensiones },
        { u"TXT_Leyenda", &T::TXT_Leyenda },
        { u"TXT_TituloCFG2", &T::TXT_TituloCFG2 },
        { u"TXT_Examinar", &T::TXT_Examinar },
        { u"TXT_CFGDe", &T::TXT_CFGDe },
        { u"TXT_CFGGeneral", &T::TXT_CFGGeneral },
        { u"TXT_EXE", &T::TXT_EXE },
        { u"TXT_ROM", &T::TXT_ROM },
        { u"TXT_IMG", &T::TXT_IMG },
        { u"TXT_PAR", &T::TXT_PAR },
        { u"TXT_Especial", &T::TXT_Especial },
        { u"TXT_1DIR", &T::TXT_1DIR },
        { u"TXT_Comp", &T::TXT_Comp },
        { u"TXT_AutoComp", &T::TXT_AutoComp },
        { u"TXT_AvisoTipo0", &T::TXT_AvisoTipo0 },
        { u"TXT_AvisoTipo1", &T::TXT_AvisoTipo1 },
        { u"TXT_AvisoNuevo", &T::TXT_AvisoNuevo },
        { u"TXT_SoloEXE", &T::TXT_SoloEXE },
        { u"TXT_TituloOp1", &T::TXT_TituloOp1 },
        { u"TXT_Editor", &T::TXT_Editor },
        { u"TXT_EditorDOS", &T::TXT_EditorDOS },
        { u"TXT_EditorWIN", &T::TXT_EditorWIN },
        { u"TXT_Idioma", &T::TXT_Idioma },
        { u"TXT_InfoLNG", &T::TXT_InfoLNG },
        { u"TXT_EditarLNG", &T::TXT_EditarLNG },
        { u"Boton_CFGAv", &T::Boton_CFGAv },
        { u"TXT_TituloOp2", &T::TXT_TituloOp2 },
        { u"TXT_Guardar", &T::TXT_Guardar },
        { u"TXT_GuardarAviso", &T::TXT_GuardarAviso },
        { u"TXT_Filtros", &T::TXT_Filtros },
        { u"TXT_FinDOS", &T::TXT_FinDOS },
        { u"TXT_FinDOSAviso", &T::TXT_FinDOSAviso },
        { u"TXT_Si", &T::TXT_Si },
        { u"TXT_No", &T::TXT_No },
        { u"TXT_TituloUtil", &T::TXT_TituloUtil },
        { u"TXT_Convertir", &T::TXT_Convertir },
        { u"Msg_BorrarEmu0", &T::Msg_BorrarEmu0 },
        { u"Msg_BorrarEmu1", &T::Msg_BorrarEmu1 },
        { u"Msg_BorrarSis0", &T::Msg_BorrarSis0 },
        { u"Msg_BorrarSis1", &T::Msg_BorrarSis1 },
        { u"Msg_AñadirEmu0", &T::Msg_AñadirEmu0 },
        { u"Msg_AñadirEmu1", &T::Msg_AñadirEmu1 },
        { u"Msg_AñadirSis0", &T::Msg_AñadirSis0 },
        { u"Msg_AñadirSis1", &T::Msg_AñadirSis1 },
        { u"Msg_NuevaWWW0", &T::Msg_NuevaWWW0 },
        { u"Msg_NuevaWWW1", &T::Msg_NuevaWWW1 },
        { u"Msg_NuevaWWWROMS0", &T::Msg_NuevaWWWROMS0 },
        { u"Msg_NuevaWWWROMS1", &T::Msg_NuevaWWWROMS1 },
        { u"Msg_EmuYaAñadido0", &T::Msg_EmuYaAñadido0 },
        { u"Msg_EmuYaAñadido1", &T::Msg_EmuYaAñadido1 },
        { u"Msg_SisYaAñadido0", &T::Msg_SisYaAñadido0 },
        { u"Msg_SisYaAñadido1", &T::Msg_SisYaAñadido1 },
        { u"Msg_EmuNoWeb0", &T::Msg_EmuNoWeb0 },
        { u"Msg_EmuNoWeb1", &T::Msg_EmuNoWeb1 },
        { u"Msg_SisNoWeb0", &T::Msg_SisNoWeb0 },
        { u"Msg_SisNoWeb1", &T::Msg_SisNoWeb1 },
        { u"Msg_Parametros0", &T::Msg_Parametros0 },
        { u"Msg_Parametros1", &T::Msg_Parametros1 },
        { u"Msg_ZipSinRoms0", &T::Msg_ZipSinRoms0 },
        { u"Msg_ZipSinRoms1", &T::Msg_ZipSinRoms1 },
        { u"Msg_NoEXE0", &T::Msg_NoEXE0 },
        { u"Msg_NoEXE1", &T::Msg_NoEXE1 },
        { u"Msg_NoDIR0", &T::Msg_NoDIR0 },
        { u"Msg_NoDIR1", &T::Msg_NoDIR1 },
        { u"Msg_Casillas0", &T::Msg_Casillas0 },
        { u"Msg_Casillas1", &T::Msg_Casillas1 },
        { u"Msg_NingunaROM0", &T::Msg_NingunaROM0 },
        { u"Msg_NingunaROM1", &T::Msg_NingunaROM1 },
        { u"Msg_CFGGrabada0", &T::Msg_CFGGrabada0 },
        { u"Msg_CFGGrabada1", &T::Msg_CFGGrabada1 },
        { u"Msg_SinCambios0", &T::Msg_SinCambios0 },
        { u"Msg_SinCambios1", &T::Msg_SinCambios1 },
        { u"Msg_GrabacionOK0", &T::Msg_GrabacionOK0 },
        { u"Msg_GrabacionOK1", &T::Msg_GrabacionOK1 },
        { u"Msg_NingunPCX0", &T::Msg_NingunPCX0 },
        { u"Msg_NingunPCX1", &T::Msg_NingunPCX1 },
        { u"Msg_IMGTransXX", &T::Msg_IMGTransXX },
        { u"Msg_IMGTrans1I", &T::Msg_IMGTrans1I },
        { u"Msg_IMGTrans1D", &T::Msg_IMGTrans1D },
        { u"Msg_IMGTransMI", &T::Msg_IMGTransMI },
        { u"Msg_IMGTransMD", &T::Msg_IMGTransMD },
        { u"Msg_NoDiscoX0", &T::Msg_NoDiscoX0 },
        { u"Msg_NoDiscoI1", &T::Msg_NoDiscoI1 },
        { u"Msg_NoDiscoD1", &T::Msg_NoDiscoD1 },
        { u"Msg_NoEmuLD0", &T::Msg_NoEmuLD0 },
        { u"Msg_NoEmuLD1", &T::Msg_NoEmuLD1 },
        { u"Msg_EXT0", &T::Msg_EXT0 },
        { u"Msg_EXT1", &T::Msg_EXT1 },
        { u"Msg_YaAñadido0", &T::Msg_YaAñadido0 },
        { u"Msg_YaAñadido1", &T::Msg_YaAñadido1 },
        { u"Msg_Descripcion0", &T::Msg_Descripcion0 },
        { u"Msg_Descripcion1", &T::Msg_Descripcion1 },
        { u"Msg_ArchGrande0", &T::Msg_ArchGrande0 },
        { u"Msg_ArchGrande1", &T::Msg_ArchGrande1 },
        { u"Msg_AyudaNoEnc0", &T::Msg_AyudaNoEnc0 },
        { u"Msg_AyudaNoEnc1", &T::Msg_AyudaNoEnc1 },
        { u"Msg_CFGNoEnc0", &T::Msg_CFGNoEnc0 },
        { u"Msg_CFGNoEnc1", &T::Msg_CFGNoEnc1 },
    } };
    return claves;
}

namespace {

QHash<QString, const ClaveDeTexto *> porClaveRellena()
{
    QHash<QString, const ClaveDeTexto *> tabla;
    for (const ClaveDeTexto &clave : ClavesDeTexto())
        tabla.insert(clave.nombre.toString().leftJustified(AnchoClave, u'.'), &clave);
    return tabla;
}

} // namespace

QString TextoDeLinea(const QString &linea)
{
    const QStringView texto = QStringView(linea).sliced(host::behindFirst(linea, AnchoPrefijo));
    if (texto.isEmpty())
        throw host::Failure(host::InvalidArgument, u"read a text of the language"_s, linea);
    return texto.first(host::startOfLast(texto, 1)).toString();
}

LectorDeTextos::LectorDeTextos(TextosIdioma &textos, Directo directo)
    : m_textos(textos)
    , m_directo(std::move(directo))
{
}

void LectorDeTextos::Linea(const QString &linea)
{
    static const QHash<QString, const ClaveDeTexto *> claves = porClaveRellena();

    if (linea.startsWith(u'\''))
        return;
    const QString texto = TextoDeLinea(linea);
    const ClaveDeTexto *clave = claves.value(linea.left(AnchoClave));
    if (!clave)
        return;
    if (clave->variable)
        m_textos.*(clave->variable) = texto;
    else
        m_directo(clave->nombre.toString(), texto);
}

} // namespace core
