// Runs of a game "niño.nes" that are killed, and what they leave.
#pragma once

#include "escenario.h"

#include "launch/apodos.h"
#include "launch/rescate.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The game, which a run shows as NINO.NES.
class RescateTest : public Escenario {
protected:
    RescateTest()
    {
        PonPalabrasDeEncargo();
        PonROM("ni\xC3\xB1o.nes", "the game");
        makeFile("roms/ni\xC3\xB1o.nes - .SAV", "before");
        makeFile("roms/hiscore.dat", "records");
        makeDirectory("roms/Docs");
    }

    launch::UnidadesDOS::Montaje Montaje() const
    {
        return { 'E', place("roms"), false, { { "NINO.NES", "ni\xC3\xB1o.nes" } } };
    }

    // A run that saves by these lines of a shell, in its drive, and is then killed. Yields its directory's
    // name.
    QByteArray Matada(const QByteArray &lineas) const
    {
        const pid_t hijo = startChild([&] {
            const launch::CarpetaDeCorrida corrida;
            const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje());
            corrida.Escribe("dosbox.conf", "x");
            makeLink(place("roms"), lugar.sliced(place().size()) + "/../C");
            if (lugar.isEmpty() || system(("cd '" + lugar + "' && " + lineas).constData()) != 0)
                return 1;
            kill(getpid(), SIGKILL);
            return 0;
        });
        EXPECT_EQ(endOf(hijo), 254);
        return Temporales().value(0);
    }
    void setTime(const QByteArray &fichero, time_t segundos) const
    {
        const std::array<timespec, 2> tiempos { timespec { segundos, 0 }, timespec { segundos, 0 } };
        utimensat(AT_FDCWD, place(fichero).constData(), tiempos.data(), 0);
    }
    QByteArrayList Temporales() const { return host::listInDiskOrder(path(QStringLiteral("tmp"))); }
};
