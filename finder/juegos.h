// The directory of a system's games: whether it holds any, and the line of text in it that says what goes
// there.
#pragma once

#include "finder/hallazgos.h"

#include <optional>

namespace finder {

inline const QString NombreDeNota = QStringLiteral("LEEME.txt");

// The "*." lines of a system, as the catalogue has it, else the database.
QStringList ExtensionesDe(const core::Modulo &base, const core::Modulo &catalogo, const QString &sistema);

// Whether the main screen would list anything of this directory but the line of text.
bool HayJuegos(const QString &directorio, int tipo, const QStringList &extensiones);

// Where the emulator of this name looks for games, empty for nowhere; nothing if the catalogue, that of this
// program directory, hasn't got it.
std::optional<QString> DirectorioDeJuegos(
    const core::Modulo &catalogo, const QString &emulador, const QString &directorio);

// What the line says.
struct Nota {
    QString sistema;
    QStringList extensiones; // "*." lines
    QString otroDirectorio; // where its emulators look for games, if not here
    bool faltaConfigurar = false; // an emulator of it isn't in the catalogue yet
};
QString LineaDeNota(const Nota &nota);

// Whether it is to be written: where there is none, unless the system would list it as a game.
bool FaltaNota(const QString &directorio, const Nota &nota);
void EscribeNota(const QString &directorio, const Nota &nota);

} // namespace finder
