// What the directory of a ZIP tells, without reading its members.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace launch {

struct IndiceZip {
    QStringList ficheros; // the names of the plain files that don't lie in a subdirectory, in their order
    bool enDirectorios = false; // there are others, which do
    bool cifrado = false; // one of its files asks for a password
};

// None where it can't be read up to its end, which is where the directory stands.
std::optional<IndiceZip> IndiceDe(const QString &ruta);

} // namespace launch
