// The parameters that a user gave to a single ROM, as Zembro.rom keeps them.
#pragma once

#include "host/textsource.h"

#include <QString>

namespace core {

// The parameters of the first record with this key, case apart; whichever system and emulator the record
// names. Empty where there is no section, no such record, or the text ends before.
QString ParametrosDe(host::TextSource &fuente, const QString &clave);

} // namespace core
