// What zembro check finds in the catalogue, the settings and the language files.
#include "mesaderevision.h"

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST_F(Check, LinesThatAnEmulatorLacksAreSaid_ByTheirKey)
{
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    for (const QByteArray &clave : QList<QByteArray> { "EXE", "XDI", "ROM", "IMG" }) {
        QByteArray roto = entero;
        const qsizetype desde = roto.indexOf(clave + '=');
        Pon(u"Zembro.emu"_s, roto.remove(desde, roto.indexOf('\n', desde) + 1 - desde));
        EXPECT_THAT(clases(), Contains(u"missing-line"_s)) << clave.toStdString();
        EXPECT_TRUE(dicho().startsWith(
            "Zembro.emu:5: The emulator Uno has no line that begins with " + clave + "=; add it"))
            << dicho().toStdString();
        EXPECT_FALSE(dicho().contains("Zembro.emu:0")) << dicho().toStdString();
    }
}

TEST_F(Check, AnEmulatorThatLostItsNameIsSaid)
{
    Cambia(u"Zembro.emu"_s, "+Dos\r\n", "");
    EXPECT_EQ(clases().count(u"line-twice"_s), 7) << clases().join(u' ').toStdString();
    Cambia(u"Zembro.emu"_s, "+Uno\r\n", "");
    EXPECT_THAT(clases(), Contains(u"line-without-emulator"_s));
    EXPECT_THAT(clases(), Contains(u"system-without-emulator"_s));
}

TEST_F(Check, LinesThatEndTheReadingAreSaid)
{
    Cambia(u"Zembro.emu"_s, "-Sis\r\n", "EXE=/x\r\nROM=/y\r\n-Sis\r\n");
    EXPECT_EQ(clases().count(u"line-ahead-of-systems"_s), 1);
    EXPECT_TRUE(dicho().startsWith("Zembro.emu:1: Nothing from this line on is read"))
        << dicho().toStdString();
    const Respuesta respuesta = Zembro({ u"check"_s, u"Sis"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.startsWith("zembro: The catalogue can't be read to its end"))
        << respuesta.error.toStdString();
    QByteArray muchos;
    for (int i = 0; i < 152; ++i)
        muchos += "-S" + QByteArray::number(i) + "\r\n";
    Pon(u"Zembro.emu"_s, muchos + "[EOF]\r\n");
    EXPECT_EQ(clases().count(u"too-many"_s), 1);
}

TEST_F(Check, LinesThatMeanAnotherThingAreSaid)
{
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1 -a");
    EXPECT_THAT(clases(), ElementsAre(u"malformed-line"_s));
    Cambia(u"Zembro.emu"_s, "PAR1 -a", "PAR1=-a\r\n*.BIN");
    EXPECT_THAT(clases(), Contains(u"extension-behind-emulator"_s));
    Cambia(u"Zembro.emu"_s, "\r\n*.BIN", "");
    Cambia(u"Zembro.emu"_s, "*.NES", "*.NES\r\n*.bin\r\n*.");
    EXPECT_EQ(clases().count(u"useless-extension"_s), 2);
    Cambia(u"Zembro.emu"_s, "+Dos", "+");
    EXPECT_THAT(clases(), Contains(u"no-name"_s));
}

TEST_F(Check, BlanksBehindADirectoryAreSaid_AndTakenAwayWhereThatIsThere)
{
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    Cambia(u"Zembro.emu"_s, "roms/\r\n", "roms/ \r\n");
    EXPECT_THAT(clases(), Contains(u"blanks-behind-path"_s));
    EXPECT_THAT(clases(), testing::Not(Contains(u"no-closing-separator"_s)));
    EXPECT_THAT(clases(), testing::Not(Contains(u"lost-place"_s)));
    EXPECT_TRUE(
        dicho().startsWith("Zembro.emu:8: Blanks behind this path count as part of it, so that nothing "
                           "is found there; take them away: 'ROM="
            + Ruta(u"roms/ '"_s).toUtf8() + " [It has one answer only: check --mend --write.]\n"))
        << dicho().toStdString();
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), entero);
    // Without a separator ahead of them, where the end of a path may have blanks, and the middle of one not.
    for (const QByteArray &blancos : { " "_ba, "  "_ba, "\t"_ba }) {
        Cambia(u"Zembro.emu"_s, "roms/\r\n", "roms" + blancos + "\r\n");
        EXPECT_THAT(clases(), Contains(u"blanks-behind-path"_s));
        EXPECT_THAT(clases(), testing::Not(Contains(u"no-closing-separator"_s)));
        EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
        EXPECT_EQ(Bytes(u"Zembro.emu"_s), entero);
    }
    Cambia(u"Zembro.emu"_s, "roms/\r\n", "gone/ \r\n");
    const QByteArray perdido = Bytes(u"Zembro.emu"_s);
    EXPECT_THAT(clases(), Contains(u"blanks-behind-path"_s));
    Zembro({ u"check"_s, u"--mend"_s, u"--write"_s });
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), perdido);
}

TEST_F(Check, ADirectoryWithoutItsSeparatorIsSaid_AndMended)
{
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    Cambia(u"Zembro.emu"_s, "roms/\r\n", "roms\r\n");
    Cambia(u"Zembro.emu"_s, "img/\r\nPAR1=-a", "img\r\nPAR1=-a");
    EXPECT_THAT(clases(), ElementsAre(u"no-closing-separator"_s, u"no-closing-separator"_s));
    EXPECT_TRUE(dicho().startsWith("Zembro.emu:8: This directory lacks its closing separator"))
        << dicho().toStdString();
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), entero);
}

TEST_F(Check, SettingsOutOfRangeAreSaid)
{
    Cambia(u"Zembro.cfg"_s, "DebugMode = 0", "DebugMode = 7");
    EXPECT_THAT(clases(), ElementsAre(u"setting-out-of-range"_s));
    EXPECT_TRUE(dicho().startsWith("Zembro.cfg:18: ")) << dicho().toStdString();
}

TEST_F(Check, ALanguageThatIsNoneOfTheFilesIsSaid)
{
    for (const QString &nombre : { u""_s, u"../Zembro.emu"_s, u"ZB-XXX.LNG"_s, u"."_s }) {
        PonAjustes(nombre);
        EXPECT_THAT(clases(), Contains(u"setting-out-of-range"_s)) << nombre.toStdString();
    }
    PonAjustes(u"zb-eng.lng"_s);
    EXPECT_THAT(clases(), IsEmpty());
}

TEST_F(Check, ALastSelectionThatIsNoneIsSaid)
{
    Cambia(u"Zembro.cfg"_s, "LastEmuUsed = 0", "LastEmuUsed = 1");
    EXPECT_THAT(clases(), IsEmpty());
    Cambia(u"Zembro.cfg"_s, "LastEmuUsed = 1", "LastEmuUsed = 2");
    EXPECT_THAT(clases(), ElementsAre(u"setting-out-of-range"_s));
    Cambia(u"Zembro.cfg"_s, "LastEmuUsed = 2", "LastEmuUsed = 696969");
    EXPECT_THAT(clases(), IsEmpty());
    Cambia(u"Zembro.cfg"_s, "LastSisUsed = 0", "LastSisUsed = 1");
    EXPECT_THAT(clases(), ElementsAre(u"setting-out-of-range"_s));
}

TEST_F(Check, SettingsThatLostOrGotALineAreSaid)
{
    Cambia(u"Zembro.cfg"_s, "[General]\r\n", "");
    EXPECT_THAT(clases(), Contains(u"setting-out-of-place"_s));
    EXPECT_TRUE(dicho().startsWith("Zembro.cfg:12: Here the line of LastSisUsed should stand"))
        << dicho().toStdString();
    PonAjustes();
    Cambia(u"Zembro.cfg"_s, "DebugMode = 0\r\n", "DebugMode = 0\r\n\r\n");
    EXPECT_THAT(clases(), Contains(u"setting-out-of-place"_s));
}

TEST_F(Check, FiltersThatFilterNothingOrEverythingAreSaid)
{
    Cambia(u"Zembro.cfg"_s, "ARTWORK\r\n", "artwork\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"useless-filter"_s));
    Cambia(u"Zembro.cfg"_s, "artwork\r\n", "A1\r\nA2\r\nA3\r\nA4\r\nA5\r\nA6\r\nA7\r\nA8\r\n");
    EXPECT_THAT(clases(), Contains(u"too-many-filters"_s));
}

TEST_F(Check, KeysShortLinesAndLostBlanksOfLanguagesAreSaid)
{
    Cambia(u"LNG/ZB-ENG.LNG"_s, "TXT_Grabar........=\"x \"\r\n", "TXT\r\n");
    Cambia(u"LNG/ZB-ENG.LNG"_s, "Msg_BorrarEmu1....=\"x \"", "Msg_BorrarEmu1....=\"x\"");
    EXPECT_THAT(clases(), UnorderedElementsAre(u"short-line"_s, u"missing-key"_s, u"lost-blank"_s));
}

TEST_F(Check, LinesOfALanguageThatWereReplacedLostOrDoubledAreSaid)
{
    const QByteArray entero = Bytes(u"LNG/ZB-ENG.LNG"_s);
    Cambia(u"LNG/ZB-ENG.LNG"_s, "TXT_Volver........=", "TXT_Bolver........=");
    EXPECT_THAT(clases(), UnorderedElementsAre(u"unknown-key"_s, u"missing-key"_s));
    EXPECT_TRUE(dicho().startsWith("LNG/ZB-ENG.LNG:2: No text of the program has this key"))
        << dicho().toStdString();
    Pon(u"LNG/ZB-ENG.LNG"_s, entero);
    Cambia(u"LNG/ZB-ENG.LNG"_s, "TXT_Volver........=\"x \"", "TXT_Volver........=\"x ");
    EXPECT_THAT(clases(), ElementsAre(u"lost-quotes"_s));
    Pon(u"LNG/ZB-ENG.LNG"_s, entero + "TXT_Volver........=\"x \"\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"key-twice"_s));
    const qsizetype desde = entero.indexOf("Zbo_Check");
    Pon(u"LNG/ZB-ENG.LNG"_s, QByteArray(entero).remove(desde, entero.indexOf('\n', desde) + 1 - desde));
    EXPECT_THAT(clases(), ElementsAre(u"missing-words"_s));
    EXPECT_TRUE(dicho().contains(": 1 (Zbo_Check)\n")) << dicho().toStdString();
}
