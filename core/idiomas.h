// The language files that a user can choose from.
#pragma once

#include "core/modulo.h"

#include <QString>
#include <QStringList>

namespace core {

// Names of the language files as the file system spells them, at most as many as ListaLNG has places. Fails
// with 76.
QStringList FicherosDeIdioma();

// The credit line of a language file, the text of its key TXT_InfoLNG; empty if it has none. Reads under
// number 1. Fails with 5 for a line that is too short for its text.
QString CreditoDeIdioma(Modulo &M, const QString &fichero);

} // namespace core
