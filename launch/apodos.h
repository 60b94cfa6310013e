// A drive for files that DOS can't open by their names: a directory of links to them, for one run.
#pragma once

#include "launch/carpetadecorrida.h"
#include "launch/unidadesdos.h"

#include <QByteArray>

namespace launch {

// Makes it in the directory of the run, and yields its place; empty if it can't be made. Besides the file it
// shows what earlier runs of it have saved, and the directories. What this one saves, the directory of the
// run brings back. What an earlier one couldn't bring back is there again.
QByteArray HazCarpetaDeApodos(const CarpetaDeCorrida &corrida, const UnidadesDOS::Montaje &montaje);

} // namespace launch
