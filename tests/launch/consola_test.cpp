// The window that a console leaves open behind its program: found by its title and closed, under a window
// manager.
#include "escenario.h"

#include "tests/support/consola.h"

#include "launch/esperaremulador.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Its yield runs the event loop, as the main screen's does.
class PantallaViva : public PantallaDePrueba {
public:
    void Cede(int descriptor, int milisegundos) override
    {
        PantallaDePrueba::Cede(descriptor, qMin(milisegundos, 20));
        QCoreApplication::processEvents();
    }
    void CierraVentana(const QString &titulo) override { host::closeWindowTitled(titulo); }
};

class ConsolaTest : public Escenario {
protected:
    ConsolaTest()
    {
        PonEmulador(0);
        M.TituloDOS = u"emu"_s;
        HazDuranteElJuego("while [ ! -e \"$OUT/go\" ]; do sleep 0.01; done\n");
    }

    PantallaViva viva;

    launch::LineaDeOrden orden() const
    {
        launch::LineaDeOrden orden;
        const QString exe = path(u"emu/emu.sh"_s);
        orden.Ruta(exe, exe);
        return orden;
    }
    void espera() { launch::EsperarEmulador(M, viva, orden()); }
    // Lets the process end after so many passes.
    void acabaTras(int pasadas)
    {
        viva.enLlamada = [this, pasadas](const QString &llamada) {
            if (llamada == u"LLena_INFO" && viva.cesiones == pasadas)
                makeFile("out/go");
        };
    }
};

TEST_F(ConsolaTest, AFinishedConsoleIsClosed_AndThenTheWatchEnds)
{
    Consola consola(u"FINALIZADO - Emu"_s, [this] { makeFile("out/go"); });
    espera();
    EXPECT_GE(consola.cierres, 1);
}

TEST_F(ConsolaTest, AnotherWordLeavesTheConsoleOpen)
{
    Consola consola(u"Finished - emu"_s);
    acabaTras(5);
    espera();
    EXPECT_EQ(consola.cierres, 0);
}

TEST_F(ConsolaTest, AnotherProgramsConsoleIsLeftOpen)
{
    Consola consola(u"Finalizado - emu2"_s);
    acabaTras(5);
    espera();
    EXPECT_EQ(consola.cierres, 0);
}

TEST_F(ConsolaTest, WithoutAWordNoWindowIsClosed)
{
    M.MsgEndDOS.clear();
    Consola consola(u" - emu"_s);
    acabaTras(5);
    espera();
    EXPECT_EQ(consola.cierres, 0);
}

TEST_F(ConsolaTest, WithoutATitleNoConsoleIsFound)
{
    M.TituloDOS.clear();
    Consola consola(u"Finalizado - emu"_s);
    acabaTras(5);
    espera();
    EXPECT_EQ(consola.cierres, 0);
}

TEST_F(ConsolaTest, ATitleThatAHandlerChangesMeanwhileCountsFromThenOn)
{
    M.TituloDOS = u"other"_s;
    Consola consola(u"Finalizado - emu"_s, [this] { makeFile("out/go"); });
    viva.enLlamada = [this](const QString &llamada) {
        if (llamada == u"LLena_INFO")
            M.TituloDOS = u"emu"_s;
    };
    espera();
    EXPECT_GE(consola.cierres, 1);
}

TEST_F(ConsolaTest, WindowsAreSearchedOnceMore_InThePassThatSeesTheEnd)
{
    // The window comes up shortly after the first pass's search, and the process ends in the same pass: only
    // the last pass is sure to search again.
    std::unique_ptr<Consola> consola;
    viva.enLlamada = [&](const QString &llamada) {
        if (llamada.startsWith(u"Cede "_s) && viva.cesiones == 2) {
            consola = std::make_unique<Consola>(u"Finalizado - emu"_s);
            makeFile("out/go");
        }
    };
    espera();
    ASSERT_TRUE(consola);
    EXPECT_TRUE(QTest::qWaitFor([&] { return consola->cierres >= 1; }));
}

TEST_F(ConsolaTest, TheWatchIsNotWokenByItsOwnSearches)
{
    // Waits in the event loop until anything comes up there.
    class Dormida : public PantallaDePrueba {
    public:
        QList<bool> despertadas; // by pass: whether something came before the time was over
        void Cede(int, int milisegundos) override
        {
            ++cesiones;
            bool aTiempo = false;
            QTimer::singleShot(milisegundos, [&] { aTiempo = true; });
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            despertadas << !aTiempo;
            while (!aTiempo)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    } dormida;
    dormida.enLlamada = [&](const QString &) {
        if (dormida.cesiones == 4)
            makeFile("out/go");
    };
    QTest::qWait(0);
    launch::EsperarEmulador(M, dormida, orden());
    EXPECT_EQ(dormida.despertadas.mid(1, 3), QList<bool>({ false, false, false }));
}

} // namespace
