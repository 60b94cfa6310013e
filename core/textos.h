// The words of the program: one variable for each key of a language file that isn't shown by a control
// directly.
#pragma once

#include <QString>

#include <array>
#include <functional>

namespace core {

struct TextosIdioma {
    QString TXT_Grabar, TXT_Volver, TXT_Aceptar, TXT_NingunaROM, TXT_Cargando, TXT_BaseDeDatos,
        TXT_EmuNoSelec, TXT_Directorios, TXT_Jugar, TXT_Cargar, TXT_Leyendo, TXT_Añadiendo, TXT_TituloCFG1,
        TXT_Escoge, TXT_Sistemas, TXT_Emuladores, TXT_Sevaaañadir, TXT_Añadir, TXT_Extensiones, TXT_Leyenda,
        TXT_TituloCFG2, TXT_Examinar, TXT_CFGDe, TXT_CFGGeneral, TXT_EXE, TXT_ROM, TXT_IMG, TXT_PAR,
        TXT_Especial, TXT_1DIR, TXT_Comp, TXT_AutoComp, TXT_AvisoTipo0, TXT_AvisoTipo1, TXT_AvisoNuevo,
        TXT_SoloEXE, TXT_TituloOp1, TXT_Editor, TXT_EditorDOS, TXT_EditorWIN, TXT_Idioma, TXT_InfoLNG,
        TXT_EditarLNG, Boton_CFGAv, TXT_TituloOp2, TXT_Guardar, TXT_GuardarAviso, TXT_Filtros, TXT_FinDOS,
        TXT_FinDOSAviso, TXT_Si, TXT_No, TXT_TituloUtil, TXT_Convertir;
    QString Msg_BorrarEmu0, Msg_BorrarEmu1, Msg_BorrarSis0, Msg_BorrarSis1, Msg_AñadirEmu0, Msg_AñadirEmu1,
        Msg_AñadirSis0, Msg_AñadirSis1, Msg_NuevaWWW0, Msg_NuevaWWW1, Msg_NuevaWWWROMS0, Msg_NuevaWWWROMS1,
        Msg_EmuYaAñadido0, Msg_EmuYaAñadido1, Msg_SisYaAñadido0, Msg_SisYaAñadido1, Msg_EmuNoWeb0,
        Msg_EmuNoWeb1, Msg_SisNoWeb0, Msg_SisNoWeb1, Msg_Parametros0, Msg_Parametros1, Msg_ZipSinRoms0,
        Msg_ZipSinRoms1, Msg_NoEXE0, Msg_NoEXE1, Msg_NoDIR0, Msg_NoDIR1, Msg_Casillas0, Msg_Casillas1,
        Msg_NingunaROM0, Msg_NingunaROM1, Msg_CFGGrabada0, Msg_CFGGrabada1, Msg_SinCambios0, Msg_SinCambios1,
        Msg_GrabacionOK0, Msg_GrabacionOK1, Msg_NingunPCX0, Msg_NingunPCX1, Msg_IMGTransXX, Msg_IMGTrans1I,
        Msg_IMGTrans1D, Msg_IMGTransMI, Msg_IMGTransMD, Msg_NoDiscoX0, Msg_NoDiscoI1, Msg_NoDiscoD1,
        Msg_NoEmuLD0, Msg_NoEmuLD1, Msg_EXT0, Msg_EXT1, Msg_YaAñadido0, Msg_YaAñadido1, Msg_Descripcion0,
        Msg_Descripcion1, Msg_ArchGrande0, Msg_ArchGrande1, Msg_AyudaNoEnc0, Msg_AyudaNoEnc1, Msg_CFGNoEnc0,
        Msg_CFGNoEnc1;
};

// A key of the language files; without a variable its text goes to the control or menu entry of its own name.
struct ClaveDeTexto {
    QStringView nombre;
    QString TextosIdioma::*variable;
};

inline constexpr int TotalClaves = 128;
const std::array<ClaveDeTexto, TotalClaves> &ClavesDeTexto();

inline constexpr int AnchoClave = 18; // columns of the key, padded with points
inline constexpr int AnchoPrefijo = 20; // the key and the two characters behind it that are passed over

// A line of a language file: the text of a line with a key. Fails with 5 for a line, other than a comment,
// that is too short to hold a text.
QString TextoDeLinea(const QString &linea);

// Gives the lines of a language file, one after the other, to the variables and to `directo` (name, text). A
// comment hits nothing; a key that no table knows is passed over; of a key that comes twice the last stands.
class LectorDeTextos {
public:
    using Directo = std::function<void(const QString &nombre, const QString &texto)>;
    LectorDeTextos(TextosIdioma &textos, Directo directo);

    void Linea(const QString &linea);

private:
    TextosIdioma &m_textos;
    Directo m_directo;
};

} // namespace core
