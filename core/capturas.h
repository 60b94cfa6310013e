// The captures of an emulator that are still to be converted, and what is told of it.
#pragma once

#include "core/textos.h"

#include <QString>
#include <QStringList>

namespace core {

inline constexpr int MaxCapturas = 5001; // of one run

// Names of the files, and of the directories, that end in "pcx" in any case, with a point ahead of it or
// without; sorted. None of an empty path, or of a directory that isn't there. Fails with 9 for more than
// MaxCapturas.
QStringList CapturasPCX(const QString &directorio);

// The report: the number with a blank on either side, between the words for one or for several.
QString TextoDeConversion(const TextosIdioma &textos, qsizetype capturas);

} // namespace core
