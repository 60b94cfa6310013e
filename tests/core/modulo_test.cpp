// The limits of the state and the values that are cut out of its texts.
#include "directoriodeprograma.h"

using namespace Qt::StringLiterals;

namespace {

struct Texto {
    QString texto;
    int numero;
};

void PrintTo(const Texto &caso, std::ostream *salida)
{
    *salida << '"' << caso.texto.toStdString() << '"';
}

} // namespace

TEST(Modulo, CatalogueTablesTakeAHundredFiftyOneSystemsByAsManyEmulators)
{
    core::Modulo M;
    for (core::Tabla2<QString> *tabla : { &M.Cat_Nombre, &M.Cat_EXE, &M.Cat_XDI, &M.Cat_ROM, &M.Cat_IMG,
             &M.Cat_PAR1, &M.Cat_PAR2, &M.Cat_EXT, &M.Cat_WEB2 }) {
        (*tabla)(150, 150) = u"x"_s;
        EXPECT_EQ(NumeroDeFallo([&] { (*tabla)(151, 0) = u"x"_s; }), host::OutOfRange);
        EXPECT_EQ(NumeroDeFallo([&] { (*tabla)(0, 151) = u"x"_s; }), host::OutOfRange);
    }
    EXPECT_EQ(M.Cat_WEB1.tamaño(), 151);
}

TEST(Modulo, ListTablesHaveTheirFixedSizes)
{
    core::Modulo M;
    for (const core::Tabla<QString> *tabla : { &M.Arch_Nombre, &M.Arch_Mayus, &M.Nota_Clave, &M.Nota_Texto })
        EXPECT_EQ(tabla->tamaño(), 6667);
    EXPECT_EQ(M.ExtActivas.tamaño(), 151);
    EXPECT_EQ(M.Filtros.tamaño(), 151);
    EXPECT_EQ(M.ListaLNG.tamaño(), 101);
    EXPECT_EQ(core::NingunEmulador, 696969);
}

TEST(Modulo, EverythingIsZeroOrEmpty_AtTheStart)
{
    const core::Modulo M;
    for (const int numero : { M.Indice_Sistema, M.Indice_Emulador, M.TotalSistemas, M.VerBaseDeDatos,
             M.SoloTablas, M.Combo1Listo, M.Combo2Listo, M.RestaurarROM, M.EmuConfigurado, M.NumLista,
             M.IndiceRutas, M.NumROMsBorradas, M.ZoomActual, M.ImagenCambio, M.Lista1Cambio, M.CambioConfig1,
             M.Respuesta_Opcion, M.BD_Sistema, M.BD_Emulador, M.BD_TotalSistemas, M.Lista1Lista,
             M.Config_Origen, M.Config2_Cambios, M.ExtLargo, M.IdiomaCambiado, M.TypeOfEditorPrevio })
        EXPECT_EQ(numero, 0);
    for (const QString &texto :
        { M.FiltrosTexto, M.UltimoSistema, M.UltimoEmulador, M.GuardarUltimo, M.TypeOfEditor, M.MsgEndDOS,
            M.LanguageFile, M.DebugMode, M.TipoEmu, M.SistemaGuardado, M.EmuladorGuardado, M.ROMGuardada,
            M.Respuesta_Caja, M.RespuestaMensaje, M.TXT_Jugar, M.RutaExaminar, M.ArchivoExaminar,
            M.EXE_Previo, M.XDI_Previo, M.ROM_Previo, M.IMG_Previo, M.PAR1_Previo, M.PAR2_Previo, M.ExtTexto,
            M.IdiomaPrevio, M.FiltrosNuevo, M.BD_Nombre(150, 150), M.BD_WEB2(0, 0), M.BD_EXT(0, 0),
            M.BD_WEB1(150), M.Msg_NoEXE0, M.Cat_Nombre(0, 0), M.Nota_Clave(0), M.RutasROM(1) })
        EXPECT_EQ(texto, QString());
    EXPECT_FALSE(M.GuardarUltimoNuevo);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
    EXPECT_FALSE(M.Ficheros.isOpen(2));
}

TEST(Modulo, TypeIsTheLastCharacterOfTheLine)
{
    EXPECT_EQ(core::TipoDe(u"XDI=0"_s), u"0");
    EXPECT_EQ(core::TipoDe(u"XDI= 7"_s), u"7");
    EXPECT_EQ(core::TipoDe(u"XDI=0 "_s), u" ");
    EXPECT_EQ(core::TipoDe(u"XDI="_s), u"=");
    EXPECT_EQ(core::TipoDe(u"3"_s), u"3");
    EXPECT_EQ(core::TipoDe(QString()), QString());
}

class TipoComoNumero : public testing::TestWithParam<Texto> { };

TEST_P(TipoComoNumero, OnlyASingleDigitEqualsAType)
{
    EXPECT_EQ(core::Numero(GetParam().texto), GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(Textos, TipoComoNumero,
    testing::Values(Texto { u"0"_s, 0 }, Texto { u"8"_s, 8 }, Texto { u"9"_s, 9 }, Texto { QString(), -1 },
        Texto { u" "_s, -1 }, Texto { u"="_s, -1 }, Texto { u"I"_s, -1 }, Texto { u"10"_s, -1 },
        Texto { u"-1"_s, -1 }, Texto { u"٣"_s, -1 }));

class AjusteComoNumero : public testing::TestWithParam<Texto> { };

TEST_P(AjusteComoNumero, LeadingDigitsCount)
{
    EXPECT_EQ(core::NumeroDeAjuste(GetParam().texto), GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(Textos, AjusteComoNumero,
    testing::Values(Texto { u"0"_s, 0 }, Texto { u"1"_s, 1 }, Texto { u"12"_s, 12 },
        Texto { u"696969"_s, 696969 }, Texto { QString(), 0 }, Texto { u" 5 "_s, 5 }, Texto { u"-3"_s, -3 },
        Texto { u"3x"_s, 3 }, Texto { u"x3"_s, 0 }, Texto { u"-"_s, 0 }, Texto { u"0000000001"_s, 1 },
        Texto { u"-00000000000000000000012"_s, -12 }, Texto { u"0000000000000000"_s, 0 },
        Texto { u"0000000000696969x"_s, 696969 }, Texto { u"99999999999999999999"_s, 999999999 },
        Texto { u"-99999999999999999999"_s, -999999999 }));

TEST(Modulo, ValueOfALineIsWhatStandsBehindThePrefix)
{
    EXPECT_EQ(core::Valor(u"ROM=/roms/nes/"_s, 4), u"/roms/nes/");
    EXPECT_EQ(core::Valor(u"PAR1=-full"_s, 5), u"-full");
    EXPECT_EQ(core::Valor(u"ROM="_s, 4), QString());
    EXPECT_EQ(core::Valor(u"ROM"_s, 4), QString());
    EXPECT_EQ(core::Valor(QString(), 4), QString());
    EXPECT_EQ(core::ValorExigido(u"IMG=/caps/"_s, 4), u"/caps/");
    EXPECT_EQ(core::ValorExigido(u"IMG="_s, 4), QString());
    EXPECT_EQ(NumeroDeFallo([] { core::ValorExigido(u"IMG"_s, 4); }), host::InvalidArgument);
}

TEST(Modulo, TypeIsTheLastCharacter_NeverAHalfOfOne)
{
    EXPECT_EQ(core::TipoDe(u"XDI=3"_s), u"3"_s);
    EXPECT_EQ(core::TipoDe(u"XDI=😀"_s), u"😀"_s);
    EXPECT_EQ(core::TipoDe(QString()), QString());
}
