#include "core/rutas.h"

#include "host/drives.h"

#include "directoriodeprograma.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Rutas, AValueWithoutASeparatorOrADriveAheadCountsFromTheProgramsDirectory)
{
    const struct {
        QString valor;
        QString ruta;
    } casos[] = {
        { QString(), QString() },
        { u"  "_s, u"  "_s },
        { u"/roms/"_s, u"/roms/"_s },
        { u"\\roms\\"_s, u"\\roms\\"_s },
        { u"C:\\NoDir\\"_s, u"C:\\NoDir\\"_s },
        { u"z:roms/"_s, u"z:roms/"_s },
        { u"C:"_s, u"C:"_s },
        { u"demo/"_s, u"/p/demo/"_s },
        { u"demo\\"_s, u"/p/demo\\"_s },
        { u"demo"_s, u"/p/demo"_s },
        { u"../old/roms/"_s, u"/p/../old/roms/"_s },
        { u"./"_s, u"/p/./"_s },
        { u"1:roms/"_s, u"/p/1:roms/"_s },
        { u"ñ:roms/"_s, u"/p/ñ:roms/"_s },
        { u":"_s, u"/p/:"_s },
        { u"@:x"_s, u"/p/@:x"_s },
        { u"[:x"_s, u"/p/[:x"_s },
        { u" /roms"_s, u"/p/ /roms"_s },
        { u"CD:roms/"_s, u"/p/CD:roms/"_s },
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(core::RutaDeValor(caso.valor, u"/p"_s), caso.ruta) << caso.valor.toStdString();
        EXPECT_EQ(core::EsRutaRelativa(caso.valor), caso.valor != caso.ruta) << caso.valor.toStdString();
    }
}

TEST(Rutas, APathBelowTheProgramsDirectoryHasAValueThatMovesWithIt)
{
    const struct {
        QString ruta;
        QString valor;
    } casos[] = {
        { u"/p/roms/Atari 2600/"_s, u"roms/Atari 2600/"_s },
        { u"/p/emulator"_s, u"emulator"_s },
        { u"/p/a\\b/"_s, u"a\\b/"_s },
        { u"/p"_s, u"/p"_s },
        { u"/p/"_s, u"/p/"_s },
        { u"/programs/roms/"_s, u"/programs/roms/"_s },
        { u"/P/roms/"_s, u"/P/roms/"_s },
        { u"/p/C:/"_s, u"/p/C:/"_s },
        { u"/p/\\x"_s, u"/p/\\x"_s },
        { u"/p//x"_s, u"/p//x"_s },
        { u"/p/ "_s, u"/p/ "_s },
        { u"/"_s, u"/"_s },
        { QString(), QString() },
        { u"roms/"_s, u"roms/"_s },
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(core::ValorDeRuta(caso.ruta, u"/p"_s), caso.valor) << caso.ruta.toStdString();
        EXPECT_EQ(
            core::RutaDeValor(caso.valor, u"/p"_s), caso.ruta == u"roms/"_s ? u"/p/roms/"_s : caso.ruta);
    }
}

using RutasDelCatalogo = DirectorioDePrograma;

TEST_F(RutasDelCatalogo, AreReadAgainstTheDirectoryOfToday)
{
    EXPECT_EQ(core::RutaDeLinea(u"ROM=demo/"_s), Ruta(u"demo/"_s));
    EXPECT_EQ(core::RutaExigida(u"IMG=demo/"_s), Ruta(u"demo/"_s));
    EXPECT_EQ(core::RutaDeLinea(u"EXE=/usr/bin/mame"_s), u"/usr/bin/mame"_s);
    EXPECT_EQ(core::ValorDeRuta(Ruta(u"demo/"_s)), u"demo/"_s);
    EXPECT_EQ(core::RutaDeLinea(u"ROM"_s), QString());
    EXPECT_EQ(core::RutaExigida(u"IMG="_s), QString());
    EXPECT_EQ(NumeroDeFallo([] { core::RutaExigida(u"IMG"_s); }), 5);
}

TEST_F(RutasDelCatalogo, TellADriveThatIsMissing)
{
    const host::OtherDrives unidades({ { u'C', Ruta(QString()).chopped(1) }, { u'D', u"/nowhere"_s } });
    EXPECT_EQ(core::UnidadQueFalta(u"d:\\roms\\"_s), u'D');
    EXPECT_EQ(core::UnidadQueFalta(u"E:/roms/"_s), u'E');
    EXPECT_EQ(core::UnidadQueFalta(u"E:"_s), u'E');
    for (const QString &ruta : { u"C:\\roms"_s, u"/roms"_s, u"roms"_s, u"e:name"_s, QString() })
        EXPECT_TRUE(core::UnidadQueFalta(ruta).isNull()) << ruta.toStdString();
}
