// Which of some names is meant by what a user typed of it.
#pragma once

#include <QString>
#include <QStringList>

namespace companion {

// The positions, counted from 0, of the names that a text may mean: those that equal it; else in any case;
// else those that begin with it, or hold it, in any case. Equal names count once, for the first of them. A
// name may also be meant as a terminal shows it, or as JSON has it.
QList<qsizetype> Candidatos(const QStringList &nombres, const QString &texto);

// The position of the name that equals a text, else that does in any case; -1 if none does.
qsizetype PosicionDeNombre(const QStringList &nombres, const QString &texto);

// The name that differs least from a text, in so many letters at most and in any case; empty if none does.
QString MasParecido(const QStringList &nombres, const QString &texto, qsizetype letras = 3);

} // namespace companion
