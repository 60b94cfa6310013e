// A text as one field of a record, so that the field reader gives it back as it is.
#pragma once

#include <QString>

#include <optional>

namespace core {

// Bare where that comes back, else in double quotes; nothing where neither does: a text of several lines, or
// one with double quotes in it that needs some around it.
enum class Comillas { SiHacenFalta, Siempre };
std::optional<QString> CampoEscrito(const QString &texto, Comillas comillas = Comillas::SiHacenFalta);

// Whether a name can stand in a record.
bool CabeEnUnCampo(const QString &texto);

} // namespace core
