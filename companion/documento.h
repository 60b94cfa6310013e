// The games as other programs take them in.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace companion {

// A game that is handed over; its file as that program finds it.
struct Entregado {
    QString fichero;
    QString titulo;
    QString captura; // may be empty
};

// The games of one emulator.
struct Entrega {
    QString nombre;
    QStringList orden; // that starts a game, its file left out; empty if there is none
    std::vector<Entregado> juegos;
};

// Whether the name of a file, or a text of a game, can stand in such a document and be the same for its
// reader.
bool CabeEnXml(const QString &texto);
bool CabeEnPegasus(const QString &texto);

// A gamelist.xml. What can't stand in it is left out.
QString Gamelist(const std::vector<Entrega> &entregas);

// A metadata.pegasus.txt; the same.
QString Pegasus(const std::vector<Entrega> &entregas);

} // namespace companion
