// What of a text is measured and painted.
#pragma once

#include <QString>

namespace forms {

// The beginning of a text, as much as the widest control could show with its narrowest letters: measuring and
// shaping a line of a million letters takes seconds. A character is never cut in two.
QString shownPart(const QString &text);

// The first so many units of a text, one less where the last would be half a character.
QString beginningOf(const QString &text, qsizetype most);

} // namespace forms
