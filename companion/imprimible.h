// Texts of outside as a terminal may show them: a name must not move the cursor, nor turn the line round.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace companion {

// Control characters, those of text direction, ends of lines and bytes that are no text, as \xHH or \u{HHHH}.
// All else stays, a backslash too.
QString Imprimible(const QString &texto);

// The object as indented JSON with an end of line. What a terminal would obey is written as \uHHHH.
QByteArray ComoJson(const QJsonObject &objeto);

} // namespace companion
