// zembro describe.
#include "mesadepruebas.h"

#include "core/descripciones.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;
using core::ConDescripciones;
using core::LasQueHay;

namespace {

class Describe : public MesaConJuegos {
protected:
    Describe()
    {
        Pon(u"roms/Legend of Zelda, The (Europe) (Rev 1).nes"_s, "z");
        Pon(u"roms/Tetris (Europe).nes"_s, "t");
        Pon(u"roms/Tetris (USA).nes"_s, "t");
        Borra(u"roms/Zelda.nes"_s);
    }

    // The block's lines behind the system's name.
    QByteArray Bloque() const
    {
        const QByteArray todo = Bytes(u"Zembro.rom"_s);
        EXPECT_TRUE(todo.startsWith("Sis\r\n"));
        return todo.sliced(5, todo.indexOf("'\r\n") - 5);
    }
};

const QString Notas =
    u"Other\r\nA.NES,\"O\"\r\n'\r\nSis\r\nA.NES,\"One\"\r\n\"B,\",\"Two\"\r\nC.NES,\"Three\",D.NES,\"Four\"\r\n'\r\n[EOF]\r\n"_s;

} // namespace

TEST(ConDescripciones, NewOnesStandFirstInTheBlock)
{
    const core::Descritas hecho = ConDescripciones(
        Notas, u"Sis"_s, { { u"x.nes"_s, u"X"_s }, { u"a.nes"_s, u"Y"_s } }, LasQueHay::Quedan);
    EXPECT_EQ(hecho.texto, QString(Notas).replace(u"Sis\r\n"_s, u"Sis\r\nX.NES,\"X\"\r\n"_s));
    EXPECT_EQ(hecho.nuevas, 1);
    EXPECT_EQ(hecho.cambiadas, 0);
    EXPECT_TRUE(hecho.fuera.empty());
}

TEST(ConDescripciones, ChangesRecordsThatHaveTheirLinesForThemselves)
{
    const core::Descritas hecho = ConDescripciones(Notas, u"Sis"_s,
        { { u"A.NES"_s, u"1"_s }, { u"B,"_s, u"2"_s }, { u"C.NES"_s, u"3"_s } }, LasQueHay::Cambian);
    EXPECT_EQ(
        hecho.texto, QString(Notas).replace(u"\"One\""_s, u"\"1\""_s).replace(u"\"Two\""_s, u"\"2\""_s));
    EXPECT_EQ(hecho.cambiadas, 2);
    ASSERT_EQ(hecho.fuera.size(), 1u);
    EXPECT_EQ(hecho.fuera[0].clave, u"C.NES"_s);
}

TEST(ConDescripciones, WhatIsThereAlreadyOrCannotComeBackStaysOut)
{
    const core::Descritas hecho = ConDescripciones(Notas, u"Sis"_s,
        { { u"X"_s, u"One"_s }, { u""_s, u"Y"_s }, { u"Z"_s, u"a\",b"_s }, { u"N"_s, u"a\r\n'\r\nb"_s } },
        LasQueHay::Quedan);
    EXPECT_EQ(hecho.texto, QString(Notas).replace(u"Sis\r\n"_s, u"Sis\r\nN,\"a  '  b\"\r\n"_s));
    EXPECT_EQ(hecho.fuera.size(), 3u);
    EXPECT_EQ(ConDescripciones(Notas, u"None"_s, { { u"X"_s, u"X"_s } }, LasQueHay::Quedan).texto, Notas);
    EXPECT_EQ(
        ConDescripciones(Notas, u"Sis"_s, { { u"A.NES"_s, u"One"_s } }, LasQueHay::Cambian).texto, Notas);
}

TEST(ConDescripciones, LeavesTheListReadable)
{
    std::vector<core::Descripcion> muchas;
    for (int i = 0; i < core::MaxROMs + 10; ++i)
        muchas.push_back({ u"K%1"_s.arg(i), u"T%1"_s.arg(i) });
    const core::Descritas hecho = ConDescripciones(u"Sis\r\n'\r\n"_s, u"Sis"_s, muchas, LasQueHay::Quedan);
    EXPECT_EQ(hecho.nuevas, core::MaxROMs - 1);
    EXPECT_EQ(hecho.fuera.size(), 11u);
}

TEST_F(Describe, FromTheNamesOfTheFiles)
{
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    const Respuesta respuesta = Zembro({ u"describe"_s, u"sis"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos) << respuesta.error.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
    EXPECT_TRUE(respuesta.salida.contains(
        "\n+\"LEGEND OF ZELDA, THE (EUROPE) (REV 1).NES\",\"The Legend of Zelda\"\n"))
        << respuesta.salida.toStdString();
    EXPECT_TRUE(respuesta.salida.endsWith("New: 5. Changed: 0. --write writes them.\n"));
    EXPECT_EQ(Zembro({ u"describe"_s, u"Sis"_s, u"--write"_s }).salida, "New: 5. Changed: 0.\n");
    EXPECT_EQ(Bloque(),
        "SONIC,\"Sonic\"\r\n\"LEGEND OF ZELDA, THE (EUROPE) (REV 1).NES\",\"The Legend of Zelda\"\r\n"
        "TETRIS (EUROPE).NES,\"Tetris (Europe)\"\r\nTETRIS (USA).NES,\"Tetris (USA)\"\r\n"
        "ZELDA II.NES,\"Zelda II\"\r\nMARIO.NES,\"Super Mario\"\r\n");
    EXPECT_FALSE(Json({ u"describe"_s, u"Sis"_s })[u"changed"_s].toBool());
}

// Two names that say the same but for a blank.
TEST_F(Describe, DoesTheSameInEachRun)
{
    Pon(u"roms/dup (USA).nes"_s, "x");
    Pon(u"roms/dup (USA) .nes"_s, "x");
    const QStringList pedido { u"describe"_s, u"Sis"_s, u"--write"_s };
    const QByteArray primera = Zembro(pedido).salida;
    EXPECT_TRUE(primera.contains("dup (USA).nes\t")) << primera.toStdString();
    const QByteArray escrito = Bytes(u"Zembro.rom"_s);
    EXPECT_EQ(Bloque().count("\"dup (USA)\""), 1);
    for (int vez = 0; vez < 3; ++vez) {
        const QByteArray otra = Zembro(pedido).salida;
        EXPECT_EQ(otra.first(otra.indexOf('\n')), primera.first(primera.indexOf('\n')));
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), escrito);
    }
    // Nor does one that came later take the title that tells nothing.
    Pon(u"roms/Zelda II (Japan).nes"_s, "x");
    Zembro(pedido);
    EXPECT_TRUE(Bloque().contains("\"Zelda II (Japan)\""));
}

TEST_F(Describe, SaysWhyNothingCameOfIt)
{
    Pon(u"list.txt"_s, "other\tOther\n");
    const QStringList conLista { u"describe"_s, u"Sis"_s, u"--from"_s, Ruta(u"list.txt"_s) };
    EXPECT_EQ(Zembro(conLista).salida,
        "New: 0. Changed: 0.\n"
        "Games: 6. With a description already (--replace makes them anew): 1. Not in the list: 5.\n");
    const QJsonObject objeto = Json(conLista);
    EXPECT_EQ(objeto[u"games"_s].toInt(), 6);
    EXPECT_EQ(objeto[u"described"_s].toInt(), 1);
    EXPECT_EQ(objeto[u"unknown"_s].toInt(), 5);
    EXPECT_FALSE(Zembro({ u"describe"_s, u"Sis"_s, u"--write"_s }).salida.contains("Games: "));
    EXPECT_EQ(Zembro({ u"describe"_s, u"Sis"_s }).salida,
        "New: 0. Changed: 0.\n"
        "Games: 6. With a description already (--replace makes them anew): 6. With a name that gives no "
        "other "
        "one: 0.\n");
    for (const QByteArray &vacia :
        QByteArrayList { "", "\n\n", "no tab in here\n", "<datafile></datafile>" }) {
        Pon(u"list.txt"_s, vacia);
        const Respuesta respuesta = Zembro(conLista);
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.error.startsWith(
            "zembro: " + Ruta(u"list.txt"_s).toUtf8() + " holds no name with a description; it should be"))
            << respuesta.error.toStdString();
    }
    Pon(u"list.txt"_s, QByteArray("mario.nes\tA\0b\n", 14));
    const Respuesta ajena = Zembro(conLista);
    EXPECT_EQ(ajena.estado, companion::NoPudo);
    EXPECT_TRUE(ajena.error.startsWith("zembro: " + Ruta(u"list.txt"_s).toUtf8()
        + " is no list of a kind that is known here, as it holds bytes that no text has; it should be a DAT"))
        << ajena.error.toStdString();
    Cambia(u"Zembro.emu"_s, "*.NES", "*.XYZ");
    QDir(Ruta(u"dirs/Sonic"_s)).removeRecursively();
    EXPECT_TRUE(
        Zembro({ u"describe"_s, u"Sis"_s })
            .salida.endsWith(
                "No game of the system is listed, so there is nothing to describe; check tells why.\n"));
}

TEST_F(Describe, WithTagsTheyStay_AndWithReplaceTheDescriptionsThatWereThereGo)
{
    Json({ u"describe"_s, u"Sis"_s, u"--tags"_s, u"--replace"_s, u"--write"_s });
    EXPECT_TRUE(Bloque().contains("\"The Legend of Zelda (Europe) (Rev 1)\"\r\n"));
    EXPECT_TRUE(Bloque().contains("MARIO.NES,\"Mario\"\r\n"));
    EXPECT_FALSE(Bloque().contains("Super Mario"));
    // Without them once more.
    EXPECT_EQ(Json({ u"describe"_s, u"Sis"_s, u"--replace"_s, u"--write"_s })[u"replaced"_s].toInt(), 1);
    EXPECT_TRUE(Bloque().contains("\"The Legend of Zelda\"\r\n"));
    EXPECT_FALSE(Json({ u"describe"_s, u"Sis"_s, u"--replace"_s })[u"changed"_s].toBool());
}

TEST_F(Describe, FromAList)
{
    Pon(u"x.dat"_s,
        "<datafile><game name=\"Zelda II\"><description>Zelda II - Quest, The (EU)</description></game>"
        "<game name=\"m\"><description>Not the old one</description><rom "
        "name=\"mario.nes\"/></game></datafile>");
    const QString lista = Ruta(u"x.dat"_s);
    EXPECT_EQ(Json({ u"describe"_s, u"Sis"_s, u"--from"_s, lista, u"--write"_s })[u"added"_s].toInt(), 1);
    EXPECT_EQ(Bloque(), "ZELDA II.NES,\"Zelda II - The Quest\"\r\nMARIO.NES,\"Super Mario\"\r\n");
    Pon(u"x.dat"_s, "Mario.nes\tOne, \"Two\" <&> (EU)\nsonic\tSonic!\n");
    EXPECT_EQ(
        Json({ u"describe"_s, u"Sis"_s, u"--from"_s, lista, u"--replace"_s, u"--write"_s })[u"replaced"_s]
            .toInt(),
        1);
    EXPECT_EQ(Bloque(),
        "SONIC,\"Sonic!\"\r\nZELDA II.NES,\"Zelda II - The Quest\"\r\nMARIO.NES,\"One, 'Two' <&> (EU)\"\r\n");
}

TEST_F(Describe, OfAListThatCannotBeReadNothingIsTaken)
{
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    Pon(u"x.dat"_s, "<datafile>\n<game name=\"Zelda II\"><description>Z</description></game>\n<game");
    const Respuesta rota = Zembro({ u"describe"_s, u"Sis"_s, u"--from"_s, Ruta(u"x.dat"_s), u"--write"_s });
    EXPECT_EQ(rota.estado, companion::NoPudo);
    EXPECT_TRUE(rota.error.contains("x.dat can't be read: line 3, ")) << rota.error.toStdString();
    EXPECT_EQ(
        Zembro({ u"describe"_s, u"Sis"_s, u"--from"_s, u"/gone"_s }).error, "zembro: There is no /gone.\n");
    EXPECT_EQ(Zembro({ u"describe"_s, u"Sis"_s, u"--from"_s, Ruta(u"roms"_s) }).estado, companion::NoPudo);
    EXPECT_EQ(Zembro({ u"describe"_s, u"Nes"_s, u"--write"_s }).estado, companion::NoPudo);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

// A MAME that says what these lines do.
TEST_F(Describe, ByTheListOfTheMAMEThatTheSystemIsPlayedWith)
{
    PonGuion(u"emu/mame"_s,
        "[ \"$*\" = -listxml ] || exit 9\n"
        "echo '<?xml version=\"1.0\"?><mame build=\"0\">'\n"
        "i=0; while [ $i -lt 2000 ]; do echo \"<machine "
        "name=\\\"m$i\\\"><description>M</description></machine>\"; "
        "i=$((i + 1)); done\n"
        "echo '<machine name=\"zelda ii\"><description>Zelda 2 (World, set "
        "1)</description></machine></mame>'\n");
    Cambia(u"Zembro.emu"_s, "+Uno\r\nEXE=" + Ruta(u"emu/uno.sh"_s).toUtf8(),
        "+Uno\r\nEXE=" + Ruta(u"emu/mame"_s).toUtf8());
    EXPECT_EQ(Json({ u"describe"_s, u"Sis"_s, u"--mame"_s, u"--write"_s })[u"added"_s].toInt(), 1);
    EXPECT_EQ(Bloque(), "ZELDA II.NES,\"Zelda 2\"\r\nMARIO.NES,\"Super Mario\"\r\n");
}

TEST_F(Describe, ByTheListOfAMAMEThatBreaksOffNothingIsTaken)
{
    const QByteArray antes = Bytes(u"Zembro.rom"_s);
    Cambia(u"Zembro.emu"_s, "+Uno\r\nEXE=" + Ruta(u"emu/uno.sh"_s).toUtf8(),
        "+Uno\r\nEXE=" + Ruta(u"emu/mame"_s).toUtf8());
    const QByteArray nombre = Ruta(u"emu/mame"_s).toUtf8();
    const QByteArray lista =
        "echo '<mame><machine name=\"zelda ii\"><description>Z</description></machine>'\n";
    const std::pair<QByteArray, QByteArray> finales[] = {
        { "echo '</mame>'; exit 3\n",
            nombre + " did not come to the end of its list: ended with the status 3\n" },
        { "kill -SEGV $$\n", nombre + " did not come to the end of its list: ended by the signal SIGSEGV\n" },
        { "exit 0\n", nombre + " can't be read: line 2, " },
    };
    for (const auto &[final, dicho] : finales) {
        PonGuion(u"emu/mame"_s, lista + final);
        const Respuesta respuesta = Zembro({ u"describe"_s, u"Sis"_s, u"--mame"_s, u"--write"_s });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.error.contains(dicho)) << respuesta.error.toStdString();
    }
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), antes);
}

TEST_F(Describe, WithoutAMAMEIsToldSo)
{
    const QByteArray caminos = qgetenv("PATH");
    const QByteArray casa = qgetenv("HOME");
    qputenv("PATH", "/bin");
    qputenv("HOME", Ruta(u"home"_s).toUtf8());
    const Respuesta respuesta = Zembro({ u"describe"_s, u"Sis"_s, u"--mame"_s });
    qputenv("PATH", caminos);
    qputenv("HOME", casa);
    if (QFile::exists(u"/usr/games/mame"_s) || QFile::exists(u"/bin/mame"_s))
        GTEST_SKIP() << "this machine has one";
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_EQ(respuesta.error,
        "zembro: There is no MAME on this machine; install it, or give its list by --from.\n");
}

TEST_F(Describe, WhatCannotBeKeptIsSaid)
{
    Pon(u"roms/a\nb.nes"_s, "x");
    Pon(u"roms/Tetris [Europe).nes"_s, "x");
    const QJsonObject hecho = Json({ u"describe"_s, u"Sis"_s, u"--write"_s }, companion::Hallazgos);
    ASSERT_EQ(hecho[u"refused"_s].toArray().size(), 1);
    EXPECT_EQ(hecho[u"refused"_s][0][u"reason"_s].toString(), u"name"_s);
    EXPECT_TRUE(hecho[u"written"_s].toBool());
}

TEST_F(Describe, AListOfThousandsIsDescribedInOneRewrite)
{
    for (int i = 0; i < 3000; ++i)
        Pon(u"roms/Game %1 (EU).nes"_s.arg(i), "x");
    const qint64 antes = TiempoDeTrabajo();
    EXPECT_GE(Json({ u"describe"_s, u"Sis"_s, u"--write"_s })[u"added"_s].toInt(), 3000);
    EXPECT_LT(TiempoDeTrabajo() - antes, 3000);
}

TEST_F(Describe, OfNamesThatDifferInCaseAloneItSaysSo_AndDoesTheSameEachTime)
{
    Pon(u"roms/MARIO (Europe).nes"_s, "x");
    Pon(u"roms/Mario (europe).nes"_s, "x");
    const Respuesta primera = Zembro({ u"describe"_s, u"Sis"_s });
    EXPECT_EQ(primera.error,
        "zembro: MARIO (Europe).nes and Mario (europe).nes differ in case alone, so they have one "
        "description "
        "together; rename one of them.\n");
    EXPECT_EQ(Zembro({ u"describe"_s, u"Sis"_s }).salida, primera.salida);
    EXPECT_EQ(Json({ u"describe"_s, u"Sis"_s }, companion::Hallazgos)[u"alike"_s].toArray(),
        QJsonArray { u"Mario (europe).nes"_s });
    Zembro({ u"describe"_s, u"Sis"_s, u"--write"_s });
    EXPECT_TRUE(Zembro({ u"describe"_s, u"Sis"_s }).salida.startsWith("New: 0. Changed: 0.\n"));
}
