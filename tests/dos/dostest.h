// A launch of a DOS program in the real DOSBox, without a window.
#pragma once

#include "tests/launch/escenario.h"

class DosTest : public Escenario {
protected:
    DosTest();
    ~DosTest() override;
    void SetUp() override; // skips where there is no DOSBox, or no program for it

    // Puts one of our programs under this name, and makes it the selected emulator, by this spelling of its
    // path.
    void PutProgram(const QByteArray &program, const QByteArray &name) const;
    void Select(
        int type, const QString &exe, const QString &rom, const QString &par1 = {}, const QString &par2 = {});
    void NameDrives(const QByteArray &lines) const;

    // What "tells" wrote in a directory: its command line, the current directory, what it read.
    QByteArrayList Told(const QByteArray &directory) const;

    QStringList Notices() const; // that the user got
};
