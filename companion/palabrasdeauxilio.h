// The words of what to do, as companion/palabras.h has the others.
#pragma once

#include <QString>

namespace companion {

struct PalabrasDeAuxilio {
    // What stands twice, and what --mend repairs.
    QString Zbo_LoRemienda = QStringLiteral("It has one answer only: check --mend --write.");
    QString Zbo_BloqueDoble =
        QStringLiteral("A second block of notes of %1, of which nothing is read; the first one counts. Put "
                       "into that what you need of this one, and remove this one.");
    QString Zbo_ParDobles =
        QStringLiteral("Parameters of a game that has some already; at a launch, by whichever emulator, the "
                       "first ones count. Keep those that you want: %1");
    QString Zbo_EOFFiltro = QStringLiteral("The empty line behind the filters is missing, so that [EOF] is "
                                           "one of them; put an empty line ahead of it.");
    QString Zbo_Retornos =
        QStringLiteral("Stray carriage returns, which count as part of the text, at the end of lines: %1.");

    // Where a collection went.
    QString Zbo_LugarPerdido =
        QStringLiteral("Lines that lead to %1, which isn't there or is where this directory was before: %2. "
                       "If what it holds lies elsewhere now: %3");
    QString Zbo_MueveVacio = QStringLiteral("The name behind %1 is empty.");

    // What keeps a program from starting.
    QString Zbo_EXEConPar =
        QStringLiteral("There is no program %1. EXE takes the path of a program alone, without quotes and "
                       "without parameters, which have lines of their own (PAR1, PAR2). It should be: %2");
    QString Zbo_EXENoFichero = QStringLiteral(
        "%1 is no file, but a pipe, a device or the like; name the program in the configuration.");
    QString Zbo_EXECortado = QStringLiteral("The program %1 is cut or damaged; install it anew.");
    QString Zbo_ParComillas = QStringLiteral("The double quotes of these parameters aren't closed, so all "
                                             "behind them is one argument; close them: %1");

    QString Zbo_ParPegado =
        QStringLiteral("Where the emulator starts alone, PAR1 follows its name as it stands, and there is no "
                       "program %1; put a blank ahead of the parameters.");

    // Pictures and games that are damaged.
    QString Zbo_CapCortada =
        QStringLiteral("%1 is cut, so only a part of it shows; bring it back, or let captures make it anew.");
    QString Zbo_JuegoNoLee = QStringLiteral("%1 can't be read; give its owner the right to (chmod u+r).");
    QString Zbo_ZipRoto = QStringLiteral("The ZIP %1 is cut or damaged; fetch it anew.");
    QString Zbo_ZipCifrado =
        QStringLiteral("The ZIP %1 asks for a password; pack its files anew without one.");
    QString Zbo_ZipSinJuego = QStringLiteral("The ZIP %1 holds no file with an extension of the system, so "
                                             "no game is found in it; add the extension: %2");
    QString Zbo_ZipPrimera =
        QStringLiteral("In the ZIP %1 no game is found: the first extension of the system is tried with the "
                       "first file alone; put *.ZIP ahead of it: %2");
    QString Zbo_ZipCarpetas = QStringLiteral("The ZIP %1 holds no game outside its folders, and inside them "
                                             "none is looked for; pack it anew without folders.");
    QString Zbo_ZipNada = QStringLiteral(
        "The ZIP %1 holds no file with an extension of the system, so no game is found in it.");

    // Counts, and what else to do.
    QString Zbo_Ocultos = QStringLiteral("Hidden, and so not listed: %1 (%2)");
    QString Zbo_ValorNumero = QStringLiteral("This setting takes a whole number from 0 to %1: %2");
    QString Zbo_ValorIdioma = QStringLiteral(
        "There is no such language file; choose the language in the options, or name one of these: %1");
    QString Zbo_HazDir = QStringLiteral("make it, or correct its path in the configuration.");
    QString Zbo_EnCopia = QStringLiteral("A copy holds it as it was: zembro restore %1");
    QString Zbo_FichVacio = QStringLiteral("This file is empty, so all that it said is lost.");
    QString Zbo_DesIguales = QStringLiteral(
        "%1 and %2 differ in case alone, so they have one description together; rename one of them.");
};

} // namespace companion
