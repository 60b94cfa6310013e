// Texts in the code page of DOS.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace launch {

// In code page 437. None where the text has a
// character that the page lacks, or a control character.
std::optional<QByteArray> EnCodigo437(const QString &texto);

// Back again.
QString DeCodigo437(const QByteArray &bytes);

} // namespace launch
