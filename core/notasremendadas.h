// The notes on single ROMs with all their repairs, of which each has one answer only.
#pragma once

#include "core/notasleidas.h"
#include "core/remiendos.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace core {

// The runs of notes that stand outside of all blocks, as the line with the system's name above them is gone:
// from the index of their first line to behind their last one.
std::vector<SinCierre> NotasSinNombre(const QString &texto, const QStringList &sistemas);

// The systems among whose games there are files of any of these keys; none where that can't be told for sure.
using SistemasDeClaves = std::function<QStringList(const QStringList &claves)>;

// What the disk has of the games that the notes are about.
struct JuegosDelDisco {
    SistemasDeClaves deQuien;
    HayJuego hay;
};

// The text with that name above them: where there is one such run, of notes and nothing else, one of all
// known systems that has no block, and their games are this one's and nobody else's. A stray apostrophe in
// the middle of another system's notes leaves a run of the same looks.
QString ConNombreDeNotas(const QString &texto, const QStringList &sistemas, const SistemasDeClaves &deQuien);

// With all repairs of the notes, and an empty block for each system of the catalogue that has none, unless
// notes stand under no name: those may be its own. Of a damaged file some descriptions show all the same: a
// repair behind which one of them showed no more isn't made. A second call finds nothing to do.
QString NotasRemendadas(const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos,
    const JuegosDelDisco &juegos);

} // namespace core
