// Reading archives: a whole ZIP into a directory.
#pragma once

#include <QString>
#include <QStringList>

namespace launch {

struct Desempaquetado {
    QStringList ficheros; // plain files written directly into the destination, in the archive's order
    QStringList ilegibles; // those that would lie there, but are damaged or compressed in an unknown way
    QStringList masAbajo; // plain files written into its subdirectories, by their paths from there
    QStringList ilegiblesMasAbajo; // and the damaged ones
    QStringList subdirectorios; // directly in the destination, which were there or were made
    bool nadaLegible = false; // there are such members, in subdirectories too, and no other plain file
};

// Unpacks the whole archive into a directory that exists. Reports no failure: whatever is wrong with the
// archive, the destination stays empty or partly filled, and nothing is ever written outside it. A name that
// ends in blanks is tried as it stands, then without them. Asks for a password where a member needs one, once
// a user has left that prompt empty never again in this process, and before it replaces a file that was
// there. Only plain files and directories are made; a member that can't be read in full leaves nothing. Stops
// where the disk would be left with less than 100 MB. Needs a UTF-8 locale for the members' names.
Desempaquetado Descomprimir(const QString &ArchivoZip, const QString &DirectorioDestino);

// What unpacking it into an empty directory would yield: the archive is read, and nothing is written. No
// password is asked for.
Desempaquetado ContenidoDe(const QString &ArchivoZip);

// Forgets that the password prompt was left empty, for tests of a process of their own.
void OlvidaSaltarContraseña();

} // namespace launch
