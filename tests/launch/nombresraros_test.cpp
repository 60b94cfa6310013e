// Whatever a file's name holds, it reaches the emulator as one argument: every type, by both routes.
#include "escenario.h"
#include "zipdeprueba.h"

#include "host/encoding.h"
#include "host/letters.h"

#include <cstdio>
#include <functional>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ConNombre : public Escenario, public testing::WithParamInterface<QByteArray> { };

TEST_P(ConNombre, ARomOfAnyNameReachesTheEmulatorAsOneArgumentThatItCanOpen)
{
    PonEmulador(0, u"-a"_s, u"-b"_s);
    PonROM(GetParam(), "the game");
    pantalla.lista1 = host::nameFromDisk(GetParam());
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", place("roms/" + GetParam()), "-b" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_FALSE(exists("emu/bad"));
}

TEST_P(ConNombre, ByNoteToo)
{
    PonEmulador(0, u"-a"_s, u"-b"_s);
    PonROM(GetParam(), "the game");
    PonNota(0, host::upper(host::nameFromDisk(GetParam())), u"described"_s);
    pantalla.lista1 = u"described"_s;
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", place("roms/" + GetParam()), "-b" }));
    EXPECT_EQ(Abierto(), "the game");
}

TEST_P(ConNombre, AnEmulatorOfAnyNameIsFoundAndRunsInItsDirectory)
{
    PonEmulador(0);
    PonROM("mario.nes");
    makeDirectory("emu/" + GetParam());
    ASSERT_EQ(
        rename(place("emu/emu.sh").constData(), place("emu/" + GetParam() + '/' + GetParam()).constData()),
        0);
    const QString nombre = host::nameFromDisk(GetParam());
    for (const int tipo : { 0, 5 }) {
        M.Cat_XDI(3, 2) = u"XDI=%1"_s.arg(tipo);
        M.Cat_EXE(3, 2) = u"EXE="_s + path(u"emu/"_s) + nombre + u'/' + nombre;
        Juega();
        EXPECT_EQ(Programa(), (tipo == 0 ? place("emu/" + GetParam() + '/') : QByteArray("./")) + GetParam());
        EXPECT_EQ(bytes("out/directory"), place("emu/" + GetParam()) + '\n');
        ASSERT_EQ(unlink(place("out/arguments").constData()), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Nombres, ConNombre,
    testing::Values("Two Words.NES", "a \"quoted\" one.nes", "it's.nes", "`touch bad`.nes",
        "$HOME $(touch bad).nes", "a;touch bad;.nes", "two\nlines.nes", "bad\xff\xfe.nes", "-rf.nes",
        "*?.nes", "a\\b.nes", "many.inner.points.nes",
        "\xc3\x91"
        "and\xc3\xba.NES",
        "noextension", " blank first.nes", "blank last.nes ", "tab\there.nes", "&|<>.nes", "#!~.nes"));

// A name on the disk, and the short one in its place where a game's name alone is handed over.
struct NombreRaro {
    QByteArray enDisco;
    QByteArray corto;
};

void PrintTo(const NombreRaro &nombre, std::ostream *salida)
{
    *salida << nombre.enDisco.toPercentEncoding(" ").toStdString();
}

class SoloNombre : public Escenario, public testing::WithParamInterface<NombreRaro> {
protected:
    const QByteArray EnDisco = GetParam().enDisco;
    const QByteArray Corto = GetParam().corto;

    // Plays it by its file name, then by a note.
    void juegaDeDosManeras(
        const QByteArray &fichero, const QByteArray &clave, const std::function<void()> &comprueba)
    {
        PonNota(0, host::upper(host::nameFromDisk(clave)), u"described"_s);
        for (const QString &entrada : { host::nameFromDisk(fichero), u"described"_s }) {
            SCOPED_TRACE(entrada.toStdString());
            pantalla.lista1 = entrada;
            Juega();
            comprueba();
            EXPECT_FALSE(exists("emu/bad"));
            ASSERT_EQ(unlink(place("out/arguments").constData()), 0);
        }
    }
};

TEST_P(SoloNombre, OfADirectoryIsOneArgument)
{
    PonEmulador(1, u"-a"_s, u"-b"_s);
    makeDirectory("roms/" + EnDisco);
    juegaDeDosManeras(EnDisco, EnDisco, [&] {
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", Corto, "-b" }));
    });
}

TEST_P(SoloNombre, OfAZipThatIsUnpackedIsOneArgument_AndTheNameOfItsDirectory)
{
    PonEmulador(2, u"-a"_s, u"-b"_s);
    PonROM(EnDisco + ".zip", Zip({ { "rom.bin", "the game" } }));
    HazDuranteElJuego("cat ./*/rom.bin > \"$OUT/content\"\n");
    juegaDeDosManeras(EnDisco + ".zip", EnDisco, [&] {
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", Corto, "-b" }));
        EXPECT_EQ(Anotado("content"), "the game");
        EXPECT_FALSE(exists("emu/" + Corto));
        ASSERT_EQ(unlink(place("out/content").constData()), 0);
    });
}

TEST_P(SoloNombre, OfAZipThatTheEmulatorReadsIsOneArgument)
{
    PonEmulador(3, u"-a"_s, u" -b"_s);
    PonROM(EnDisco + ".zip");
    juegaDeDosManeras(EnDisco + ".zip", EnDisco, [&] {
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", Corto, "-b" }));
    });
}

TEST_P(SoloNombre, OfAZipForTheEmulatorThatWantsThePathIsOneArgumentThatItCanOpen)
{
    PonEmulador(3, u"-a"_s, u"-b"_s);
    PonROM(EnDisco + ".zip", "the game");
    pantalla.combo2 = u"NEORAGE"_s;
    juegaDeDosManeras(EnDisco + ".zip", EnDisco, [&] {
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-a", place("roms/" + EnDisco + ".zip"), "-b" }));
        EXPECT_EQ(Abierto(), "the game");
    });
}

INSTANTIATE_TEST_SUITE_P(Nombres, SoloNombre,
    testing::Values(NombreRaro { "Two Words", "two_words" },
        NombreRaro { "a \"quoted\" one", "a_\"quoted\"_one" }, NombreRaro { "it's", "it's" },
        NombreRaro { "`touch bad`", "`touch_bad`" },
        NombreRaro { "$HOME $(touch bad)", "$home_$(touch_bad)" },
        NombreRaro { "a;touch bad;", "a;touch_bad;" }, NombreRaro { "two\nlines", "two_lines" },
        NombreRaro { "bad\xff\xfe", "bad\xff\xfe" }, NombreRaro { "-rf", "-rf" },
        NombreRaro { " blank first", "_blank_first" },
        NombreRaro { "\xc3\x91"
                     "and\xc3\xba",
            "\xc3\xb1"
            "and\xc3\xba" },
        NombreRaro { "*?", "*?" }, NombreRaro { "&|<>", "&|<>" }));

} // namespace
