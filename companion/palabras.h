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

    // Checking.
    QString Zbo_Check = QStringLiteral("checks the files, and every configured emulator");
    QString Zbo_OpMend = QStringLiteral("shows how to repair what has one answer only");
    QString Zbo_OpWrite = QStringLiteral("writes it, instead of showing it");
    QString Zbo_MendTodo =
        QStringLiteral("--mend is for the whole directory: leave SYSTEM and EMULATOR out.");
    QString Zbo_WriteMend = QStringLiteral("Of check, --write goes with --mend alone.");
    QString Zbo_NoLeida = QStringLiteral("No reader takes this line; correct or remove it: %1");
    QString Zbo_Repetido = QStringLiteral("This name stands twice; the second one is never found: %1");
    QString Zbo_ExtLarga = QStringLiteral("An extension of more than three letters fits no file: %1");
    QString Zbo_SinCierre = QStringLiteral(
        "The block of %1 has no closing line of an apostrophe and dashes; --mend puts it there.");
    QString Zbo_SinMarca =
        QStringLiteral("The line [EOF] behind the last system is missing; --mend puts it there.");
    QString Zbo_SinApostrofo =
        QStringLiteral("The notes of %1 have no closing apostrophe; --mend puts it there.");
    QString Zbo_SinNotas = QStringLiteral(
        "There is no block of notes for %1, so none of its games is listed; --mend puts one there.");
    QString Zbo_SinSeccion =
        QStringLiteral("The section of parameters, or its closing apostrophe, is missing.");
    QString Zbo_Cortado =
        QStringLiteral("This record has another number of fields than it needs; a comma cuts it: %1");
    QString Zbo_SinFichero =
        QStringLiteral("The note %1 has no file any more; remove it, or bring the file back.");
    QString Zbo_MalAjuste = QStringLiteral("This setting has a value that the program doesn't take: %1");
    QString Zbo_SinBlanco =
        QStringLiteral("The text of %1 has lost the blank at its end, ahead of the quotation mark.");
    QString Zbo_LineaCorta = QStringLiteral(
        "This line is too short for a text, and the program ends at it; correct or remove it: %1");
    QString Zbo_SinClave = QStringLiteral("The key %1 is missing.");
    QString Zbo_NoHayEXE = QStringLiteral("There is no program %1; correct its path in the configuration.");
    QString Zbo_Parecido = QStringLiteral("Perhaps this one is meant: %1");
    QString Zbo_SinPermiso = QStringLiteral("The program %1 can't be run: it lacks the right to (chmod +x).");
    QString Zbo_OtraMaquina = QStringLiteral("The program %1 is for another processor.");
    QString Zbo_NoEsPrograma = QStringLiteral("The file %1 is no program that this machine knows.");
    QString Zbo_SinROMs = QStringLiteral("The machine %1 of MAME lacks ROMs of its own: mame -verifyroms %1");
    QString Zbo_SinTipo =
        QStringLiteral("The XDI line doesn't end in a type from 0 to 3 or from 5 to 8; nothing is listed.");
    QString Zbo_ListaCortada = QStringLiteral("The list is cut: the length of a file can't be had.");
    QString Zbo_NoSeLista = QStringLiteral("No game can be listed: %1");
    QString Zbo_DosVeces = QStringLiteral("%1 is listed twice, as two extensions fit its end.");
    QString Zbo_NadaEncaja = QStringLiteral(
        "Nothing of %1 files or directories is listed: no extension, or not the type, fits them.");
    QString Zbo_MismaDesc = QStringLiteral("Several games have the description %1; the first one is played.");
    QString Zbo_SinCapturas = QStringLiteral("The captures can't be read: %1");
    QString Zbo_CapturaSola = QStringLiteral("The capture %1 fits no game.");
    QString Zbo_CapturaMal = QStringLiteral("The capture %1 would be found as %2.");
    QString Zbo_Cuenta = QStringLiteral(
        "%1 / %2: %3 listed, %4 of another kind, %5 left out by the filters, %6 without a capture.");
    QString Zbo_ParPerdidos = QStringLiteral("The parameters of %1 are never found: its name has blanks or "
                                             "several points, so it needs a description.");

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
    QString Zbo_NoExporta = QStringLiteral("left out, as its name can't stand in such a file");
    QString Zbo_Escrito = QStringLiteral("Written: %1");

    // Programs for other systems.
    QString Zbo_NoUnidad = QStringLiteral("There is no drive %1 for %2: name its place in Zembro.uni.");
    QString Zbo_SinSitio = QStringLiteral("The drive %1 leads to %2, which is not there.");
    QString Zbo_CorreEn = QStringLiteral("A program for %1, which runs in %2.");
    QString Zbo_LineaDOS = QStringLiteral("DOS gets: %1");
};

struct ClaveDePalabra {
    QStringView nombre; // the key in the file
    QString Palabras::*variable;
};

std::span<const ClaveDePalabra> ClavesDePalabras();

// Takes the word out of a line of a language file, if it is one of these.
void LeePalabra(Palabras &palabras, const QString &linea);

} // namespace companion
