#include "mundotest.h"

using namespace Qt::StringLiterals;

MundoTest::MundoTest()
{
    systemsOfCatalogue = {
        { u"Zeta"_s, { u"NES"_s },
            { { u"Uno"_s, u"0"_s, files.path(u"zeta/"_s), files.path(u"zetacap/"_s) } } },
        { u"alfa"_s, { u"SMS"_s },
            { { u"beta"_s, u"2"_s, files.path(u"alfazip/"_s) },
                { u"Alto"_s, u"0"_s, files.path(u"alfa/"_s) } } },
        { u"Medio"_s, {},
            { { u"Dir"_s, u"1"_s, files.path(u"medio/"_s) },
                { u"Solo"_s, u"6"_s, files.path(u"medio/"_s) } } },
    };
    files.writeCatalogue(systemsOfCatalogue);
    files.writeDatabase({ { u"Nueva"_s, { u"NEW"_s }, { { u"Solita"_s, {}, {} } } },
        { u"Base"_s, { u"BAS"_s }, { { u"B2"_s, {}, {} }, { u"B1"_s, {}, {} } } },
        { u"alfa"_s, { u"SMS"_s }, { { u"beta"_s, {}, {} }, { u"Alto"_s, {}, {} } } } });
    files.writeNotes({ { u"Zeta"_s, { { u"ONE.NES"_s, u"Juego uno"_s } } },
        { u"alfa"_s, { { u"GAME"_s, u"Un juego"_s } } }, { u"Medio"_s, { { u"G1"_s, u"Gran uno"_s } } } });
    files.writeSize(u"zeta/one.nes"_s, 1000);
    files.writeSize(u"zeta/two.nes"_s, 2048);
    files.writeGif(u"zetacap/ONE.GIF"_s, Qt::red);
    files.writeSize(u"alfazip/game.zip"_s, 3000);
    files.writeSize(u"alfa/a.sms"_s, 5120);
    files.writeSize(u"alfa/b.sms"_s, 1024);
    for (const QString &directory : { u"medio/G1"_s, u"medio/G2"_s, u"medio/roms"_s })
        files.makeDirectory(directory);
}

void MundoTest::startAt(int system, int emulator)
{
    Settings settings;
    settings.LastSisUsed = QString::number(system);
    settings.LastEmuUsed = QString::number(emulator);
    files.writeSettings(settings);
    start();
}

void MundoTest::startWithoutEmulator(int system)
{
    startAt(system, 696969);
}
