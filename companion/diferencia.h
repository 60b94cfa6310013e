// What would change in a text file, as a unified diff.
#pragma once

#include <QString>
#include <QStringList>

namespace companion {

// Empty where nothing changes. Ends of lines aren't shown, nor compared.
QStringList Diferencia(const QString &fichero, const QString &antes, const QString &despues);

} // namespace companion
