// The words of checking, as companion/palabras.h has the others.
#pragma once

#include <QString>

namespace companion {

struct PalabrasDeRevision {
    // Checking.
    QString Zbo_Check = QStringLiteral("checks the files, and every configured emulator");
    QString Zbo_OpMend = QStringLiteral("shows how to repair what has one answer only");
    QString Zbo_OpWrite = QStringLiteral("writes it, instead of showing it");
    QString Zbo_MendTodo =
        QStringLiteral("--mend is for the whole directory: leave SYSTEM and EMULATOR out.");
    QString Zbo_WriteMend = QStringLiteral("Of check, --write goes with --mend alone.");
    QString Zbo_NoLeida = QStringLiteral("No reader takes this line; correct or remove it: %1");
    QString Zbo_Repetido =
        QStringLiteral("This name stands twice; the second one is never found; remove one of them: %1");
    QString Zbo_ExtLarga = QStringLiteral(
        "An extension of more than three letters fits no file; shorten it to its last three: %1");
    QString Zbo_SinCierre = QStringLiteral(
        "The block of %1 lacks the line of an apostrophe and dashes behind its last emulator.");
    QString Zbo_SinMarca = QStringLiteral("The line [EOF] behind the last system is missing.");
    QString Zbo_SinApostrofo = QStringLiteral(
        "The notes of %1 lack their closing line, an apostrophe alone; it belongs behind the last of them.");
    QString Zbo_SinNotas =
        QStringLiteral("There is no block of notes for %1, so none of its games is listed; it needs a line "
                       "with that name, and one with an apostrophe.");
    QString Zbo_SinSeccion =
        QStringLiteral("The section of parameters, or its closing apostrophe, is missing; behind the systems "
                       "it needs a line Parametros especificos, its records, and a line with an apostrophe.");
    QString Zbo_Cortado = QStringLiteral("This record has another number of fields than it needs; where a "
                                         "comma cuts it, put double quotes around the text: %1");
    QString Zbo_TrasComillas = QStringLiteral("Behind the second double quotes of a field nobody reads on, "
                                              "so this record is cut there; take the inner ones away: %1");
    QString Zbo_SinFichero =
        QStringLiteral("The note %1 has no file any more; remove it, or bring the file back.");
    QString Zbo_SinBlanco = QStringLiteral(
        "The text of %1 has lost the blank at its end, ahead of the quotation mark; put it there.");
    QString Zbo_LineaCorta = QStringLiteral(
        "This line is too short for a text, and the program ends at it; correct or remove it: %1");
    QString Zbo_SinClave = QStringLiteral("The key %1 is missing, so a text of the program is empty; take "
                                          "this file anew from the program as delivered.");
    QString Zbo_NoHayEXE = QStringLiteral("There is no program %1; correct its path in the configuration.");
    QString Zbo_Parecido = QStringLiteral("Perhaps this one is meant: %1");
    QString Zbo_SinPermiso = QStringLiteral("The program %1 can't be run: it lacks the right to (chmod +x).");
    QString Zbo_OtraMaquina =
        QStringLiteral("The program %1 is for another processor: %2; install one for this machine.");
    QString Zbo_NoEsPrograma = QStringLiteral(
        "The file %1 is no program that this machine knows; name another one in the configuration.");
    QString Zbo_SinROMs = QStringLiteral("The machine %1 of MAME lacks ROMs of its own; in the directory %2, "
                                         "where a launch starts it, this names them: %3");
    QString Zbo_JuegoSinROMs = QStringLiteral("MAME doesn't find all ROMs of the game %1; in the directory "
                                              "%2, where a launch starts it, this names them: %3");
    QString Zbo_MAMECalla =
        QStringLiteral("MAME wasn't done after %1 seconds and was ended, so nothing is known of its ROMs; to "
                       "see what it waits for, in the directory %2, where a launch starts it, run %3");
    QString Zbo_MAMESenal = QStringLiteral(
        "MAME was ended by the signal %1 and told nothing of its ROMs; try whether it always does so, and "
        "install it anew then: in the directory %2, where a launch starts it, run %3");
    QString Zbo_MAMEMudo =
        QStringLiteral("MAME said nothing and ended with the status %1, so nothing is known of its ROMs; try "
                       "whether it is a MAME at all: in the directory %2, where a launch starts it, run %3");
    QString Zbo_MAMEDice =
        QStringLiteral("MAME named no set of ROMs and ended with the status %1; mend what it said at last "
                       "(%4), then in the directory %2, where a launch starts it, run %3");
    QString Zbo_MAMENoParte =
        QStringLiteral("MAME can't be started (%1), so nothing is known of its ROMs; install it anew, or try "
                       "it: in the directory %2, where a launch starts it, run %3");
    QString Zbo_SinVerificar = QStringLiteral("MAME was asked about the ROMs of the first %1 games alone; "
                                              "not asked about: %2. check SYSTEM EMULATOR asks about all.");
    QString Zbo_SinTipo = QStringLiteral("The XDI line doesn't end in a type from 0 to 3 or from 5 to 8, so "
                                         "nothing is listed; choose the type anew in the configuration.");
    QString Zbo_ListaCortada = QStringLiteral("The list is cut: the length of a file can't be had.");
    QString Zbo_NoSeLista = QStringLiteral("No game can be listed: %1");
    QString Zbo_DosVeces = QStringLiteral(
        "%1 is listed twice, as two extensions fit its end; remove one of them from the system.");
    QString Zbo_NadaEncaja = QStringLiteral("Nothing of what lies here is listed, as no extension, or not "
                                            "the type, fits it; add the extension, or change the type: %1");
    QString Zbo_MismaDesc = QStringLiteral(
        "Several games have the description %1; the first one is played; change one of them in the program.");
    QString Zbo_SinCapturas = QStringLiteral("The captures can't be read: %1");
    QString Zbo_CapturaSola =
        QStringLiteral("The capture %1 fits no game; rename it as the game is called, or remove it.");
    QString Zbo_CapturaMal =
        QStringLiteral("The capture %1 would be found as %2; rename it, or let captures make one of it.");
    QString Zbo_Cuenta = QStringLiteral(
        "%1 / %2: %3 listed, %4 of another kind, %5 left out by the filters, %6 without a capture.");
    QString Zbo_ParPerdidos = QStringLiteral("The parameters of %1 are never found: its name has blanks or "
                                             "several points, so it needs a description.");

    // What keeps the files from being read as they are meant.
    QString Zbo_Delante =
        QStringLiteral("Nothing from this line on is read, as it stands ahead of the first system; put it "
                       "behind a line that begins with a hyphen, or remove it: %1");
    QString Zbo_Demasiados =
        QStringLiteral("Nothing from this line on is read, as there are more than 150; remove some: %1");
    QString Zbo_SinNombre = QStringLiteral("This line names nothing; give it a name, or remove it.");
    QString Zbo_ExtMala =
        QStringLiteral("This extension fits no file: it needs capital letters, without blanks: %1");
    QString Zbo_ExtDetras = QStringLiteral("This extension stands behind an emulator and takes the place of "
                                           "one ahead of it; move it behind the line of its system: %1");
    QString Zbo_SinIgual =
        QStringLiteral("Behind %1 an equal sign is missing, so the first letters of the value are lost: %2");
    QString Zbo_SinMas = QStringLiteral("No emulator stands ahead of this line in its system, so nobody "
                                        "reads it; its line that begins with a plus sign may be lost: %1");
    QString Zbo_DosLineas = QStringLiteral("A second line of %2 for %3, and the first one counts no more; "
                                           "the line of another emulator may be missing ahead of it: %1");
    QString Zbo_FaltaLinea = QStringLiteral(
        "The emulator %1 has no line that begins with %2=; add it, or configure it in the program.");
    QString Zbo_SinBarra = QStringLiteral(
        "This directory lacks its closing separator, so its name runs into those of the files: %1");
    QString Zbo_BlancosRuta = QStringLiteral(
        "Blanks behind this path count as part of it, so that nothing is found there; take them away: '%1'");
    QString Zbo_SinEmulador =
        QStringLiteral("The system %1 has no emulator; configure one in the program, or remove its lines.");
    QString Zbo_CatalogoMal =
        QStringLiteral("The catalogue can't be read to its end; check without a name tells why.");
    QString Zbo_SinCerrar = QStringLiteral(
        "The double quotes of this record aren't closed, so it takes in what follows; close them: %1");
    QString Zbo_SinClaveReg = QStringLiteral(
        "This record names no game, and none behind it is found; give it a name, or remove it: %1");
    QString Zbo_NotasAjenas = QStringLiteral("No system of the catalogue or of the database is called so; "
                                             "correct the name of this block of notes, or remove it: %1");
    QString Zbo_SinCabecera = QStringLiteral("These notes stand below no name of a system, so nothing reads "
                                             "them; put its name on a line of its own above them: %1");
    QString Zbo_LineaVacia =
        QStringLiteral("A blank line, which counts as a field, so that what stands behind "
                       "it is read out of step; take the line away.");
    QString Zbo_MuchasNotas =
        QStringLiteral("From here on the notes of %1 are more than the %2 that the "
                       "program takes, so not all of its games are listed; remove some.");
    QString Zbo_SinMarcaNot = QStringLiteral("No line that begins with [ ends the notes of the systems, so a "
                                             "new system gets none; put [EOF] behind the last of them.");
    QString Zbo_ParDeNadie = QStringLiteral(
        "The parameters of %1 are for %2 / %3, which isn't configured; correct the names, or remove them.");
    QString Zbo_ParSinFich =
        QStringLiteral("The parameters of %1 are of no game any more; remove them, or bring the file back.");
    QString Zbo_OtroAjuste = QStringLiteral("Here the line of %1 should stand, as the settings are read by "
                                            "the numbers of their lines; add or remove a line ahead of it.");
    QString Zbo_AjustesMal =
        QStringLiteral("The program can't read its settings and ends at its start. A file Zembro.cfg that "
                       "holds nothing but the word VACIO makes it ask as at the first start. %1");
    QString Zbo_SinAjustes =
        QStringLiteral("The settings are gone, as this file is missing or empty, so at its next start the "
                       "program ends. Bring back a copy, or write a file Zembro.cfg that holds nothing but "
                       "the word VACIO: then it asks as at the first start.");
    QString Zbo_FaltaAjuste =
        QStringLiteral("The line of %1 is missing, so at its next start the program takes those below it for "
                       "other settings, or ends; put it back here as it was, or like this: %2");
    QString Zbo_FiltroMalo = QStringLiteral(
        "This filter leaves no directory out: it needs capital letters, without blanks ahead: %1");
    QString Zbo_MuchosFiltros =
        QStringLiteral("With 26 filters or more no directory is listed as a game; remove some.");
    QString Zbo_ClaveAjena =
        QStringLiteral("No text of the program has this key; correct it, or remove the line: %1");
    QString Zbo_ClaveDoble = QStringLiteral(
        "The key %1 stands twice; the text of the second line is the one shown; remove one of them.");
    QString Zbo_SinComillas = QStringLiteral("The text of %1 lacks one of its two double quotes, so its "
                                             "first or last letters are lost; put it there.");
    QString Zbo_FaltanPal =
        QStringLiteral("Words of the program are missing, which it then shows as they are built in; take "
                       "this file anew from the program as delivered: %1 (%2)");
    QString Zbo_SinIdiomas = QStringLiteral("There is no language file, so the program shows no words; take "
                                            "the directory LNG anew from the program as delivered.");

    // What keeps a program from starting, and a type from its games.
    QString Zbo_EsDirectorio = QStringLiteral("%1 is a directory, no program; name the program in it.");
    QString Zbo_SinInterp = QStringLiteral(
        "%1 needs %2, which isn't there or may not be run; install it, or correct the first line.");
    QString Zbo_SinSuplido =
        QStringLiteral("%1 isn't on this machine. Install it from your system's store of "
                       "programs, or in a terminal, by one of these: %2");
    QString Zbo_SinBiblio =
        QStringLiteral("%1 needs the library %2, which isn't there; install the package that holds it.");
    QString Zbo_SinExt = QStringLiteral(
        "The system %1 has no extensions, so no file is listed for this type; add its extensions.");
    QString Zbo_SoloFicheros =
        QStringLiteral("The type takes each game in a directory of its own, but in %1 there are only files: "
                       "%2. Change the type in the configuration.");
    QString Zbo_SoloDirs = QStringLiteral("The type takes files, but in %1 there are only directories: %2. "
                                          "Change the type in the configuration.");
    QString Zbo_FaltaCaptura = QStringLiteral("%1 has no capture; it is looked for as %2");
    QString Zbo_FaltanMas = QStringLiteral("and more: %1; check SYSTEM EMULATOR names them all");

    // What lies among the captures and the games, and isn't what it is taken for.
    QString Zbo_CapNoMuestra =
        QStringLiteral("%1 is no picture that the screen shows; remove it, or let captures make it anew.");
    QString Zbo_CapEnlace = QStringLiteral(
        "%1 is a link that leads nowhere; correct or remove it, or let captures put a picture there.");
    QString Zbo_CapNoFich = QStringLiteral("%1 is no file, but a directory or the like, and no capture can "
                                           "take its place; rename or remove it.");
    QString Zbo_CapNoLee = QStringLiteral("%1 can't be read; give its owner the right to (chmod u+r).");
    QString Zbo_CapEnSuSitio = QStringLiteral("in the place of what is no picture");
    QString Zbo_CapIguales = QStringLiteral(
        "%1 and %2 differ in case alone, and %3 is the one that shows; rename or remove the other.");
    QString Zbo_CapSobra = QStringLiteral("The capture %1 never shows, as its game has %2; remove it.");
    QString Zbo_FichIguales =
        QStringLiteral("%1 and %2 differ in case alone, and %3 is played for both; rename one of them.");
    QString Zbo_NoFicheros = QStringLiteral("No files, but directories, pipes or the like: %1 (%2)");
    QString Zbo_NoDirs = QStringLiteral("No directories: %1 (%2)");
    QString Zbo_FalloLeerDir =
        QStringLiteral("This directory can't be read; the right to may be missing (chmod u+rx)");
    QString Zbo_FalloNoDir = QStringLiteral("This is no directory");
    QString Zbo_MendQuedan = QStringLiteral("Findings that have no one answer: %1; check names them.");
    QString Zbo_SinEXE =
        QStringLiteral("The path of the program is empty; name the program in the configuration.");
    QString Zbo_SinCierrePar = QStringLiteral("The section of parameters lacks its closing line, an "
                                              "apostrophe alone; it belongs behind the last of them.");

    // Why nothing came of it.
    QString Zbo_MueveOld = QStringLiteral("--new goes with --old: name the old place too.");
    QString Zbo_DesNada =
        QStringLiteral("No game of the system is listed, so there is nothing to describe; check tells why.");
    QString Zbo_DesLista = QStringLiteral(
        "Games: %1. With a description already (--replace makes them anew): %2. Not in the list: %3.");
    QString Zbo_DesNombres = QStringLiteral("Games: %1. With a description already (--replace makes them "
                                            "anew): %2. With a name that gives no other one: %3.");
    QString Zbo_ListaVacia =
        QStringLiteral("%1 holds no name with a description; it should be a DAT, what mame -listxml says, a "
                       "gamelist.xml, or lines of name, tab, description.");
    QString Zbo_ListaAjena =
        QStringLiteral("%1 is no list of a kind that is known here, as it holds bytes that no text has; it "
                       "should be a DAT, what mame -listxml says, a gamelist.xml, or lines of name, tab, "
                       "description, in UTF-8 or Windows-1252, or with its mark in UTF-16.");
    QString Zbo_NadaRepuesto =
        QStringLiteral("Nothing was restored, and all files are as they were. What failed: %1");
    QString Zbo_MedioRepuesto =
        QStringLiteral("Of the copy %1 these are restored: %2. The others are as they were; the former ones "
                       "are in the copy %3. What failed: %4");
};

} // namespace companion
