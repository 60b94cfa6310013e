// Words of zembro. In a language file they stand under their own keys, like all others; English is built in,
// for where there is no language file.
#pragma once

#include "companion/palabrasdeauxilio.h"
#include "companion/palabrasderevision.h"

#include <QString>

#include <span>

namespace companion {

struct Palabras : PalabrasDeRevision, PalabrasDeAuxilio {

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
    QString Zbo_QueDir =
        QStringLiteral("Start Zembrolix once, which makes its directory, or name that one with --directory.");

    // Picking a system, an emulator and a game by their names.
    QString Zbo_NoSistema = QStringLiteral("No system fits %1.");
    QString Zbo_NoEmulador = QStringLiteral("No emulator of the system fits %1.");
    QString Zbo_NoJuego = QStringLiteral("No listed game fits %1.");
    QString Zbo_Varios = QStringLiteral("Several fit %1:");
    QString Zbo_Cuales = QStringLiteral("Several fit; name one of them:");

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
    QString Zbo_SeQueda = QStringLiteral("Stays there afterwards: %1");
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

    // Finding emulators.
    QString Zbo_Find = QStringLiteral("finds the emulators that this machine has got since");
    QString Zbo_OpAll = QStringLiteral("also of systems without games, and every machine of MAME");
    QString Zbo_Configurado = QStringLiteral("Configured %1: %2, %3");
    QString Zbo_SeHaria = QStringLiteral("Would be made: %1");
    QString Zbo_Reinicia = QStringLiteral("The program shows them at its next start. If it was open "
                                          "meanwhile, it may begin with another pair selected.");
    QString Zbo_NadaMas = QStringLiteral("Nothing to add: every emulator that was found is configured.");
    QString Zbo_NadaNuevo = QStringLiteral(
        "Nothing to add. Put games into a directory of %1, and try again; --all doesn't ask for games.");
    QString Zbo_OpCompletion =
        QStringLiteral("prints the completion for bash, zsh or fish, or the page for man");

    // What fails on the disk; a name follows.
    QString Zbo_Fallo = QStringLiteral("This failed");
    QString Zbo_FalloValor = QStringLiteral("This can't be used as it is");
    QString Zbo_FalloMucho = QStringLiteral("There is more than fits");
    QString Zbo_FalloFichero = QStringLiteral("There is no such file");
    QString Zbo_FalloDisco = QStringLiteral("The disk or the device failed");
    QString Zbo_FalloLleno = QStringLiteral("The disk is full");
    QString Zbo_FalloFin = QStringLiteral("The file ends too early");
    QString Zbo_FalloDerecho = QStringLiteral("This isn't permitted");
    QString Zbo_FalloAcceso = QStringLiteral("This can't be opened, read or written");
    QString Zbo_FalloDir = QStringLiteral("There is no such directory");
    QString Zbo_FalloCambio =
        QStringLiteral("Another program has changed this file meanwhile; nothing was written");
    QString Zbo_FalloLlave =
        QStringLiteral("Another program keeps the directory of this file for itself; nothing was written");

    // The last launch.
    QString Zbo_NoSuyas = QStringLiteral(
        "Nothing is kept in %1: it has to be a plain file of your own, by an absolute path, and no link.");
    QString Zbo_FinSinSaber = QStringLiteral("The emulator ended after %1 seconds; how isn't known.");

    // The answer itself.
    QString Zbo_NoSale = QStringLiteral("The answer can't be written: %1");
    QString Zbo_OpFin = QStringLiteral("ends the options: what follows may begin with a hyphen");
    QString Zbo_NoSePide = QStringLiteral("Name a command; zembro help lists them.");
    QString Zbo_SoloBytes = QStringLiteral("Only the ends of lines or the encoding differ.");
    QString Zbo_WriteTo = QStringLiteral("Of export, --write goes with --to alone.");
    // Bulk work.

    // Bulk work: what it would change, and what it changed.
    QString Zbo_NadaCambia = QStringLiteral("Nothing would change.");
    QString Zbo_NoHay = QStringLiteral("There is no %1.");

    // Moving.
    QString Zbo_Move = QStringLiteral("changes the leading part of the catalogue's paths");
    QString Zbo_OpOld =
        QStringLiteral("the leading part that is to go; without it the old place of this directory");
    QString Zbo_OpNew = QStringLiteral("what stands in its place; without it this directory");
    QString Zbo_MuevePide = QStringLiteral("--old and --new need a path of one line.");
    QString Zbo_MueveVarios =
        QStringLiteral("The directory may have been in several places; choose one with --old:");
    QString Zbo_Moveria = QStringLiteral("From %1 to %2: --write writes it.");
    QString Zbo_Movido = QStringLiteral("Changed from %1 to %2.");

    // Copies of the text files.
    QString Zbo_Save = QStringLiteral("keeps a copy of the text files in copias");
    QString Zbo_Restore = QStringLiteral("brings back the text files of a copy");
    QString Zbo_OpList = QStringLiteral("the copies that there are");
    QString Zbo_Guardado = QStringLiteral("Copied to %1.");
    QString Zbo_YaGuardado = QStringLiteral("Nothing has changed since the copy %1.");
    QString Zbo_NoCopia = QStringLiteral("No copy fits %1.");
    QString Zbo_NoCopias = QStringLiteral("There is no copy that differs.");
    QString Zbo_SinCopias = QStringLiteral("There is no copy yet; save makes one.");
    QString Zbo_Repondria = QStringLiteral("From the copy %1: --write brings it back.");
    QString Zbo_Repuesto = QStringLiteral("Brought back from the copy %1. What was there is in the copy %2.");

    // Descriptions in bulk.
    QString Zbo_Describe = QStringLiteral("describes all games of a system at once");
    QString Zbo_OpFrom = QStringLiteral(
        "a DAT, a list of MAME, a gamelist.xml, or lines of name, tab, description; - is the standard input");
    QString Zbo_OpTags = QStringLiteral("keeps what stands in brackets");
    QString Zbo_OpReplace = QStringLiteral("changes the descriptions that are there too");
    QString Zbo_Describiria = QStringLiteral("New: %1. Changed: %2. --write writes them.");
    QString Zbo_Descrito = QStringLiteral("New: %1. Changed: %2.");
    QString Zbo_NoClave = QStringLiteral("not described, as its name can't be kept");
    QString Zbo_Repetida = QStringLiteral("not described, as another one is called so");
    QString Zbo_NoCabe = QStringLiteral("not described, as there is no room for more");
    QString Zbo_ListaMala = QStringLiteral("%1 can't be read: line %2, %3");

    // Handing the games to other programs.
    QString Zbo_Export =
        QStringLiteral("tells other programs of the games: a gamelist.xml, or a file for Pegasus");
    QString Zbo_OpPegasus = QStringLiteral("for Pegasus");
    QString Zbo_OpTo = QStringLiteral("the file that --write makes; without it the answer is shown");
    QString Zbo_NoEsLista =
        QStringLiteral("%1 is there and no list of games of this kind; name another file.");
    QString Zbo_NoExporta = QStringLiteral("left out, as its name can't stand in such a file");
    QString Zbo_Escrito = QStringLiteral("Written: %1");

    // Programs for other systems.
    QString Zbo_NoUnidad = QStringLiteral("There is no drive %1 for %2: name its place in Zembro.uni.");
    QString Zbo_SinSitio = QStringLiteral("The drive %1 leads to %2, which is not there.");
    QString Zbo_CorreEn = QStringLiteral("A program for %1, which runs in %2.");
    QString Zbo_LineaDOS = QStringLiteral("DOS gets: %1");
    QString Zbo_Vuelto = QStringLiteral("What a game had saved is back in its place: %1");
    QString Zbo_Apodo = QStringLiteral("%1, shown as %2");
    QString Zbo_UniNada = QStringLiteral("This line names no drive: a letter, =, and a place of this disk.");
    QString Zbo_UniOtra =
        QStringLiteral("The drive %1 has its place from an earlier line, %2: this one doesn't count.");
    QString Zbo_OtraUnidad =
        QStringLiteral("The drive %1 leads to %2 here and led to %3 there. Yours stays: put those files "
                       "below it, or give them a letter of their own, in Zembro.uni and in the paths.");
    QString Zbo_SinListar = QStringLiteral("It starts, but no games can be listed: %1");
    QString Zbo_SinWine32 =
        QStringLiteral("A Windows program of 32 bits, and Wine here is of 64 alone: install wine32 (sudo "
                       "dpkg --add-architecture i386, sudo apt update, sudo apt install wine32).");

    // Taking an old directory over.
    QString Zbo_Adopt =
        QStringLiteral("takes over the systems, notes and captures of an old program directory");
    QString Zbo_Funciona = QStringLiteral("works.");
    QString Zbo_YaTiene = QStringLiteral("is in the catalogue already; yours stays.");
    QString Zbo_NoEncaja = QStringLiteral("does not fit into the catalogue.");
    QString Zbo_Adoptado = QStringLiteral(
        "Taken over: emulators: %1, descriptions: %2, parameters: %3, captures: %4, drives: %5.");
    QString Zbo_Adoptaria = QStringLiteral("With --write it takes over: emulators: %1, descriptions: %2, "
                                           "parameters: %3, captures: %4, drives: %5.");

    // Captures.
    QString Zbo_Captures = QStringLiteral("makes captures of pictures for the games that they fit");
    QString Zbo_OpFromDir = QStringLiteral("the directory of the pictures; without it that of the captures, "
                                           "and where the emulator keeps its own");
    QString Zbo_OpLast =
        QStringLiteral("only the newest picture of the emulator, or of --from, for the game played last");
    QString Zbo_OpRehacer = QStringLiteral("makes anew the captures that are there too");
    QString Zbo_CapHaria = QStringLiteral(
        "%1 / %2: to be made: %3, there already: %4, games without a picture: %5; --write makes them.");
    QString Zbo_CapHechas =
        QStringLiteral("%1 / %2: made: %3, there already: %4, games without a picture: %5.");
    QString Zbo_CapSobran = QStringLiteral("Pictures that fit no game: %1.");
    QString Zbo_CapSobranMas = QStringLiteral("and more: %1; --json names them all");
    QString Zbo_CapSinDir =
        QStringLiteral("It has no directory of captures; its configuration gives it one.");
    QString Zbo_CapNoImagen = QStringLiteral("it is no picture of a kind that can be read");
    QString Zbo_CapGrande = QStringLiteral("the picture is too large");
    QString Zbo_CapRota = QStringLiteral("the picture is damaged");
    QString Zbo_CapIlegible = QStringLiteral("the picture can't be read");
    QString Zbo_CapNoEscrita = QStringLiteral("the capture can't be written");
    QString Zbo_CapNoHecha = QStringLiteral("the converter did not do it");
    QString Zbo_UltNadie = QStringLiteral("No launch of a game is known: %1");
    QString Zbo_UltOtra = QStringLiteral("The game played last is one of %1 / %2: %3");
    QString Zbo_UltSinFoto = QStringLiteral("No picture was taken while %1 was played; looked in:");
    QString Zbo_UltYaHay = QStringLiteral("%1 has a capture already; --replace makes it anew from %2");

    // Descriptions by MAME.
    QString Zbo_OpMame = QStringLiteral("by what the installed MAME says of its machines");
    QString Zbo_SinMAME =
        QStringLiteral("There is no MAME on this machine; install it, or give its list by --from.");
    QString Zbo_MAMEMal = QStringLiteral("%1 did not come to the end of its list: %2");
    QString Zbo_PorLaSenal = QStringLiteral("ended by the signal %1");
    QString Zbo_ConElEstado = QStringLiteral("ended with the status %1");
};

struct ClaveDePalabra {
    QStringView nombre; // the key in the file
    QString Palabras::*variable;
};

std::span<const ClaveDePalabra> ClavesDePalabras();

// Takes the word out of a line of a language file, if it is one of these.
void LeePalabra(Palabras &palabras, const QString &linea);

} // namespace companion
