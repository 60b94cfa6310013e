// The lines of a language file: layout, keys, where each text goes.
#include "directoriodeprograma.h"

#include "core/textos.h"

#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace {

struct Clave {
    QString columnas; // as it stands in the file
    QString core::TextosIdioma::*variable; // none: a control or menu entry takes the text
};

using T = core::TextosIdioma;
const std::vector<Clave> Claves {
    { u"TXT_Grabar........"_s, &T::TXT_Grabar },
    { u"TXT_Volver........"_s, &T::TXT_Volver },
    { u"TXT_Aceptar......."_s, &T::TXT_Aceptar },
    { u"TXT_NingunaROM...."_s, &T::TXT_NingunaROM },
    { u"TXT_Cargando......"_s, &T::TXT_Cargando },
    { u"TXT_BaseDeDatos..."_s, &T::TXT_BaseDeDatos },
    { u"TXT_EmuNoSelec...."_s, &T::TXT_EmuNoSelec },
    { u"TXT_Describir....."_s, nullptr },
    { u"TXT_Directorios..."_s, &T::TXT_Directorios },
    { u"TXT_Borrar........"_s, nullptr },
    { u"TXT_VerAyuda......"_s, nullptr },
    { u"TXT_VerConfig....."_s, nullptr },
    { u"TXT_Configurar...."_s, nullptr },
    { u"TXT_Opciones......"_s, nullptr },
    { u"TXT_Utilidades...."_s, nullptr },
    { u"TXT_Ayuda........."_s, nullptr },
    { u"TXT_AcercaDe......"_s, nullptr },
    { u"TXT_Jugar........."_s, &T::TXT_Jugar },
    { u"TXT_Cargar........"_s, &T::TXT_Cargar },
    { u"TXT_Leyendo......."_s, &T::TXT_Leyendo },
    { u"TXT_Añadiendo....."_s, &T::TXT_Añadiendo },
    { u"Menu_Describir...."_s, nullptr },
    { u"Menu_Borrar......."_s, nullptr },
    { u"Menu_Parametros..."_s, nullptr },
    { u"TXT_TituloCFG1...."_s, &T::TXT_TituloCFG1 },
    { u"TXT_Escoge........"_s, &T::TXT_Escoge },
    { u"TXT_Sistemas......"_s, &T::TXT_Sistemas },
    { u"TXT_Emuladores...."_s, &T::TXT_Emuladores },
    { u"TXT_Sevaaañadir..."_s, &T::TXT_Sevaaañadir },
    { u"TXT_Añadir........"_s, &T::TXT_Añadir },
    { u"TXT_Extensiones..."_s, &T::TXT_Extensiones },
    { u"TXT_Leyenda......."_s, &T::TXT_Leyenda },
    { u"TXT_TituloCFG2...."_s, &T::TXT_TituloCFG2 },
    { u"TXT_Examinar......"_s, &T::TXT_Examinar },
    { u"TXT_CFGDe........."_s, &T::TXT_CFGDe },
    { u"TXT_CFGGeneral...."_s, &T::TXT_CFGGeneral },
    { u"TXT_EXE..........."_s, &T::TXT_EXE },
    { u"TXT_ROM..........."_s, &T::TXT_ROM },
    { u"TXT_IMG..........."_s, &T::TXT_IMG },
    { u"TXT_PAR..........."_s, &T::TXT_PAR },
    { u"TXT_Especial......"_s, &T::TXT_Especial },
    { u"TXT_1DIR.........."_s, &T::TXT_1DIR },
    { u"TXT_Comp.........."_s, &T::TXT_Comp },
    { u"TXT_AutoComp......"_s, &T::TXT_AutoComp },
    { u"TXT_AvisoTipo0...."_s, &T::TXT_AvisoTipo0 },
    { u"TXT_AvisoTipo1...."_s, &T::TXT_AvisoTipo1 },
    { u"TXT_AvisoNuevo...."_s, &T::TXT_AvisoNuevo },
    { u"TXT_SoloEXE......."_s, &T::TXT_SoloEXE },
    { u"TXT_TituloOp1....."_s, &T::TXT_TituloOp1 },
    { u"TXT_Editor........"_s, &T::TXT_Editor },
    { u"TXT_EditorDOS....."_s, &T::TXT_EditorDOS },
    { u"TXT_EditorWIN....."_s, &T::TXT_EditorWIN },
    { u"TXT_Idioma........"_s, &T::TXT_Idioma },
    { u"TXT_InfoLNG......."_s, &T::TXT_InfoLNG },
    { u"TXT_EditarLNG....."_s, &T::TXT_EditarLNG },
    { u"Boton_CFGAv......."_s, &T::Boton_CFGAv },
    { u"TXT_TituloOp2....."_s, &T::TXT_TituloOp2 },
    { u"TXT_Guardar......."_s, &T::TXT_Guardar },
    { u"TXT_GuardarAviso.."_s, &T::TXT_GuardarAviso },
    { u"TXT_Filtros......."_s, &T::TXT_Filtros },
    { u"TXT_FinDOS........"_s, &T::TXT_FinDOS },
    { u"TXT_FinDOSAviso..."_s, &T::TXT_FinDOSAviso },
    { u"TXT_Si............"_s, &T::TXT_Si },
    { u"TXT_No............"_s, &T::TXT_No },
    { u"TXT_TituloUtil...."_s, &T::TXT_TituloUtil },
    { u"TXT_Convertir....."_s, &T::TXT_Convertir },
    { u"Msg_BorrarEmu0...."_s, &T::Msg_BorrarEmu0 },
    { u"Msg_BorrarEmu1...."_s, &T::Msg_BorrarEmu1 },
    { u"Msg_BorrarSis0...."_s, &T::Msg_BorrarSis0 },
    { u"Msg_BorrarSis1...."_s, &T::Msg_BorrarSis1 },
    { u"Msg_AñadirEmu0...."_s, &T::Msg_AñadirEmu0 },
    { u"Msg_AñadirEmu1...."_s, &T::Msg_AñadirEmu1 },
    { u"Msg_AñadirSis0...."_s, &T::Msg_AñadirSis0 },
    { u"Msg_AñadirSis1...."_s, &T::Msg_AñadirSis1 },
    { u"Msg_NuevaWWW0....."_s, &T::Msg_NuevaWWW0 },
    { u"Msg_NuevaWWW1....."_s, &T::Msg_NuevaWWW1 },
    { u"Msg_NuevaWWWROMS0."_s, &T::Msg_NuevaWWWROMS0 },
    { u"Msg_NuevaWWWROMS1."_s, &T::Msg_NuevaWWWROMS1 },
    { u"Msg_EmuYaAñadido0."_s, &T::Msg_EmuYaAñadido0 },
    { u"Msg_EmuYaAñadido1."_s, &T::Msg_EmuYaAñadido1 },
    { u"Msg_SisYaAñadido0."_s, &T::Msg_SisYaAñadido0 },
    { u"Msg_SisYaAñadido1."_s, &T::Msg_SisYaAñadido1 },
    { u"Msg_EmuNoWeb0....."_s, &T::Msg_EmuNoWeb0 },
    { u"Msg_EmuNoWeb1....."_s, &T::Msg_EmuNoWeb1 },
    { u"Msg_SisNoWeb0....."_s, &T::Msg_SisNoWeb0 },
    { u"Msg_SisNoWeb1....."_s, &T::Msg_SisNoWeb1 },
    { u"Msg_Parametros0..."_s, &T::Msg_Parametros0 },
    { u"Msg_Parametros1..."_s, &T::Msg_Parametros1 },
    { u"Msg_ZipSinRoms0..."_s, &T::Msg_ZipSinRoms0 },
    { u"Msg_ZipSinRoms1..."_s, &T::Msg_ZipSinRoms1 },
    { u"Msg_NoEXE0........"_s, &T::Msg_NoEXE0 },
    { u"Msg_NoEXE1........"_s, &T::Msg_NoEXE1 },
    { u"Msg_NoDIR0........"_s, &T::Msg_NoDIR0 },
    { u"Msg_NoDIR1........"_s, &T::Msg_NoDIR1 },
    { u"Msg_Casillas0....."_s, &T::Msg_Casillas0 },
    { u"Msg_Casillas1....."_s, &T::Msg_Casillas1 },
    { u"Msg_NingunaROM0..."_s, &T::Msg_NingunaROM0 },
    { u"Msg_NingunaROM1..."_s, &T::Msg_NingunaROM1 },
    { u"Msg_CFGGrabada0..."_s, &T::Msg_CFGGrabada0 },
    { u"Msg_CFGGrabada1..."_s, &T::Msg_CFGGrabada1 },
    { u"Msg_SinCambios0..."_s, &T::Msg_SinCambios0 },
    { u"Msg_SinCambios1..."_s, &T::Msg_SinCambios1 },
    { u"Msg_GrabacionOK0.."_s, &T::Msg_GrabacionOK0 },
    { u"Msg_GrabacionOK1.."_s, &T::Msg_GrabacionOK1 },
    { u"Msg_NingunPCX0...."_s, &T::Msg_NingunPCX0 },
    { u"Msg_NingunPCX1...."_s, &T::Msg_NingunPCX1 },
    { u"Msg_IMGTransXX...."_s, &T::Msg_IMGTransXX },
    { u"Msg_IMGTrans1I...."_s, &T::Msg_IMGTrans1I },
    { u"Msg_IMGTrans1D...."_s, &T::Msg_IMGTrans1D },
    { u"Msg_IMGTransMI...."_s, &T::Msg_IMGTransMI },
    { u"Msg_IMGTransMD...."_s, &T::Msg_IMGTransMD },
    { u"Msg_NoDiscoX0....."_s, &T::Msg_NoDiscoX0 },
    { u"Msg_NoDiscoI1....."_s, &T::Msg_NoDiscoI1 },
    { u"Msg_NoDiscoD1....."_s, &T::Msg_NoDiscoD1 },
    { u"Msg_NoEmuLD0......"_s, &T::Msg_NoEmuLD0 },
    { u"Msg_NoEmuLD1......"_s, &T::Msg_NoEmuLD1 },
    { u"Msg_EXT0.........."_s, &T::Msg_EXT0 },
    { u"Msg_EXT1.........."_s, &T::Msg_EXT1 },
    { u"Msg_YaAñadido0...."_s, &T::Msg_YaAñadido0 },
    { u"Msg_YaAñadido1...."_s, &T::Msg_YaAñadido1 },
    { u"Msg_Descripcion0.."_s, &T::Msg_Descripcion0 },
    { u"Msg_Descripcion1.."_s, &T::Msg_Descripcion1 },
    { u"Msg_ArchGrande0..."_s, &T::Msg_ArchGrande0 },
    { u"Msg_ArchGrande1..."_s, &T::Msg_ArchGrande1 },
    { u"Msg_AyudaNoEnc0..."_s, &T::Msg_AyudaNoEnc0 },
    { u"Msg_AyudaNoEnc1..."_s, &T::Msg_AyudaNoEnc1 },
    { u"Msg_CFGNoEnc0....."_s, &T::Msg_CFGNoEnc0 },
    { u"Msg_CFGNoEnc1....."_s, &T::Msg_CFGNoEnc1 },
};

class Textos : public DirectorioDePrograma {
protected:
    void Lee(const QString &linea)
    {
        core::LectorDeTextos lector(
            M, [this](const QString &nombre, const QString &texto) { directos += nombre + u'=' + texto; });
        lector.Linea(linea);
    }

    void LeeFichero(const QByteArray &bytes)
    {
        Pon(u"LNG/ZB-ESP.LNG"_s, bytes);
        M.Ficheros.openForInput(1, host::programFile(u"LNG/ZB-ESP.LNG"_s));
        do
            Lee(M.Ficheros.readLine(1));
        while (!M.Ficheros.atEnd(1));
        M.Ficheros.closeAll();
    }

    // Every variable that holds a text.
    int VariablesLlenas() const
    {
        int llenas = 0;
        for (const Clave &clave : Claves)
            llenas += clave.variable && !(M.*(clave.variable)).isEmpty();
        return llenas;
    }

    QStringList directos; // "name=text", in the order in which they came
};

} // namespace

TEST_F(Textos, ThereAreAHundredTwentyEightKeysOfEighteenColumns)
{
    ASSERT_EQ(Claves.size(), 128U);
    for (const Clave &clave : Claves)
        EXPECT_EQ(clave.columnas.size(), 18) << clave.columnas.toStdString();
    EXPECT_EQ(core::ClavesDeTexto().size(), 128U);
}

TEST_F(Textos, EachKeyGivesItsTextToTheVariableOfItsOwnName)
{
    int llenas = 0;
    for (const Clave &clave : Claves) {
        if (!clave.variable)
            continue;
        Lee(clave.columnas + u"=\"text of "_s + clave.columnas + u'"');
        EXPECT_EQ(M.*(clave.variable), u"text of "_s + clave.columnas);
        EXPECT_EQ(VariablesLlenas(), ++llenas);
    }
    EXPECT_EQ(llenas, 116);
    EXPECT_EQ(directos, QStringList());
}

TEST_F(Textos, KeysOfControlsAndMenuEntriesGoToThemByName)
{
    QStringList esperados;
    for (const Clave &clave : Claves) {
        if (clave.variable)
            continue;
        Lee(clave.columnas + u"=\"text\""_s);
        esperados += QString(clave.columnas).remove(u'.') + u"=text"_s;
    }
    EXPECT_EQ(directos, esperados);
    EXPECT_EQ(directos.size(), 12);
    EXPECT_EQ(VariablesLlenas(), 0);
}

TEST_F(Textos, KeysAreListedInTheirReadingOrder)
{
    for (size_t i = 0; i < Claves.size(); ++i)
        EXPECT_EQ(core::ClavesDeTexto()[i].nombre.toString().leftJustified(18, u'.'), Claves[i].columnas);
}

struct LineaDeTexto {
    QString linea;
    QString texto;
};

void PrintTo(const LineaDeTexto &caso, std::ostream *salida)
{
    *salida << '"' << caso.linea.toStdString() << '"';
}

class TextoDeLinea : public Textos, public testing::WithParamInterface<LineaDeTexto> { };

TEST_P(TextoDeLinea, StandsFromColumnTwentyOneToTheLastButOne)
{
    Lee(GetParam().linea);
    EXPECT_EQ(M.TXT_Jugar, GetParam().texto);
    EXPECT_EQ(core::TextoDeLinea(GetParam().linea), GetParam().texto);
}

INSTANTIATE_TEST_SUITE_P(Lineas, TextoDeLinea,
    testing::Values(LineaDeTexto { u"TXT_Jugar.........=\"Play\""_s, u"Play"_s },
        LineaDeTexto { u"TXT_Jugar.........xyPlayz"_s, u"Play"_s },
        LineaDeTexto { u"TXT_Jugar.........  Play "_s, u"Play"_s },
        LineaDeTexto { u"TXT_Jugar.........=\"  Play  \""_s, u"  Play  "_s },
        LineaDeTexto { u"TXT_Jugar.........=\"\""_s, QString() },
        LineaDeTexto { u"TXT_Jugar........."
                       u"123"_s,
            QString() },
        LineaDeTexto { u"TXT_Jugar.........=\"a \"b\", c=d 'e'\""_s, u"a \"b\", c=d 'e'"_s },
        LineaDeTexto { u"TXT_Jugar.........=\"¡Jugar, ñandú!\""_s, u"¡Jugar, ñandú!"_s },
        LineaDeTexto { u"TXT_Jugar.........😀😀Play"_s, u"Pla"_s },
        LineaDeTexto { u"TXT_Jugar.........=\"😀 Play 😀"_s, u"😀 Play "_s },
        LineaDeTexto { u"TXT_Jugar.........=\"😀"_s, QString() }));

TEST_F(Textos, FailAsInvalid_OnALineOfFewerThanTwentyOneCharacters)
{
    for (const QString &linea : { u"TXT_Jugar.........=\""_s, u"TXT_Jugar........."_s, u"x"_s, u""_s, u" '"_s,
             u"12345678901234567890"_s, u"1234567890😀😀😀😀😀😀😀😀😀😀"_s })
        EXPECT_EQ(NumeroDeFallo([&] { Lee(linea); }), host::InvalidArgument) << linea.toStdString();
    EXPECT_EQ(VariablesLlenas(), 0);
}

TEST_F(Textos, ACommentNeedsNoLayoutAndChangesNothing)
{
    Lee(u"TXT_Jugar.........=\"Play\""_s);
    for (const QString &linea : { u"'"_s, u"' short"_s, u"'TXT_Jugar.........=\"Other\""_s })
        EXPECT_EQ(NumeroDeFallo([&] { Lee(linea); }), 0) << linea.toStdString();
    EXPECT_EQ(M.TXT_Jugar, u"Play");
    EXPECT_EQ(VariablesLlenas(), 1);
    EXPECT_EQ(directos, QStringList());
}

TEST_F(Textos, KeysAreComparedExactly)
{
    for (const QString &linea : { u"txt_jugar.........=\"Play\""_s, u" TXT_Jugar........=\"Play\""_s,
             u"TXT_Jugar         =\"Play\""_s, u"TXT_Jugarx........=\"Play\""_s,
             u"TXT_Anadir........=\"Add\""_s, u"TXT_Desconocida...=\"Any\""_s })
        EXPECT_EQ(NumeroDeFallo([&] { Lee(linea); }), 0) << linea.toStdString();
    EXPECT_EQ(VariablesLlenas(), 0);
    EXPECT_EQ(directos, QStringList());
}

TEST_F(Textos, TheLastOfTwoEqualKeysStands)
{
    Lee(u"TXT_Jugar.........=\"One\""_s);
    Lee(u"TXT_Jugar.........=\"Two\""_s);
    EXPECT_EQ(M.TXT_Jugar, u"Two");
}

TEST_F(Textos, AKeyThatIsAbsentLeavesItsVariableAsItWas)
{
    M.TXT_Cargar = u"before"_s;
    LeeFichero("TXT_Jugar.........=\"Play\"\r\n");
    EXPECT_EQ(M.TXT_Cargar, u"before");
    EXPECT_EQ(M.TXT_Jugar, u"Play");
}

TEST_F(Textos, OrderOfTheLinesDoesNotMatter)
{
    QByteArray bytes;
    for (auto clave = Claves.rbegin(); clave != Claves.rend(); ++clave)
        bytes += (clave->columnas + u"=\"of "_s + clave->columnas + u"\"\r\n"_s).toLatin1();
    LeeFichero(bytes);
    for (const Clave &clave : Claves) {
        if (clave.variable) {
            EXPECT_EQ(M.*(clave.variable), u"of "_s + clave.columnas);
        }
    }
    EXPECT_EQ(directos.size(), 12);
}

TEST_F(Textos, TheNyCountsAsOneColumn_InEitherEncoding)
{
    LeeFichero("TXT_A\xF1"
               "adiendo.....=\"A\xF1"
               "adiendo\"\r\n");
    EXPECT_EQ(M.TXT_Añadiendo, u"Añadiendo");
    LeeFichero("TXT_A\xC3\xB1"
               "adiendo.....=\"Adding\"\n'\xC3\xB1");
    EXPECT_EQ(M.TXT_Añadiendo, u"Adding");
}

TEST_F(Textos, ABlankLineOutsideCommentsEndsTheReadingAndLeavesTheFileOpen)
{
    EXPECT_EQ(NumeroDeFallo([this] {
        LeeFichero("TXT_Jugar.........=\"Play\"\r\n\r\nTXT_Cargar........=\"Load\"\r\n");
    }),
        host::InvalidArgument);
    EXPECT_EQ(M.TXT_Jugar, u"Play");
    EXPECT_EQ(M.TXT_Cargar, QString());
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}
