// The table of the command lines, every case by both routes, to the last blank.
#include "launch/piezas.h"

#include "tests/host/disktest.h"

using namespace Qt::StringLiterals;
using launch::Caso;
using launch::Via;

namespace {

launch::Piezas piezas()
{
    launch::Piezas p;
    p.programa.ExeCorto = { u"/emu/emu.sh"_s, u"/Emu/Emu.sh"_s };
    p.programa.ExeNombre = { u"emu.sh"_s, u"Emu.sh"_s };
    p.programa.ExeDir = { u"/emu/"_s, u"/Emu/"_s };
    p.Par1 = u"-1"_s;
    p.Par2 = u"-2"_s;
    p.ParRom = u"-R"_s;
    p.RomDir = { u"/roms/"_s, u"/ROMs/"_s };
    p.RomCorto = { u"my_game.zip"_s, u"My Game.ZIP"_s };
    p.RomBase = u"my_game"_s;
    p.Desempaquetada = { u"/tmp/ZB-TMP/castle.nes"_s, u"/tmp/ZB-TMP/Castle.NES"_s };
    return p;
}

// By note, types 2 and 3, the short name comes without its last four characters.
launch::Piezas piezasCortadas()
{
    launch::Piezas p = piezas();
    p.RomCorto.texto = u"my_game"_s;
    return p;
}

struct Orden {
    Caso caso;
    Via via;
    launch::Piezas piezas;
    QString texto;
    QStringList argumentos;
};

class TablaDeOrdenes : public testing::TestWithParam<Orden> { };

TEST_P(TablaDeOrdenes, HasTheTextOfItsRow_AndItsArguments)
{
    const launch::LineaDeOrden orden = Compone(GetParam().caso, GetParam().via, GetParam().piezas);
    EXPECT_EQ(orden.EnTexto(), GetParam().texto);
    EXPECT_EQ(orden.Argumentos(), GetParam().argumentos);
}

const QString Exe = u"/Emu/Emu.sh"_s;
const QString ROM = u"/ROMs/My Game.ZIP"_s;
const QString Nombre = u"my_game"_s;
const QString NombreZip = u"my_game.zip"_s;
const QString Suelta = u"/tmp/ZB-TMP/Castle.NES"_s;

INSTANTIATE_TEST_SUITE_P(Filas, TablaDeOrdenes,
    testing::Values(Orden { Caso::SoloExe, Via::Nota, piezas(), u"emu.sh-1"_s, { u"Emu.sh-1"_s } },
        Orden { Caso::SoloExe, Via::Fichero, piezas(), u"emu.sh-1"_s, { u"Emu.sh-1"_s } },
        Orden { Caso::Suelto, Via::Nota, piezas(), u"/emu/emu.sh -1 /roms/my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, ROM, u"-2"_s, u"-R"_s } },
        Orden { Caso::Suelto, Via::Fichero, piezas(), u"/emu/emu.sh -1 /roms/my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, ROM, u"-2"_s, u"-R"_s } },
        Orden { Caso::Desempaquetado, Via::Nota, piezas(), u"/emu/emu.sh -1 /tmp/ZB-TMP/castle.nes -2 -R"_s,
            { Exe, u"-1"_s, Suelta, u"-2"_s, u"-R"_s } },
        Orden { Caso::Desempaquetado, Via::Fichero, piezas(),
            u"/emu/emu.sh -1 /tmp/ZB-TMP/castle.nes -2 -R"_s, { Exe, u"-1"_s, Suelta, u"-2"_s, u"-R"_s } },
        Orden { Caso::Directorio, Via::Nota, piezas(), u"/emu/emu.sh -1 my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, NombreZip, u"-2"_s, u"-R"_s } },
        Orden { Caso::Directorio, Via::Fichero, piezas(), u"/emu/emu.sh -1 my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, NombreZip, u"-2"_s, u"-R"_s } },
        Orden { Caso::Comprimido, Via::Nota, piezasCortadas(), u"/emu/emu.sh -1 my_game -2 -R"_s,
            { Exe, u"-1"_s, Nombre, u"-2"_s, u"-R"_s } },
        Orden { Caso::Comprimido, Via::Fichero, piezas(), u"emu.sh  -1 my_game -2 -R"_s,
            { u"Emu.sh"_s, u"-1"_s, Nombre, u"-2"_s, u"-R"_s } },
        Orden { Caso::NeoRage, Via::Nota, piezasCortadas(), u"/emu/emu.sh -1 /roms/my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, ROM, u"-2"_s, u"-R"_s } },
        Orden { Caso::NeoRage, Via::Fichero, piezas(), u"/emu/emu.sh -1 /roms/my_game.zip -2 -R"_s,
            { Exe, u"-1"_s, ROM, u"-2"_s, u"-R"_s } },
        Orden { Caso::AutoComprimido, Via::Nota, piezasCortadas(), u"/emu/emu.sh -1 my_game-2 -R"_s,
            { Exe, u"-1"_s, u"my_game-2"_s, u"-R"_s } },
        Orden { Caso::AutoComprimido, Via::Fichero, piezas(), u"/emu/emu.sh -1 my_game -2 -R"_s,
            { Exe, u"-1"_s, Nombre, u"-2"_s, u"-R"_s } }));

launch::Piezas sinParametros(launch::Piezas p)
{
    p.Par1 = p.Par2 = p.ParRom = QString();
    return p;
}

INSTANTIATE_TEST_SUITE_P(ConCamposVacios, TablaDeOrdenes,
    testing::Values(Orden { Caso::SoloExe, Via::Nota, sinParametros(piezas()), u"emu.sh"_s, { u"Emu.sh"_s } },
        Orden { Caso::Suelto, Via::Nota, sinParametros(piezas()), u"/emu/emu.sh  /roms/my_game.zip  "_s,
            { Exe, ROM } },
        Orden { Caso::Directorio, Via::Fichero, sinParametros(piezas()), u"/emu/emu.sh  my_game.zip  "_s,
            { Exe, NombreZip } },
        Orden { Caso::Comprimido, Via::Fichero, sinParametros(piezas()), u"emu.sh   my_game  "_s,
            { u"Emu.sh"_s, Nombre } },
        Orden { Caso::NeoRage, Via::Nota, sinParametros(piezasCortadas()),
            u"/emu/emu.sh  /roms/my_game.zip  "_s, { Exe, ROM } },
        Orden { Caso::AutoComprimido, Via::Nota, sinParametros(piezasCortadas()), u"/emu/emu.sh  my_game "_s,
            { Exe, Nombre } }));

launch::Piezas sinROM(launch::Piezas p)
{
    p.RomCorto = {};
    p.RomBase = QString();
    return p;
}

launch::Piezas sinPrograma(launch::Piezas p)
{
    p.programa = {};
    return p;
}

INSTANTIATE_TEST_SUITE_P(ConFicherosQueFaltan, TablaDeOrdenes,
    testing::Values(Orden { Caso::Suelto, Via::Fichero, sinROM(piezas()), u"/emu/emu.sh -1 /roms/ -2 -R"_s,
                        { Exe, u"-1"_s, u"/ROMs/"_s, u"-2"_s, u"-R"_s } },
        Orden { Caso::Directorio, Via::Fichero, sinROM(piezas()), u"/emu/emu.sh -1  -2 -R"_s,
            { Exe, u"-1"_s, u"-2"_s, u"-R"_s } },
        Orden { Caso::Comprimido, Via::Fichero, sinROM(piezas()), u"emu.sh  -1  -2 -R"_s,
            { u"Emu.sh"_s, u"-1"_s, u"-2"_s, u"-R"_s } },
        Orden { Caso::NeoRage, Via::Nota, sinROM(piezas()), u"/emu/emu.sh -1 /roms/.zip -2 -R"_s,
            { Exe, u"-1"_s, u"/ROMs/.zip"_s, u"-2"_s, u"-R"_s } },
        Orden { Caso::Suelto, Via::Nota, sinPrograma(piezas()), u" -1 /roms/my_game.zip -2 -R"_s, {} },
        Orden { Caso::SoloExe, Via::Nota, sinPrograma(piezas()), u"-1"_s, {} }));

} // namespace
