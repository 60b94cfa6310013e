// Which picture belongs to which game, by their names.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace companion {

// What a game goes by.
struct Nombrado {
    QString fichero; // its file's name, or its directory's
    QString captura; // the name of its capture, without the ending
    QString descripcion; // empty if it has none
};

// For each game the picture of these, files' names, that fits it best: one that is called as its file or its
// capture, else as its file without what stands in brackets, else as its description; case, accents and signs
// count only for the first. Of several the first one. A picture may fit several games.
std::vector<std::optional<qsizetype>> Encajan(
    const std::vector<Nombrado> &juegos, const QStringList &imagenes);

} // namespace companion
