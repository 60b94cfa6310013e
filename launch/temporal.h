// The program's directory for unpacked games, "ZB-TMP" in the directory for temporary files.
#pragma once

#include "core/modulo.h"

#include <QString>

namespace launch {

// The directory for temporary files, closed by a separator; empty if there is none to be had. Asked anew at
// each use.
QString DirectorioTemporal();

// The path of "ZB-TMP", absolute, without a closing separator; in the working directory if there is no other
// place.
QString RutaZBTMP();

// A real directory of this user's: anything else under its name is neither swept nor used.
bool EsDirectorioPropio(const QString &ruta);

// Makes the directory under exactly this name, open to the user alone; one that is there stays.
void HazZBTMP(const QString &ruta);

// Removes what an earlier run left in ZB-TMP, read-only files included. A directory with any other attribute
// beside its own is left alone. Fails as the host's operations do.
void BarreZBTMP(core::Modulo &M);

// Removes ZB-TMP with its plain files; what can't go stays, and then the directory too.
void VaciaZBTMP(const QString &ruta);

// Removes the directory around ZB-TMP if it was made for this program and is empty.
void RecogeTemporal();

} // namespace launch
