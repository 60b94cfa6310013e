// zembro check --mend: what it repairs, and that check says the same of it.
#include "mesaderevision.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Mend : public Check {
protected:
    // The kinds of what check says --mend will repair, and of the rest.
    struct Clases {
        QStringList remendables;
        QStringList otras;
    };
    Clases Halladas() const
    {
        Clases todas;
        const QByteArray salida = Zembro({ u"check"_s, u"--json"_s }).salida;
        for (const QJsonValue &uno : QJsonDocument::fromJson(salida)[u"findings"_s].toArray())
            (uno[u"mendable"_s].toBool() ? todas.remendables : todas.otras) += uno[u"kind"_s].toString();
        return todas;
    }

    int Quedan() const
    {
        const QByteArray salida = Zembro({ u"check"_s, u"--mend"_s, u"--json"_s }).salida;
        return QJsonDocument::fromJson(salida)[u"remaining"_s].toInt(-1);
    }

    Respuesta Remienda() const { return Zembro({ u"check"_s, u"--mend"_s, u"--write"_s }); }
};

} // namespace

TEST_F(Mend, EmptyNotesBecomeWhole_AndAllOfThemSayHowManyFindingsRemain)
{
    Pon(u"Zembro.rom"_s, "");
    const Clases halladas = Halladas();
    EXPECT_THAT(halladas.otras, IsEmpty());
    EXPECT_TRUE(halladas.remendables.contains(u"system-without-notes"_s));
    EXPECT_TRUE(halladas.remendables.contains(u"no-list"_s)) << halladas.remendables.join(u' ').toStdString();
    EXPECT_EQ(Quedan(), 0);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "");
    const Respuesta escrito = Remienda();
    EXPECT_EQ(escrito.estado, companion::Bien);
    EXPECT_EQ(escrito.error, "");
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "Sis\r\n'\r\n[EOF]\r\nParametros especificos\r\n'\r\n");
    EXPECT_THAT(clases(), IsEmpty());
}

TEST_F(Mend, APathOfAFileIsNoDirectoryThatLacksItsSeparator)
{
    Cambia(u"Zembro.emu"_s, "roms/\r\nIMG", "roms/Mario.nes\r\nIMG");
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const Clases halladas = Halladas();
    EXPECT_THAT(halladas.remendables, IsEmpty());
    EXPECT_FALSE(halladas.otras.contains(u"no-closing-separator"_s));
    EXPECT_TRUE(halladas.otras.contains(u"no-list"_s)) << halladas.otras.join(u' ').toStdString();
    EXPECT_EQ(Quedan(), halladas.otras.size());
    EXPECT_EQ(Remienda().estado, companion::Hallazgos);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
    EXPECT_EQ(Halladas().otras, halladas.otras);
}

TEST_F(Mend, CheckSaysWhereItHasTheAnswer)
{
    Cambia(u"Zembro.emu"_s, "[EOF]\r\n", "");
    Pon(u"img/Luigi.gif"_s, UnGif());
    EXPECT_TRUE(dicho().startsWith("Zembro.emu:22: The line [EOF] behind the last system is missing. It has "
                                   "one answer only: check --mend --write.\n"))
        << dicho().toStdString();
    EXPECT_TRUE(dicho().contains(
        "The capture Luigi.gif fits no game; rename it as the game is called, or remove it.\n"));
    const Clases halladas = Halladas();
    EXPECT_THAT(halladas.remendables, ElementsAre(u"missing-mark"_s));
    EXPECT_THAT(halladas.otras, ElementsAre(u"capture-without-game"_s));
    EXPECT_EQ(Quedan(), 1);
}

TEST_F(Mend, BlocksAndParametersThatStandTwiceAreToldWithTheOneThatCounts)
{
    Cambia(u"Zembro.rom"_s, "'------\r\n", "Sis\r\nMARIO.NES,\"Another\"\r\n'\r\n'------\r\n");
    Cambia(u"Zembro.rom"_s, "-fast\r\n", "-fast\r\nmario.nes,Sis,Dos,-slow\r\n");
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains("Zembro.rom:4: A second block of notes of Sis, of which nothing is read; the "
                              "first one counts.")
        && todo.contains("remove this one. (Zembro.rom:1)\n"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zembro.rom:12: Parameters of a game that has some already;")
        && todo.contains(": mario.nes,Sis,Dos,-slow (Zembro.rom:11)\n"))
        << todo.toStdString();
    const QJsonArray hallados = Json({ u"check"_s }, companion::Hallazgos)[u"findings"_s].toArray();
    ASSERT_EQ(hallados.size(), 2);
    EXPECT_EQ(hallados[0][u"first_line"_s].toInt(), 1);
    EXPECT_EQ(Quedan(), 2);
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

TEST_F(Mend, WhatStandsTwiceAndSaysTheSameBecomesOne)
{
    const QByteArray entero = Bytes(u"Zembro.rom"_s);
    Cambia(u"Zembro.rom"_s, "'------\r\n", "Sis\r\nZELDA.NES,\"Zelda\"\r\n'\r\n'------\r\n");
    Cambia(u"Zembro.rom"_s, "-fast\r\n", "-fast\r\nMARIO.NES,Sis,Uno,-fast\r\n");
    EXPECT_THAT(Halladas().remendables, ElementsAre(u"block-twice"_s, u"parameters-twice"_s));
    EXPECT_EQ(Remienda().estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s),
        QByteArray(entero).replace("Mario\"\r\n", "Mario\"\r\nZELDA.NES,\"Zelda\"\r\n"));
    EXPECT_THAT(clases(), IsEmpty());
}

// Each line that closes something, in each file.
TEST_F(Mend, FilesOfWhichAClosingLineWasDeletedAreAsTheyWere)
{
    struct Caso {
        QString fichero;
        QByteArray antes;
        QByteArray sin;
    };
    const Caso casos[] = {
        { u"Zembro.emu"_s, "WEB2=\r\n'------\r\n[EOF]", "WEB2=\r\n[EOF]" },
        { u"Zembro.emu"_s, "[EOF]\r\n", "" },
        { u"Zembro.sye"_s, "+Uno\r\n'------\r\n", "+Uno\r\n" },
        { u"Zembro.sye"_s, "[EOF]\r\n", "" },
        { u"Zembro.rom"_s, "Mario\"\r\n'\r\n'------\r\n", "Mario\"\r\n'------\r\n" },
        { u"Zembro.rom"_s, "[EOF]\r\n", "" },
        { u"Zembro.cfg"_s, "[General]\r\n", "" },
        { u"Zembro.cfg"_s, "[Filters]\r\n", "" },
        { u"Zembro.cfg"_s, "ZIPSAMPL\r\n\r\n", "ZIPSAMPL\r\n" },
        { u"Zembro.rom"_s, "Parametros especificos\r\n", "" },
        { u"Zembro.rom"_s, "-fast\r\n'\r\n", "-fast\r\n" },
    };
    for (const Caso &caso : casos) {
        const QByteArray entero = Bytes(caso.fichero);
        Cambia(caso.fichero, caso.antes, caso.sin);
        const Clases halladas = Halladas();
        EXPECT_THAT(halladas.otras, IsEmpty()) << caso.antes.toStdString();
        EXPECT_FALSE(halladas.remendables.isEmpty()) << caso.antes.toStdString();
        EXPECT_TRUE(dicho().startsWith(caso.fichero.toUtf8() + ':')) << dicho().toStdString();
        EXPECT_EQ(Quedan(), 0);
        EXPECT_EQ(Remienda().estado, companion::Bien);
        EXPECT_EQ(
            Bytes(caso.fichero).replace("'" + QByteArray(70, '-'), "'------").replace("\r\n\r\n", "\r\n"),
            QByteArray(entero).replace("\r\n\r\n", "\r\n"))
            << caso.antes.toStdString();
        EXPECT_THAT(clases(), IsEmpty());
        Pon(caso.fichero, entero);
    }
}

TEST_F(Mend, ACopyThatHoldsWhatWasLostIsNamed)
{
    Zembro({ u"save"_s });
    const QString copia = QDir(Ruta(u"copias"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
    ASSERT_FALSE(copia.isEmpty());
    Cambia(u"Zembro.emu"_s, "IMG=" + Ruta(u"img/"_s).toUtf8() + "\r\nPAR1=-a\r\n", "PAR1=-a\r\n");
    Pon(u"img/Luigi.gif"_s, UnGif());
    const QJsonArray hallados = Json({ u"check"_s }, companion::Hallazgos)[u"findings"_s].toArray();
    ASSERT_GE(hallados.size(), 2);
    for (const QJsonValue &uno : hallados)
        EXPECT_EQ(uno[u"copy"_s].toString(), uno[u"kind"_s].toString() == u"missing-line" ? copia : QString())
            << uno[u"text"_s].toString().toStdString();
    EXPECT_TRUE(dicho().contains("A copy holds it as it was: zembro restore " + copia.toUtf8() + '\n'))
        << dicho().toStdString();
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=\"-a");
    EXPECT_TRUE(
        dicho().contains(": PAR1=\"-a [A copy holds it as it was: zembro restore " + copia.toUtf8() + "]\n"))
        << dicho().toStdString();
    Cambia(u"Zembro.emu"_s, "PAR1=\"-a", "PAR1=-a");
    // A copy that lacks it too is no help.
    Borra(u"copias/"_s + copia + u"/Zembro.emu"_s);
    EXPECT_FALSE(dicho().contains("A copy holds it"));
    Pon(u"copias/"_s + copia + u"/Zembro.emu"_s, Bytes(u"Zembro.emu"_s));
    EXPECT_FALSE(dicho().contains("A copy holds it"));
}

TEST_F(Mend, AFileThatIsEmptyOrGoneIsToldWithTheCopyThatHasIt_AndNotMadeAnew)
{
    Zembro({ u"save"_s });
    const QString copia = QDir(Ruta(u"copias"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
    const QByteArray repon = "A copy holds it as it was: zembro restore ";
    for (const QString &fichero : { u"Zembro.sye"_s, u"Zembro.rom"_s, u"Zembro.emu"_s }) {
        const QByteArray entero = Bytes(fichero);
        for (const QByteArray &nada : { QByteArray(), QByteArray("\r\n \r\n") }) {
            Pon(fichero, nada);
            const QByteArray vacio =
                fichero.toUtf8() + ": This file is empty, so all that it said is lost. " + repon;
            EXPECT_TRUE(dicho().contains(vacio)) << dicho().toStdString();
            EXPECT_EQ(dicho().count(fichero.toUtf8() + ':'), 1) << dicho().toStdString();
            Remienda();
            EXPECT_EQ(Bytes(fichero), nada);
        }
        Borra(fichero);
        const Respuesta respuesta = Zembro({ u"check"_s });
        EXPECT_TRUE((respuesta.salida + respuesta.error).contains(repon)) << fichero.toStdString();
        Zembro({ u"restore"_s, copia, u"--write"_s });
        EXPECT_EQ(Bytes(fichero), entero);
        EXPECT_THAT(clases(), IsEmpty()) << fichero.toStdString();
    }
}

// Nothing tells whose the parameters are while no pair is known.
TEST_F(Mend, OfAnEmptyCatalogueTheParametersArentSaidToBeNobodys)
{
    Pon(u"Zembro.emu"_s, "");
    EXPECT_FALSE(clases().contains(u"parameters-of-nobody"_s));
}

TEST_F(Mend, SettingsSayWhatTheyTake)
{
    Cambia(u"Zembro.cfg"_s, "TypeOfEditor = 1", "TypeOfEditor = 7");
    Cambia(u"Zembro.cfg"_s, "LastEmuUsed = 0", "LastEmuUsed = 9");
    Cambia(u"Zembro.cfg"_s, "ZB-ENG.LNG", "ZB-XXX.LNG");
    const QByteArray todo = dicho();
    EXPECT_TRUE(
        todo.contains("Zembro.cfg:15: This setting takes a whole number from 0 to 1: TypeOfEditor = 7\n"))
        << todo.toStdString();
    EXPECT_TRUE(
        todo.contains("Zembro.cfg:13: This setting takes a whole number from 0 to 1: LastEmuUsed = 9\n"));
    EXPECT_TRUE(todo.contains("Zembro.cfg:17: There is no such language file; choose the language in the "
                              "options, or name one of these: ZB-ENG.LNG\n"));
}

// "sed s/$/\r/" of files whose lines end in CR LF.
TEST_F(Mend, CarriageReturnsAheadOfTheEndsOfLinesAreToldAndTakenAway)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n'------\r\n[EOF]\r\n");
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s }) {
        const QByteArray entero = Bytes(fichero);
        Pon(fichero, QByteArray(entero).replace("\r\n", "\r\r\n"));
        const QByteArray lineas = QByteArray::number(entero.count('\n'));
        EXPECT_TRUE(dicho().contains(fichero.toUtf8()
            + ":1: Stray carriage returns, which count as part of the text, at the end of lines: " + lineas
            + ". It has one answer only: check --mend --write.\n"))
            << dicho().toStdString();
        EXPECT_TRUE(Halladas().remendables.contains(u"stray-return"_s));
        EXPECT_EQ(Quedan(), 0) << fichero.toStdString();
        EXPECT_EQ(Remienda().estado, companion::Bien);
        EXPECT_EQ(Bytes(fichero), entero);
        EXPECT_THAT(clases(), IsEmpty());
    }
}

TEST_F(Mend, LinesThatEndInCarriageReturnsAloneGetTheirEnds)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n'------\r\n[EOF]\r\n");
    for (const QString &fichero : { u"Zembro.sye"_s, u"Zembro.rom"_s }) {
        const QByteArray entero = Bytes(fichero);
        Pon(fichero, QByteArray(entero).replace("\r\n", "\r"));
        EXPECT_TRUE(Halladas().remendables.contains(u"stray-return"_s));
        EXPECT_EQ(Remienda().estado, companion::Bien);
        EXPECT_EQ(Bytes(fichero), entero);
        EXPECT_EQ(Quedan(), 0) << fichero.toStdString();
    }
}

// As a copy that breaks off leaves it.
TEST_F(Mend, OfAFileThatIsCutWithinALineEndItComesToRest)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n'------\r\n[EOF]\r\n");
    const QStringList ficheros { u"Zembro.emu"_s, u"Zembro.sye"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s };
    const auto todos = [&] {
        QByteArrayList bytes;
        for (const QString &fichero : ficheros)
            bytes += Bytes(fichero);
        return bytes;
    };
    const QByteArrayList enteros = todos();
    for (qsizetype f = 0; f < ficheros.size(); ++f) {
        for (qsizetype corte = enteros[f].indexOf('\r'); corte >= 0;
             corte = enteros[f].indexOf('\r', corte + 1)) {
            Pon(ficheros[f], enteros[f].first(corte + 1));
            const QString donde = ficheros[f] + u' ' + QString::number(corte);
            EXPECT_TRUE(Halladas().remendables.contains(u"stray-return"_s)) << donde.toStdString();
            Remienda();
            const QByteArrayList remendados = todos();
            EXPECT_FALSE(Halladas().otras.contains(u"stray-return"_s)) << donde.toStdString();
            Remienda();
            EXPECT_EQ(todos(), remendados) << donde.toStdString();
            for (qsizetype i = 0; i < ficheros.size(); ++i)
                Pon(ficheros[i], enteros[i]);
        }
    }
}

TEST_F(Mend, OfANameWithACarriageReturnWithinItComesToRest)
{
    Cambia(u"Zembro.emu"_s, "-Sis\r\n", "-S\ris\r\n");
    Remienda();
    const QByteArray notas = Bytes(u"Zembro.rom"_s);
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), notas);
}

TEST_F(Mend, NotesWhoseNameIsGoneGetItBack_AndNoEmptyBlockBesideThem)
{
    const QByteArray enteras = Bytes(u"Zembro.rom"_s);
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "");
    const Clases halladas = Halladas();
    EXPECT_TRUE(halladas.remendables.contains(u"notes-without-name"_s))
        << halladas.remendables.join(u' ').toStdString();
    EXPECT_TRUE(halladas.remendables.contains(u"system-without-notes"_s));
    EXPECT_THAT(halladas.otras, IsEmpty());
    EXPECT_TRUE(
        dicho().contains("Zembro.rom:1: These notes stand below no name of a system, so nothing reads "
                         "them; put its name on a line of its own above them: "))
        << dicho().toStdString();
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), enteras);
}

TEST_F(Mend, NotesWhoseNameIsGoneStayAsTheyAre_WhereTwoSystemsHaveNone)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n*.NES\r\n'\r\n+Uno\r\n'------\r\n-Other\r\n'------\r\n[EOF]\r\n");
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "");
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    const Clases halladas = Halladas();
    EXPECT_TRUE(halladas.otras.contains(u"notes-without-name"_s));
    EXPECT_TRUE(halladas.otras.contains(u"system-without-notes"_s));
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

// A stray apostrophe splits the notes of one system, and another one has none.
TEST_F(Mend, NotesBehindAStrayApostropheBecomeNobodyElses)
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n*.NES\r\n'\r\n+Uno\r\n'------\r\n-Other\r\n'------\r\n[EOF]\r\n");
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\n'\r\n");
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    EXPECT_TRUE(Halladas().otras.contains(u"notes-without-name"_s)) << dicho().toStdString();
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

TEST_F(Mend, NotesWhoseNameIsGoneStayAsTheyAre_WhereTheGamesOfASystemCantBeListed)
{
    Cambia(u"Zembro.emu"_s, Ruta(u"roms/"_s).toUtf8() + "\r\nIMG", Ruta(u"gone/"_s).toUtf8() + "\r\nIMG");
    Cambia(u"Zembro.rom"_s, "Sis\r\n", "");
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    Remienda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

TEST_F(Mend, BlankLinesAmongNotesAndParametersAreToldEach_AndTakenAway)
{
    Cambia(u"Zembro.rom"_s, "Mario\"\r\n", "Mario\"\r\nZELDA.NES,\"Zelda\"\r\n");
    Cambia(u"Zembro.rom"_s, "-fast\r\n", "-fast\r\nZELDA.NES,Sis,Uno,-slow\r\n");
    const QByteArray entero = Bytes(u"Zembro.rom"_s);
    EXPECT_THAT(clases(), IsEmpty());
    for (const QByteArray vacias : { "\r\n", "  \r\n", "\r\n\r\n" }) {
        for (const QByteArray delante :
            { "MARIO.NES,\"", "ZELDA.NES,\"", "ZELDA.NES,Sis", "MARIO.NES,Sis" }) {
            Cambia(u"Zembro.rom"_s, delante, vacias + delante);
            const Clases halladas = Halladas();
            EXPECT_EQ(halladas.remendables.count(u"blank-line"_s), vacias.count('\n'))
                << delante.toStdString();
            const QByteArrayList lineas = Bytes(u"Zembro.rom"_s).split('\n');
            const auto primera = std::ranges::find_if(
                lineas, [&](const QByteArray &linea) { return linea.startsWith(delante); });
            const QByteArray numero = QByteArray::number(primera - lineas.begin());
            EXPECT_TRUE(dicho().contains("Zembro.rom:" + numero + ": A blank line, which counts as a field"))
                << dicho().toStdString();
            EXPECT_EQ(Remienda().estado, companion::Bien);
            EXPECT_EQ(Bytes(u"Zembro.rom"_s), entero) << delante.toStdString();
        }
    }
}
