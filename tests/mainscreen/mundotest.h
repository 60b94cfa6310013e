// The main screen over a small world of three systems.
//
// In the order of the catalogue, which isn't the order of the list:
//   Zeta    Uno (type 0)                        zeta/one.nes "Juego uno", with a red capture; zeta/two.nes
//   alfa    beta (type 2), Alto (type 0)        alfazip/game.zip "Un juego"; alfa/a.sms, alfa/b.sms
//   Medio   Dir (type 1), Solo (type 6)         both medio/: G1 "Gran uno", G2, and roms, which a filter
//   drops
#pragma once

#include "tests/support/portadatest.h"

class MundoTest : public PortadaTest {
protected:
    MundoTest();

    // The positions in the lists at the next start.
    void startAt(int system, int emulator);
    void startWithoutEmulator(int system = 0);

    std::vector<SystemEntry> systemsOfCatalogue;
};

// Names of the positions in the list of systems.
enum Position : int { Alfa = 0, Medio = 1, Zeta = 2 };
