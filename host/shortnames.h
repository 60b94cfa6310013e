// The short forms of the names in one directory. A pure function of the names.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace host {

// Lower case, blanks and all points but the last as '_'.
QString plainShortForm(const QString &name);

// By name, the short forms of all the names that don't have the plain form themselves. The names are those of
// a whole directory in their order. No form equals, case apart, another form or a name that would be found
// first in its place.
QHash<QString, QString> assignShortForms(const QStringList &names);

} // namespace host
