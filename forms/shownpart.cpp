#include "forms/shownpart.h"

namespace forms {

QString shownPart(const QString &text)
{
    constexpr qsizetype Longest = 2000;
    return beginningOf(text, Longest);
}

QString beginningOf(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    return text.first(text[most - 1].isHighSurrogate() ? most - 1 : most);
}

} // namespace forms
