// The texts that emulators come with: where they are looked for, and how one is read for the screen.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace core {

inline constexpr int LargoDeDocumento = 32000; // bytes of a text that the screen shows

// The directory of an emulator's executable, with its closing separator; empty for a bare name.
QString DirectorioDe(const QString &exe);

// The names under which the help or the settings of an emulator are looked for, in this order; most are those
// that well-known emulators ship.
QStringList CandidatosDeAyuda(const QString &exe);
QStringList CandidatosDeConfiguracion(const QString &exe);

// The first candidate that exists; a directory of that name counts too.
std::optional<QString> PrimeroQueExiste(const QStringList &candidatos);

struct Documento {
    QString texto; // without its trailing blanks
    bool cortado = false; // the file is longer than what was read
};

// Fails with 53 or 75.
Documento LeeDocumento(const QString &ruta);

} // namespace core
