// Where the selected entry leads: to a note's key or to a file's name; and which file out of a ZIP is the
// game.
#pragma once

#include "core/modulo.h"
#include "launch/piezas.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace launch {

struct Busqueda {
    Via via = Via::Fichero;
    int nota = -1; // its index, by note
    QString clave; // the note's key as it stands
    QString nombre; // the file to be looked for
};

Busqueda BuscaROM(const core::Modulo &M, int tipo, const QString &entrada);

inline constexpr int MaxCandidatos = 151;

// The files of the directory that a ZIP was unpacked into, in the order in which they are tried: what lay
// there before by name, then the members in the archive's order. Names beyond the table's end are dropped.
QStringList Candidatos(const QStringList &enDirectorio, const QStringList &delArchivo);

// The candidate whose extension is one of the system's ("*.NES"); none if no file fits. The result may be an
// empty name: the search then ran past the last one with the extension of the file before still standing.
std::optional<QString> EligeFichero(const QStringList &candidatos, const QStringList &extensiones);

} // namespace launch
