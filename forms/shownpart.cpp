#include "forms/shownpart.h"

namespace forms {

QString shownPart(const QString &text)
{
    constexpr qsizetype Longest = 2000;
    if (text.size() <= Longest)
        return text;
    return text.first(text[Longest - 1].isHighSurrogate() ? Longest - 1 : Longest);
}

} // namespace forms
