// zembro check.
#include "mesaderevision.h"

#include "companion/eleccion.h"
#include "companion/revision.h"

#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Check, WhatIsInOrderIsNoFinding_AndIsCounted)
{
    EXPECT_THAT(clases(), IsEmpty());
    EXPECT_EQ(dicho(),
        "Sis / Dos: 1 listed, 0 of another kind, 0 left out by the filters, 0 without a capture.\n"
        "Sis / Uno: 3 listed, 1 of another kind, 0 left out by the filters, 2 without a capture.\n"
        "    Zelda II.nes has no capture; it is looked for as "
            + Ruta(u"img/Zelda II.GIF"_s).toUtf8() + "\n    Zelda.nes has no capture; it is looked for as "
            + Ruta(u"img/Zelda.GIF"_s).toUtf8() + '\n');
}

TEST_F(Check, PathsFromTheProgramsDirectoryAreLookedAtThere)
{
    const QByteArray entero = dicho();
    Cambia(u"Zembro.emu"_s, "=" + Ruta(QString()).toUtf8(), "=");
    ASSERT_TRUE(Bytes(u"Zembro.emu"_s).contains("ROM=roms/"));
    EXPECT_THAT(clases(), IsEmpty());
    EXPECT_EQ(dicho(), entero);
    Cambia(u"Zembro.emu"_s, "emu/uno.sh", "emu/unno.sh");
    EXPECT_TRUE(dicho().contains(Ruta(u"emu/unno.sh"_s).toUtf8())) << dicho().toStdString();
}

TEST_F(Check, AMistypedExecutableIsSaid_WithTheOneThatIsMeant)
{
    Cambia(u"Zembro.emu"_s, "emu/uno.sh", "emu/unno.sh");
    EXPECT_THAT(
        clases({ u"check"_s, u"Sis"_s, u"Uno"_s }), ElementsAre(u"no-program"_s, u"similar-program"_s));
    EXPECT_TRUE(dicho().contains(
        "Zembro.emu:6: Sis / Uno: Perhaps this one is meant: " + Ruta(u"emu/uno.sh"_s).toUtf8() + '\n'))
        << dicho().toStdString();
}

TEST_F(Check, AProgramThatMayNotRunIsSaid)
{
    QFile::setPermissions(Ruta(u"emu/uno.sh"_s), QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_THAT(clases({ u"check"_s, u"Sis"_s, u"Uno"_s }), ElementsAre(u"not-executable"_s));
}

TEST_F(Check, ABlockWithoutItsClosingLineIsSaid_WithItsLine)
{
    Cambia(u"Zembro.emu"_s, "'------\r\n", "");
    EXPECT_THAT(clases(), ElementsAre(u"block-without-end"_s));
    EXPECT_TRUE(
        dicho().startsWith("Zembro.emu:1: The block of Sis lacks the line of an apostrophe and dashes"))
        << dicho().toStdString();
}

TEST_F(Check, AMissingMarkIsSaid)
{
    Cambia(u"Zembro.emu"_s, "[EOF]\r\n", "");
    EXPECT_THAT(clases(), ElementsAre(u"missing-mark"_s));
}

TEST_F(Check, MendShowsWhatItWouldDo_AndWritesItWhereItIsTold)
{
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const QByteArray cierre = "'" + QByteArray(70, '-') + "\r\n";
    const QByteArray entero = QByteArray(antes).replace("'------\r\n", cierre);
    Cambia(u"Zembro.emu"_s, "'------\r\n[EOF]\r\n", "");
    const QByteArray roto = Bytes(u"Zembro.emu"_s);
    const Respuesta muestra = Zembro({ u"check"_s, u"--mend"_s });
    EXPECT_EQ(muestra.estado, companion::Hallazgos);
    EXPECT_TRUE(muestra.salida.startsWith("--- Zembro.emu\n+++ Zembro.emu\n@@ -"))
        << muestra.salida.toStdString();
    EXPECT_TRUE(muestra.salida.endsWith("\n+'" + QByteArray(70, '-') + "\n+[EOF]\n"))
        << muestra.salida.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), roto);
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), entero);
    EXPECT_THAT(clases(), IsEmpty());
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s }).salida, "");
    EXPECT_FALSE(QFile::exists(Ruta(u"Zembro.tmp"_s)));
}

TEST_F(Check, MendSaysHowManyFindingsHaveNoOneAnswer)
{
    Cambia(u"Zembro.emu"_s, "'------\r\n[EOF]\r\n", "");
    Pon(u"img/Luigi.gif"_s, UnGif());
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n", "Super Mario\"\r\nGONE.NES,\"Gone\"\r\n");
    const QByteArray dicho = "zembro: Findings that have no one answer: 2; check names them.\n";
    const Respuesta muestra = Zembro({ u"check"_s, u"--mend"_s });
    EXPECT_EQ(muestra.estado, companion::Hallazgos);
    EXPECT_EQ(muestra.error, dicho);
    EXPECT_EQ(Json({ u"check"_s, u"--mend"_s }, companion::Hallazgos)[u"remaining"_s].toInt(), 2);
    const Respuesta escrito = Zembro({ u"check"_s, u"--mend"_s, u"--write"_s });
    EXPECT_EQ(escrito.estado, companion::Hallazgos);
    EXPECT_EQ(escrito.error, dicho);
    EXPECT_EQ(clases().size(), 2);
    const Respuesta nada = Zembro({ u"check"_s, u"--mend"_s });
    EXPECT_EQ(nada.salida + nada.error, dicho);
    EXPECT_EQ(nada.estado, companion::Hallazgos);
}

// Of the program itself, whose answer goes through a buffer.
TEST_F(Check, WhatIsSaidBesideTheAnswerStandsBehindWhatCameBefore)
{
    Cambia(u"Zembro.emu"_s, "[EOF]\r\n", "");
    Pon(u"img/Luigi.gif"_s, UnGif());
    QProcess proceso;
    proceso.setProcessChannelMode(QProcess::MergedChannels);
    proceso.start(QStringLiteral(ZEMBRO), { u"check"_s, u"--mend"_s, u"--directory"_s, Ruta(QString()) });
    ASSERT_TRUE(proceso.waitForFinished());
    EXPECT_TRUE(proceso.readAll().endsWith(
        "+[EOF]\nzembro: Findings that have no one answer: 1; check names them.\n"));
}

TEST_F(Check, ParametersWithoutTheirEndAreSaid_AndMendedWhereItsPlaceIsSure)
{
    const QByteArray entero = Bytes(u"Zembro.rom"_s);
    for (const QByteArray &final : QByteArrayList { "", "\r\n", "\r\n\r\n", "fin\r\nfin,\"fin\"\r\n" }) {
        Pon(u"Zembro.rom"_s, entero.chopped(3) + final);
        EXPECT_THAT(clases(), ElementsAre(u"block-without-end"_s));
        EXPECT_TRUE(dicho().startsWith(
            "Zembro.rom:7: The section of parameters lacks its closing line, an apostrophe alone"))
            << dicho().toStdString();
        EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), entero + final);
        EXPECT_THAT(clases(), IsEmpty());
    }
    for (const QByteArray &resto :
        QByteArrayList { "some line\r\n", " \r\n", "X,Sis,Uno,\"-a\r\n", "[EOF]\r\n", ",Sis,Uno,-a\r\n" }) {
        Pon(u"Zembro.rom"_s, entero.chopped(3) + resto);
        const QByteArray roto = Bytes(u"Zembro.rom"_s);
        EXPECT_THAT(clases(), testing::Contains(u"missing-mark"_s)) << resto.toStdString();
        EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Hallazgos);
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), roto);
    }
}

TEST_F(Check, WhatIsNoFileIsCounted_AndNamed)
{
    PonDirectorio(u"roms/saves"_s);
    ASSERT_EQ(mkfifo(Ruta(u"roms/a.nes"_s).toUtf8().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(Ruta(u"nothing"_s), Ruta(u"roms/b.nes"_s)));
    PonDirectorio(u"roms/.hidden"_s);
    Pon(u"dirs/readme.txt"_s, "x");
    EXPECT_THAT(clases(), IsEmpty());
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains(
        "Sis / Uno: 3 listed, 4 of another kind, 0 left out by the filters, 2 without a capture.\n"
        "    No files, but directories, pipes or the like: 3 (a.nes, b.nes, saves)\n    Hidden, and so not "
        "listed: 1 (.hidden)\n"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains(
        "Sis / Dos: 1 listed, 1 of another kind, 0 left out by the filters, 0 without a capture.\n"
        "    No directories: 1 (readme.txt)\n"));
    EXPECT_EQ(Json({ u"check"_s })[u"pairs"_s][1][u"other_things"_s].toInt(), 3);
    PonDirectorio(u"roms/zzz"_s);
    EXPECT_TRUE(
        dicho().contains("    No files, but directories, pipes or the like: 4 (a.nes, b.nes, saves ...)\n"));
}

TEST_F(Check, MendIsForTheWholeDirectory)
{
    Cambia(u"Zembro.emu"_s, "'------\r\n[EOF]\r\n", "");
    const QByteArray roto = Bytes(u"Zembro.emu"_s);
    for (const QString &sistema : { u"Sis"_s, u"nosuch"_s, QString() }) {
        const Respuesta respuesta = Zembro({ u"check"_s, sistema, u"--mend"_s, u"--write"_s });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_EQ(
            respuesta.error, "zembro: --mend is for the whole directory: leave SYSTEM and EMULATOR out.\n");
        EXPECT_EQ(respuesta.salida, "");
    }
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), roto);
}

TEST_F(Check, WritesOnlyWhatItMends)
{
    const Respuesta respuesta = Zembro({ u"check"_s, u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_EQ(respuesta.error, "zembro: Of check, --write goes with --mend alone.\n");
    EXPECT_EQ(respuesta.salida, "");
}

TEST_F(Check, WithoutOneFileTheOthersAreMended_AndToldFirst)
{
    const QByteArray notas = Bytes(u"Zembro.rom"_s);
    const QByteArray base = Bytes(u"Zembro.sye"_s);
    for (const QString &fichero : { u"Zembro.rom"_s, u"Zembro.sye"_s }) {
        Pon(u"Zembro.rom"_s, QByteArray(notas).replace("Sis\r\nMARIO.NES,\"Super Mario\"\r\n'\r\n", ""));
        Pon(u"Zembro.sye"_s, QByteArray(base).replace("[EOF]\r\n", ""));
        Borra(fichero);
        const QString otro = fichero == u"Zembro.rom" ? u"Zembro.sye"_s : u"Zembro.rom"_s;
        const QByteArray roto = Bytes(otro);
        EXPECT_THAT(clases(), testing::Contains(u"unreadable"_s));
        EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s }).estado, companion::NoPudo);
        EXPECT_EQ(Bytes(otro), roto);
        const Respuesta respuesta = Zembro({ u"check"_s, u"--mend"_s, u"--write"_s });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.salida.startsWith("--- " + otro.toUtf8() + '\n'))
            << respuesta.salida.toStdString();
        EXPECT_TRUE(respuesta.error.startsWith("zembro: " + fichero.toUtf8() + ": "))
            << respuesta.error.toStdString();
        EXPECT_EQ(respuesta.error.count('\n'), 1);
        EXPECT_NE(Bytes(otro), roto);
        EXPECT_FALSE(QFile::exists(Ruta(fichero)));
        const QJsonObject json = Json({ u"check"_s, u"--mend"_s, u"--write"_s }, companion::NoPudo);
        EXPECT_EQ(json[u"findings"_s][0][u"kind"_s].toString(), u"unreadable"_s);
        EXPECT_EQ(json[u"findings"_s][0][u"file"_s].toString(), fichero);
    }
}

TEST_F(Check, ADirectoryWithoutACatalogueIsNotMended)
{
    Borra(u"Zembro.emu"_s);
    Cambia(u"Zembro.sye"_s, "[EOF]\r\n", "");
    const QByteArray roto = Bytes(u"Zembro.sye"_s);
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::NoPudo);
    EXPECT_EQ(Bytes(u"Zembro.sye"_s), roto);
}

TEST_F(Check, NotesThatRunIntoTheNextSystemsAreSaid_AndMended)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n'\r\n+Uno\r\n'------\r\n-Otro\r\n'\r\n'-----\r\n[EOF]\r\n");
    const QByteArray entero =
        "Sis\r\nMARIO.NES,\"Super Mario\"\r\n'\r\nOtro\r\n'\r\n[EOF]\r\nParametros especificos\r\n'\r\n";
    Pon(u"Zembro.rom"_s, QByteArray(entero).replace("Mario\"\r\n'\r\n", "Mario\"\r\n"));
    EXPECT_THAT(clases(), testing::Contains(u"block-without-end"_s));
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), entero);
    EXPECT_THAT(clases(), IsEmpty());
}

TEST_F(Check, AHeadingInTheMiddleOfNotesIsNoRecordThatACommaCuts)
{
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\nSis\r\n");
    EXPECT_THAT(clases(), testing::Contains(u"block-without-end"_s));
    EXPECT_THAT(clases(), testing::Not(testing::Contains(u"cut-record"_s)));
}

TEST_F(Check, ASystemWithoutNotesIsSaid_AndMended)
{
    Cambia(u"Zembro.rom"_s, "Sis\r\nMARIO.NES,\"Super Mario\"\r\n'\r\n", "");
    EXPECT_THAT(clases(), testing::Contains(u"system-without-notes"_s));
    Zembro({ u"check"_s, u"--mend"_s, u"--write"_s });
    EXPECT_THAT(clases({ u"check"_s, u"Sis"_s, u"Uno"_s }), IsEmpty());
    EXPECT_TRUE(Bytes(u"Zembro.rom"_s).contains("Sis\r\n'\r\n"));
}

TEST_F(Check, RecordsThatACommaCuts_TwiceTheSameName_AndNotesWithoutAFileAreSaid)
{
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n",
        "Super Mario\"\r\nZELDA.NES,Zelda, The\r\nmario.nes,\"x\"\r\nGONE.NES,\"Gone\"\r\n");
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains("Zembro.rom:3: This record has another number of fields"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zembro.rom:4: This name stands twice")) << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zembro.rom:5: The note GONE.NES has no file any more")) << todo.toStdString();
}

TEST_F(Check, WhatTheFilesLackIsSaidOfOnePairToo)
{
    Cambia(u"Zembro.emu"_s, "roms/\r\nIMG", "roms\r\nIMG");
    EXPECT_THAT(clases(SisUno), testing::Contains(u"no-closing-separator"_s));
    Cambia(u"Zembro.emu"_s, "roms\r\nIMG", "roms/\r\nIMG");
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n'\r\n'------\r\n", "Super Mario\"\r\n");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"block-without-end"_s, u"no-list"_s));
}

TEST_F(Check, LinesThatNobodyReads_AndNamesThatStandTwiceAreSaid)
{
    Cambia(u"Zembro.emu"_s, "+Dos\r\n", "EXXE=/x\r\n+uno\r\n");
    const QStringList suyas = clases();
    EXPECT_TRUE(suyas.contains(u"unread-line"_s));
    EXPECT_TRUE(suyas.contains(u"name-twice"_s));
    EXPECT_TRUE(
        dicho().startsWith("Zembro.emu:14: No reader takes this line; correct or remove it: EXXE=/x\n"))
        << dicho().toStdString();
}

TEST_F(Check, CapturesOfAnotherSpellingOrOfNoGameAreSaid)
{
    Pon(u"img/Zelda II (Europe).gif"_s, UnGif());
    Pon(u"img/Luigi.gif"_s, UnGif());
    const QByteArray todo = Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s }).salida;
    EXPECT_TRUE(todo.contains("The capture Zelda II (Europe).gif would be found as Zelda II.GIF; rename it,"))
        << todo.toStdString();
    EXPECT_TRUE(
        todo.contains("The capture Luigi.gif fits no game; rename it as the game is called, or remove it.\n"))
        << todo.toStdString();
}

TEST_F(Check, WhatStandsForACaptureAndIsNoneIsSaid)
{
    Pon(u"img/Zelda.gif"_s, "");
    PonDirectorio(u"img/ZELDA II.gif"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"none"_s), Ruta(u"img/Luigi.gif"_s)));
    PonDirectorio(u"img/other.gif"_s);
    EXPECT_THAT(
        clases(), ElementsAre(u"capture-broken-link"_s, u"capture-no-file"_s, u"capture-no-picture"_s));
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains(Ruta(u"img/Zelda.gif"_s).toUtf8()
        + ": Sis / Dos: Zelda.gif is no picture that the screen shows; remove it, or let captures make it "
          "anew.\n"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains(
        "Sis / Uno: 3 listed, 1 of another kind, 0 left out by the filters, 2 without a capture."));
}

TEST_F(Check, CapturesThatDifferInCaseAloneAreSaidBoth)
{
    Pon(u"img/Mario.GIF"_s, UnGif());
    EXPECT_THAT(clases(), ElementsAre(u"capture-twice"_s));
    EXPECT_TRUE(
        dicho().contains("Mario.GIF and mario.gif differ in case alone, and Mario.GIF is the one that shows"))
        << dicho().toStdString();
    // That of a note in upper case, where it is there.
    Pon(u"img/MARIO.GIF"_s, UnGif());
    EXPECT_THAT(clases(), ElementsAre(u"capture-twice"_s, u"capture-twice"_s));
    EXPECT_TRUE(dicho().contains("MARIO.GIF and mario.gif differ in case alone, and MARIO.GIF is the one"));
}

TEST_F(Check, GamesThatDifferInCaseAloneAreSaidBoth)
{
    Pon(u"roms/ZELDA.nes"_s, "x");
    Pon(u"img/Zelda.gif"_s, UnGif());
    EXPECT_THAT(clases(), ElementsAre(u"names-differ-in-case"_s));
    const QString jugado =
        Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Zelda.nes"_s })[u"arguments"_s][2].toString();
    EXPECT_TRUE(dicho().contains("ZELDA.nes and Zelda.nes differ in case alone, and "
        + jugado.sliced(jugado.lastIndexOf(u'/') + 1).toUtf8()
        + " is played for both; rename one of them.\n"))
        << dicho().toStdString();
}

TEST_F(Check, ParametersThatNoLaunchFindsAreSaid)
{
    Cambia(u"Zembro.rom"_s, "especificos\r\n",
        "especificos\r\nZelda II.nes,Sis,Uno,-a\r\nZELDA.NES,Sis,Uno,-a\r\nx,y\r\n");
    EXPECT_THAT(clases(), ElementsAre(u"lost-parameters"_s, u"cut-record"_s));
    EXPECT_TRUE(dicho().startsWith("Zembro.rom:8: The parameters of Zelda II.nes are never found"))
        << dicho().toStdString();
}

TEST_F(Check, SettingsThatAreGoneAreSaid_WithWhatTheProgramDoesThenAndWhatToDo)
{
    const QByteArray enteros = Bytes(u"Zembro.cfg"_s);
    const QByteArray perdidos =
        "Zembro.cfg: The settings are gone, as this file is missing or empty, so at its next "
        "start the program ends. Bring back a copy, or write a file Zembro.cfg that holds "
        "nothing but the word VACIO: then it asks as at the first start.";
    for (const QByteArray &vacio : { QByteArray(), QByteArray("\r\n \r\n") }) {
        Pon(u"Zembro.cfg"_s, vacio);
        EXPECT_THAT(clases(), ElementsAre(u"no-settings"_s));
        EXPECT_TRUE(dicho().startsWith(perdidos + '\n')) << dicho().toStdString();
    }
    Borra(u"Zembro.cfg"_s);
    EXPECT_THAT(clases(), ElementsAre(u"no-settings"_s));
    Pon(u"Zembro.cfg"_s, "VACIO");
    EXPECT_THAT(clases(), IsEmpty());
    // A copy is named that has them.
    Pon(u"Zembro.cfg"_s, enteros);
    Zembro({ u"save"_s });
    Pon(u"Zembro.cfg"_s, "");
    EXPECT_TRUE(dicho().startsWith(perdidos + " A copy holds it as it was: zembro restore "))
        << dicho().toStdString();
    Borra(u"Zembro.cfg"_s);
    EXPECT_TRUE(dicho().startsWith(perdidos + " A copy holds it as it was: zembro restore "))
        << dicho().toStdString();
}

TEST_F(Check, ASettingWhoseLineIsGoneIsSaid_WithTheLine)
{
    Cambia(u"Zembro.cfg"_s, "TypeOfEditor = 1\r\n", "");
    EXPECT_THAT(clases(), ElementsAre(u"setting-missing"_s));
    EXPECT_TRUE(dicho().startsWith(
        "Zembro.cfg:15: The line of TypeOfEditor is missing, so at its next start the program "
        "takes those below it for other settings, or ends; put it back here as it was, or "
        "like this: TypeOfEditor = 1\n"))
        << dicho().toStdString();
    const QByteArray antes = Bytes(u"Zembro.cfg"_s);
    EXPECT_EQ(Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }).estado, companion::Hallazgos);
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), antes);
}

TEST_F(Check, ExtensionsThatFitNothingOrTwiceAreSaid)
{
    Cambia(u"Zembro.emu"_s, "*.NES", "*.NES\r\n*.ES\r\n*.LONG");
    const QStringList suyas = clases();
    EXPECT_EQ(suyas.count(u"long-extension"_s), 1);
    EXPECT_EQ(suyas.count(u"listed-twice"_s), 3);
}

TEST_F(Check, FilesOfAnyBytesAreLookedAtToTheEnd)
{
    const QByteArray bytes = BytesSinOrden();
    for (const QString &fichero :
        { u"Zembro.emu"_s, u"Zembro.sye"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s, u"LNG/ZB-ENG.LNG"_s }) {
        const QByteArray antes = Bytes(fichero);
        Pon(fichero, bytes);
        const Respuesta respuesta = Zembro({ u"check"_s });
        EXPECT_EQ(respuesta.estado, companion::Hallazgos)
            << fichero.toStdString() << respuesta.error.toStdString();
        EXPECT_FALSE(respuesta.salida.contains('\x1b'));
        Zembro({ u"check"_s, u"--mend"_s });
        Pon(fichero, antes);
        Borra(fichero);
        EXPECT_NE(Zembro({ u"check"_s }).estado, companion::Bien) << fichero.toStdString();
        Pon(fichero, antes);
    }
}

TEST(MasParecido, IsTheNameThatDiffersLeast)
{
    EXPECT_EQ(companion::MasParecido({ u"stella"_s, u"stelo"_s }, u"Stela"_s), u"stella"_s);
    EXPECT_EQ(companion::MasParecido({ u"mame"_s }, u"stella"_s), QString());
    EXPECT_EQ(companion::MasParecido({ u"stellas"_s }, u"stela"_s, 1), QString());
    EXPECT_EQ(companion::MasParecido({ u"stellas"_s }, u"stela"_s, 2), u"stellas"_s);
    EXPECT_EQ(companion::MasParecido({ u"ab"_s }, QString()), QString());
}
