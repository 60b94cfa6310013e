// Words of zembro. In a language file they stand under their own keys, like all others; English is built in,
// for where there is no language file.
#pragma once

#include <QString>

#include <span>

namespace companion {

struct Palabras {

    // The help.
    QString Zbo_Uso = QStringLiteral("Usage: %1");
    QString Zbo_Ordenes = QStringLiteral("Commands:");
    QString Zbo_Opciones = QStringLiteral("Options:");
    QString Zbo_MasAyuda = QStringLiteral("zembro COMMAND --help tells more of one.");
    QString Zbo_OpDir = QStringLiteral("the program's directory, if zembro doesn't stand in it");
    QString Zbo_OpJson = QStringLiteral("the answer as JSON");
    QString Zbo_OpAyuda = QStringLiteral("this help");
    QString Zbo_OpVersion = QStringLiteral("the version");
    QString Zbo_Help = QStringLiteral("tells of the commands, or of one of them");

    // What was asked for wrongly.
    QString Zbo_NoOrden = QStringLiteral("There is no command %1.");
    QString Zbo_NoOpcion = QStringLiteral("There is no option %1.");
    QString Zbo_NoValor = QStringLiteral("An option lacks its value.");
    QString Zbo_SinValor = QStringLiteral("An option has a value that it doesn't take.");
    QString Zbo_NoDir = QStringLiteral("%1 is no directory of the program.");

    // Picking a system, an emulator and a game by their names.
    QString Zbo_NoSistema = QStringLiteral("No system fits %1.");
    QString Zbo_NoEmulador = QStringLiteral("No emulator of the system fits %1.");
    QString Zbo_NoJuego = QStringLiteral("No listed game fits %1.");
    QString Zbo_Varios = QStringLiteral("Several fit %1:");

    // Listing, and telling what a launch would do.
    QString Zbo_List = QStringLiteral("lists the games as the main screen does");
    QString Zbo_Command = QStringLiteral("tells what playing a game would do, and starts nothing");
    QString Zbo_OpLines = QStringLiteral("the arguments alone, one a line");
    QString Zbo_OpShell = QStringLiteral("the command alone, quoted for a shell");
    QString Zbo_LaOrden = QStringLiteral("Command: %1");
    QString Zbo_EnDir = QStringLiteral("In the directory: %1");
    QString Zbo_ElTexto = QStringLiteral("As the debug mode shows it: %1");
    QString Zbo_Desempaqueta = QStringLiteral("Unpacks %1 into %2:");
    QString Zbo_Ilegible = QStringLiteral("Can't be unpacked: %1");
    QString Zbo_YaEsta = QStringLiteral("Is there already, and would be asked about: %1");
    QString Zbo_SeBorraDir = QStringLiteral("Afterwards the directory is removed with its files.");
    QString Zbo_SeBorran = QStringLiteral("Afterwards the unpacked files are removed.");
    QString Zbo_NoArranca = QStringLiteral("Doesn't start: %1");
    QString Zbo_NadaSeLanza = QStringLiteral("Nothing would be started.");
    QString Zbo_SinPrograma = QStringLiteral("The emulator's executable isn't there.");

    // Playing, and the last launch.
    QString Zbo_Play = QStringLiteral("plays a game without the screen");
    QString Zbo_Why = QStringLiteral("tells what became of the last launch");
    QString Zbo_SinLineas = QStringLiteral("There is no file %1: the program was not started by run.sh or "
                                           "its starter, or ZEMBRO_LOG names another file.");
    QString Zbo_SinPartida = QStringLiteral("%1 tells of no launch.");
    QString Zbo_Partida = QStringLiteral("Game: %1 / %2 / %3, at %4");
    QString Zbo_PorSenal = QStringLiteral("The emulator was ended by the signal %1 after %2 seconds.");
    QString Zbo_ConEstado = QStringLiteral("The emulator ended with the status %1 after %2 seconds.");
    QString Zbo_SinFinal = QStringLiteral("It still runs, or the program was ended ahead of it.");
    // Bulk work.
};

struct ClaveDePalabra {
    QStringView nombre; // the key in the file
    QString Palabras::*variable;
};

std::span<const ClaveDePalabra> ClavesDePalabras();

// Takes the word out of a line of a language file, if it is one of these.
void LeePalabra(Palabras &palabras, const QString &linea);

} // namespace companion
