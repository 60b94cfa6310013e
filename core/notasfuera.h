// Notes that have come to stand outside of the block of the system whose games they describe.
#pragma once

#include "core/notasleidas.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace core {

// A run of them: from the index of its first line to behind its last one.
struct NotasFuera {
    QString sistema; // whose games they describe
    size_t inicio = 0;
    size_t fin = 0;
};

// Those that no configured system whose block they stand in has a game for, while another one has and its
// own block doesn't describe it. Of lines that are a note and nothing else, up to the parameters.
std::vector<NotasFuera> NotasFueraDeSitio(
    const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos, const HayJuego &hay);

// The systems that have such notes.
QStringList SistemasConNotasFuera(
    const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos, const HayJuego &hay);

} // namespace core
