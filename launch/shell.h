// Arguments as one line that a shell takes apart again, for users and for the log. Nothing here runs one.
#pragma once

#include <QString>
#include <QStringList>

namespace launch {

// Plain where it can be, else in quotes; what a terminal would obey, and bytes that are no text, as \xHH
// between $' and '. Without ends of lines, whatever the arguments hold.
QString EnShell(const QStringList &argumentos);

// What EnShell has made of them.
QStringList DeShell(const QString &linea);

} // namespace launch
