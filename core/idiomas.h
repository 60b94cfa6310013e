// The language files that a user can choose from.
#pragma once

#include "core/modulo.h"

#include <QString>
#include <QStringList>

namespace core {

// Names of the language files as the file system spells them, at most as many as ListaLNG has places, without
// those that the settings file wouldn't give back. Fails with 76.
QStringList FicherosDeIdioma();

// The same in upper case, as the options offer them; none where the directory is missing. Fails with 9 for
// more than MaxIdiomas.
QStringList IdiomasEnMayusculas();

// The position of the language in use among these, counted from 0; -1 if it isn't there. The last of
// MaxIdiomas is never looked at.
int PosicionDeIdioma(const QStringList &idiomas, const QString &LanguageFile);

// The credit line of a language file, the text of its key TXT_InfoLNG; empty if it has none. Reads under
// number 1. Fails with 5 for a line that is too short for its text.
QString CreditoDeIdioma(Modulo &M, const QString &fichero);

} // namespace core
