// The first settings, where nobody is asked for them.
#pragma once

#include "core/modulo.h"

#include <QString>
#include <QStringList>

namespace core {

// The language file, of those in upper case, for what the environment says of the locale ("ca_ES.UTF-8"):
// English for a language that has no file, and for none. Without the English one the first of them; empty
// without any.
QString IdiomaDeLocal(const QString &local, const QStringList &idiomas);

// The first of these that isn't empty: LC_ALL, LC_MESSAGES, LANG.
QString LocalDelEntorno();

// Writes the settings as the first run does, with this language and with the pair by Zembro.emu selected,
// where they bear the mark of the first run. False where they don't: then they stay.
bool PonPrimerosAjustes(Modulo &M, const QString &idioma, const QString &sistema, const QString &emulador);

} // namespace core
