// Paths as Windows programs read them under Wine.
#pragma once

#include "host/drives.h"

#include <QString>

#include <vector>

namespace launch {

// "Z:\home\ana\roms\game.nes" of an absolute path in its spelling on the disk: on the drive that lies nearest
// above it. As it is where it lies on none, or has a name that Windows can't say.
QString RutaDeWindows(const QString &enDisco, const std::vector<host::Drive> &unidades);

// The drives that a Wine prefix has: of one that isn't made yet, those that it will have.
std::vector<host::Drive> UnidadesDeWine();

} // namespace launch
