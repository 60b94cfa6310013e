// What would change in a text file, as a unified diff.
#pragma once

#include <QString>
#include <QStringList>

namespace companion {

// Empty where nothing changes. Ends of lines are neither shown nor compared, unless they are all that
// changes: then a CR stands at the end of each line that has one.
QStringList Diferencia(const QString &fichero, const QString &antes, const QString &despues);

} // namespace companion
