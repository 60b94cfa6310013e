// A text on several lines that may have more of them than there is room for.
#pragma once

#include <QSize>
#include <QString>

#include <optional>

class QFont;

namespace forms {

// Broken between words, as the toolkit breaks it, and without the lines that haven't room in their whole
// height; the first stays in any case, and the last ends in an ellipsis. Nothing where all have room.
std::optional<QString> clippedText(const QString &text, const QFont &font, const QSize &room);

} // namespace forms
