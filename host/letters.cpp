#include "host/letters.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

// Walks a text by code points. A half of a surrogate pair on its own counts as the code that it is.
class CodePoints {
public:
    explicit CodePoints(QStringView text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_position == m_text.size(); }
    qsizetype position() const { return m_position; }

    char32_t next()
    {
        const QChar first = m_text[m_position++];
        if (first.isHighSurrogate() && !atEnd() && m_text[m_position].isLowSurrogate())
            return QChar::surrogateToUcs4(first, m_text[m_position++]);
        return first.unicode();
    }

private:
    QStringView m_text;
    qsizetype m_position = 0;
};

char32_t upperCode(char32_t code)
{
    if (code < 128)
        return code >= U'a' && code <= U'z' ? code - 32 : code;
    return QChar::toUpper(code);
}

char32_t lowerCode(char32_t code)
{
    if (code < 128)
        return code >= U'A' && code <= U'Z' ? code + 32 : code;
    return QChar::toLower(code);
}

bool isAscii(QStringView text)
{
    unsigned seen = 0;
    for (const QChar letter : text)
        seen |= letter.unicode();
    return seen < 128;
}

// Letters beyond U+FFFF have others beyond it, and the rest have none there, so that the length stays. Names
// come by the thousand: taken code by code they would be a tenth of a start.
template <char32_t (*map)(char32_t)> QString mapped(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    QChar *place = result.data();
    if (isAscii(text)) {
        std::transform(text.begin(), text.end(), place,
            [](QChar letter) { return QChar(char16_t(map(letter.unicode() & 127))); });
        return result;
    }
    for (CodePoints points(text); !points.atEnd();) {
        const char32_t code = map(points.next());
        if (QChar::requiresSurrogates(code)) {
            *place++ = QChar::highSurrogate(code);
            *place++ = QChar::lowSurrogate(code);
        } else {
            *place++ = char16_t(code);
        }
    }
    return result;
}

char32_t sameCode(char32_t code)
{
    return code;
}

// How much of the beginnings is the same as it stands. Four halves of characters at a time: neighbours in a
// directory have long ones.
qsizetype samePart(QStringView a, QStringView b)
{
    constexpr qsizetype Stride = 4;
    const qsizetype end = std::min(a.size(), b.size());
    qsizetype same = 0;
    while (same + Stride <= end && std::memcmp(a.data() + same, b.data() + same, Stride * sizeof(QChar)) == 0)
        same += Stride;
    while (same < end && a[same] == b[same])
        ++same;
    return same;
}

// How much of the beginnings is plainly the same, short of half a character: of names, that is most.
template <char32_t (*map)(char32_t)> qsizetype commonPart(QStringView a, QStringView b)
{
    const auto alike = [](QChar l, QChar r) {
        return l == r || ((l.unicode() | r.unicode()) < 128 && map(l.unicode()) == map(r.unicode()));
    };
    const qsizetype same = samePart(a, b);
    const qsizetype common =
        std::mismatch(a.begin() + same, a.end(), b.begin() + same, b.end(), alike).first - a.begin();
    return common > 0 && a[common - 1].isHighSurrogate() ? common - 1 : common;
}

template <char32_t (*map)(char32_t)> int compared(QStringView a, QStringView b)
{
    const qsizetype common = commonPart<map>(a, b);
    CodePoints left(a.sliced(common));
    CodePoints right(b.sliced(common));
    while (!left.atEnd() && !right.atEnd()) {
        const char32_t l = map(left.next());
        const char32_t r = map(right.next());
        if (l != r)
            return l < r ? -1 : 1;
    }
    return int(right.atEnd()) - int(left.atEnd());
}

} // namespace

QString upper(QStringView text)
{
    return mapped<upperCode>(text);
}

QString lower(QStringView text)
{
    return mapped<lowerCode>(text);
}

int compareCodes(QStringView a, QStringView b)
{
    return compared<sameCode>(a, b);
}

int compareNames(QStringView a, QStringView b)
{
    return compared<upperCode>(a, b);
}

bool sameName(QStringView a, QStringView b)
{
    return a.size() == b.size() && compareNames(a, b) == 0;
}

qsizetype behindFirst(QStringView text, qsizetype characters)
{
    CodePoints points(text);
    for (qsizetype passed = 0; passed < characters && !points.atEnd(); ++passed)
        points.next();
    return points.position();
}

qsizetype startOfLast(QStringView text, qsizetype characters)
{
    qsizetype start = text.size();
    for (qsizetype passed = 0; passed < characters && start > 0; ++passed) {
        const bool halves =
            start > 1 && text[start - 1].isLowSurrogate() && text[start - 2].isHighSurrogate();
        start -= halves ? 2 : 1;
    }
    return start;
}

} // namespace host
