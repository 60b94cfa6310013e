// The watch on a running process.
#include "launch/esperaremulador.h"

#include "launch/ritmo.h"

#include "escenario.h"

#include "host/paths.h"

#include <csignal>
#include <stdexcept>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 10000; // milliseconds

class EsperaTest : public Escenario {
protected:
    EsperaTest() { PonEmulador(0); }

    launch::LineaDeOrden orden() const
    {
        launch::LineaDeOrden orden;
        const QString exe = path(u"emu/emu.sh"_s);
        orden.Ruta(exe, exe);
        return orden;
    }
    void espera() { launch::EsperarEmulador(M, pantalla, orden()); }
};

TEST(RitmoDeBusqueda, WindowsAreSearchedTwiceASecondAtMost_AndWheneverTheyHaveToBe)
{
    using namespace std::chrono_literals;
    const auto inicio = std::chrono::steady_clock::now();
    launch::RitmoDeBusqueda ritmo;
    EXPECT_TRUE(ritmo.Toca(inicio, false));
    EXPECT_FALSE(ritmo.Toca(inicio + 1ms, false));
    EXPECT_FALSE(ritmo.Toca(inicio + 499ms, false));
    EXPECT_TRUE(ritmo.Toca(inicio + 500ms, false));
    EXPECT_FALSE(ritmo.Toca(inicio + 600ms, false));
    EXPECT_TRUE(ritmo.Toca(inicio + 600ms, true));
    EXPECT_FALSE(ritmo.Toca(inicio + 1000ms, false));
    EXPECT_TRUE(ritmo.Toca(inicio + 1100ms, false));
}

TEST_F(EsperaTest, EachPassYieldsThenTurnsTheLabelBlackThenFillsTheInformation)
{
    HazDuranteElJuego("while [ ! -e \"$OUT/go\" ]; do sleep 0.01; done\n");
    pantalla.enLlamada = [this](const QString &llamada) {
        if (llamada == u"LLena_INFO")
            makeFile("out/go");
    };
    espera();
    ASSERT_EQ(pantalla.llamadas.size() % 3, 0);
    ASSERT_GE(pantalla.llamadas.size(), 6);
    for (qsizetype i = 0; i < pantalla.llamadas.size(); i += 3) {
        EXPECT_TRUE(pantalla.llamadas[i].startsWith(u"Cede "_s));
        EXPECT_EQ(pantalla.llamadas[i + 1], u"InfoEnNegro"_s);
        EXPECT_EQ(pantalla.llamadas[i + 2], u"LLena_INFO"_s);
    }
}

TEST_F(EsperaTest, AnEmptyListShowsItsWordsBeforeTheInformation)
{
    pantalla.entradas = 0;
    espera();
    EXPECT_EQ(pantalla.llamadas.last(4).mid(1),
        QStringList({ u"InfoEnNegro"_s, u"MuestraNingunaROM"_s, u"LLena_INFO"_s }));
}

TEST_F(EsperaTest, APassWaitsForHalfASecondAtMost_TheLastOneNotAtAll)
{
    HazDuranteElJuego("while [ ! -e \"$OUT/go\" ]; do sleep 0.01; done\n");
    pantalla.enLlamada = [this](const QString &llamada) {
        if (llamada == u"LLena_INFO" && pantalla.cesiones == 2)
            makeFile("out/go");
    };
    espera();
    QStringList cesiones = pantalla.llamadas.filter(u"Cede"_s);
    EXPECT_EQ(cesiones.takeLast(), u"Cede 0"_s);
    EXPECT_GE(cesiones.size(), 2);
    for (const QString &cesion : cesiones)
        EXPECT_EQ(cesion, u"Cede 500"_s);
}

TEST_F(EsperaTest, TheEndOfTheProcessWakesTheYieldByItsDescriptor)
{
    // Without the descriptor this yield would last for its full time.
    class Paciente : public PantallaDePrueba {
    public:
        int despertares = 0;
        void Cede(int descriptor, int) override
        {
            pollfd fin { descriptor, POLLIN, 0 };
            despertares += poll(&fin, 1, LongestWait);
        }
    } paciente;
    HazDuranteElJuego("sleep 0.05\n");
    launch::EsperarEmulador(M, paciente, orden());
    EXPECT_EQ(paciente.despertares, 2);
}

TEST_F(EsperaTest, ReturnsOnlyAfterTheEnd_WhateverTheExitCode)
{
    HazDuranteElJuego("echo done > \"$OUT/done\"\nexit 7\n");
    espera();
    EXPECT_EQ(Anotado("done"), "done\n");
}

TEST_F(EsperaTest, ACrashIsAnEnd)
{
    HazDuranteElJuego("kill -SEGV $$\n");
    espera();
    EXPECT_TRUE(HuboJuego());
}

TEST_F(EsperaTest, AFailedStartIsTheCallers_AndNoPassRuns)
{
    launch::LineaDeOrden nada;
    nada.Ruta(u""_s, u""_s).Texto(u" touch x"_s);
    launch::LineaDeOrden falta;
    falta.Ruta(u"/no/such"_s, u"/no/such"_s);
    EXPECT_EQ(failureOf([&] { launch::EsperarEmulador(M, pantalla, nada); }), host::FileNotFound);
    EXPECT_EQ(failureOf([&] { launch::EsperarEmulador(M, pantalla, falta); }), host::FileNotFound);
    setMode("emu/emu.sh", 0644);
    EXPECT_EQ(failureOf([&] { espera(); }), host::PermissionDenied);
    EXPECT_EQ(pantalla.llamadas, QStringList());
}

TEST_F(EsperaTest, LeavesTheWorkingDirectoryAndTheTitleAlone)
{
    M.TituloDOS = u"emu"_s;
    const QString antes = host::currentDirectory();
    espera();
    EXPECT_EQ(host::currentDirectory(), antes);
    EXPECT_EQ(M.TituloDOS, u"emu"_s);
}

TEST_F(EsperaTest, TheEmulatorLivesOn_WhenTheProgramEndsMeanwhile)
{
    HazDuranteElJuego("while [ ! -e \"$OUT/go\" ]; do sleep 0.01; done\necho lived > \"$OUT/lived\"\n");
    // The regular end of the process out of the watch's event loop, as a click on the exit makes it.
    const int resultado = inChild([this] {
        pantalla.enLlamada = [](const QString &) { _exit(42); };
        espera();
        return 0;
    });
    EXPECT_EQ(resultado, 42);
    makeFile("out/go");
    for (int esperado = 0; esperado < LongestWait && Anotado("lived") != "lived\n"; esperado += 5)
        poll(nullptr, 0, 5);
    EXPECT_EQ(Anotado("lived"), "lived\n");
}

} // namespace
