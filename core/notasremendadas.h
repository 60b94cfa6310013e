// The notes on single ROMs with all their repairs, of which each has one answer only.
#pragma once

#include "core/remiendos.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace core {

// The runs of notes that stand outside of all blocks, as the line with the system's name above them is gone:
// from the index of their first line to behind their last one.
std::vector<SinCierre> NotasSinNombre(const QString &texto, const QStringList &sistemas);

// The text with that name above them: where there is one such run, of notes and nothing else, and one of all
// known systems that has no block.
QString ConNombreDeNotas(const QString &texto, const QStringList &sistemas);

// With all repairs of the notes, and an empty block for each system of the catalogue that has none, unless
// notes stand under no name: those may be its own. A second call finds nothing to do.
QString NotasRemendadas(const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos);

} // namespace core
