// Blank lines among the records of Zembro.rom. A reader takes each for an empty field, so that all behind it
// is read a field out of step, and the closing apostrophe as something else.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace core {

// Those in the notes of these systems and among the parameters, as indices of lines; not what may be a field
// of a record that the lines ahead of it leave open, nor what stands behind the last record of a block
// without its closing line.
std::vector<size_t> VaciasEntreRegistros(const QString &texto, const QStringList &sistemas);
QString SinVaciasEntreRegistros(const QString &texto, const QStringList &sistemas);

} // namespace core
