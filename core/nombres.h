// Names that the user gives to systems and emulators: which of them come back from the files as they were
// typed, and pass for no line of another meaning.
#pragma once

#include <QString>

namespace core {

// False for a name that Zembro.sye or Zembro.emu wouldn't give back, that no parameter record can hold, that
// is blank, or that Zembro.rom, where a system's name stands alone on a line, would take for a line of its
// own.
bool SirveDeSistema(const QString &nombre);

// The same for an emulator's, which stands behind a sign or a comma everywhere.
bool SirveDeEmulador(const QString &nombre);

// True for a line that Zembro.rom uses itself, wherever a system's name may stand in it: what lies around a
// system of such a name, from a time when names weren't looked at, can't be told from its own.
bool EsLineaDeNotas(const QString &nombre);

// True if the text of Zembro.rom has this line ahead of the first system, or among the records of a system or
// of the parameters, so that a system of this name would begin there.
bool EsRegistroDeNotas(const QString &texto, const QString &nombre);

} // namespace core
