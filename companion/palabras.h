// Words of zembro. In a language file they stand under their own keys, like all others; English is built in,
// for where there is no language file.
#pragma once

#include <QString>

#include <span>

namespace companion {

struct Palabras {

    // The help.
    QString Zbo_Uso = QStringLiteral("Usage: %1");
    QString Zbo_Ordenes = QStringLiteral("Commands:");
    QString Zbo_Opciones = QStringLiteral("Options:");
    QString Zbo_MasAyuda = QStringLiteral("zembro COMMAND --help tells more of one.");
    QString Zbo_OpDir = QStringLiteral("the program's directory, if zembro doesn't stand in it");
    QString Zbo_OpJson = QStringLiteral("the answer as JSON");
    QString Zbo_OpAyuda = QStringLiteral("this help");
    QString Zbo_OpVersion = QStringLiteral("the version");
    QString Zbo_Help = QStringLiteral("tells of the commands, or of one of them");

    // What was asked for wrongly.
    QString Zbo_NoOrden = QStringLiteral("There is no command %1.");
    QString Zbo_NoOpcion = QStringLiteral("There is no option %1.");
    QString Zbo_NoValor = QStringLiteral("An option lacks its value.");
    QString Zbo_SinValor = QStringLiteral("An option has a value that it doesn't take.");
    QString Zbo_NoDir = QStringLiteral("%1 is no directory of the program.");
    // Bulk work.
};

struct ClaveDePalabra {
    QStringView nombre; // the key in the file
    QString Palabras::*variable;
};

std::span<const ClaveDePalabra> ClavesDePalabras();

// Takes the word out of a line of a language file, if it is one of these.
void LeePalabra(Palabras &palabras, const QString &linea);

} // namespace companion
