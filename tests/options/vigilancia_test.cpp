// The window that the converter leaves open, found by its title and closed during the run, under a window
// manager.

#include "opcionestest.h"

#include "tests/support/consola.h"

#include "forms/commandbutton.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class VigilanciaTest : public OpcionesTest {
protected:
    // A converter that goes on until there is a file of this name beside the settings, some seconds at most.
    void converterWaitsFor(const QByteArray &name)
    {
        files.write(u"Cvtgif15.exe"_s,
            "#!/bin/sh\ni=0\nwhile [ ! -e ../" + name
                + " ] && [ $((i += 1)) -lt 500 ]; do /bin/sleep 0.01; done\n");
        QFile(files.path(u"Cvtgif15.exe"_s)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
};

} // namespace

TEST_F(VigilanciaTest, TheWindowThatTheConverterLeavesIsClosed_AndNoOther)
{
    converterWaitsFor("closed");
    files.write(u"zetacap/a.pcx"_s, "picture");
    startAt(Zeta, 0);
    int closed = 0;
    int closedOther = 0;
    atModal(u"Utilidades"_s, [&](forms::Form &form) {
        std::unique_ptr<Consola> other;
        std::unique_ptr<Consola> console;
        QTimer::singleShot(0, qApp, [&] {
            wishClose(form); // a modal form keeps the windows of its own process from closing
            other = std::make_unique<Consola>(u"Finalizado - CVTGIF"_s);
            console = std::make_unique<Consola>(
                u"Finalizado - CVTGIF15"_s, [this] { files.write(u"closed"_s, {}); });
        });
        Box box;
        announceBox(box);
        click(controlOf<forms::CommandButton>(form, u"Boton1"_s));
        closed = console->cierres;
        closedOther = other->cierres;
    });
    click(control(u"Boton3b"_s));
    EXPECT_GE(closed, 1);
    EXPECT_EQ(closedOther, 0);
    EXPECT_FALSE(files.exists(u"zetacap/a.pcx"_s));
}
