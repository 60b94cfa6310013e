#include "host/encoding.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace host {

namespace {

constexpr char EndMark = 26;
constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

// Windows-1252 from byte 128 to 159; what it leaves undefined stands for itself. All other bytes do so
// anyway.
constexpr std::array<char16_t, 32> Upper1252 = { 0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020,
    0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C,
    0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178 };

// A byte of a name that is no UTF-8 is the code EscapeBase + byte.
constexpr char32_t EscapeBase = 0xF700;
constexpr char32_t FirstEscape = EscapeBase + 0x80;
constexpr char32_t LastEscape = EscapeBase + 0xFF;

struct Sequence {
    char32_t code = 0;
    qsizetype length = 0; // 0: the bytes don't begin with valid UTF-8
};

unsigned char byteAt(QByteArrayView bytes, qsizetype index)
{
    return static_cast<unsigned char>(bytes[index]);
}

// The UTF-8 sequence that the bytes begin with. Overlong forms, surrogates and codes past the last are not
// valid.
Sequence firstSequence(QByteArrayView bytes)
{
    const unsigned char lead = byteAt(bytes, 0);
    if (lead < 0x80)
        return { lead, 1 };
    const qsizetype length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length)
        return {};
    char32_t code = lead & (0x7F >> length);
    for (qsizetype i = 1; i < length; ++i) {
        if ((byteAt(bytes, i) & 0xC0) != 0x80)
            return {};
        code = (code << 6) | (byteAt(bytes, i) & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    if (overlong || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF)
        return {};
    return { code, length };
}

// Eight bytes at a time: the files of notes have hundreds of thousands.
bool isAscii(QByteArrayView bytes)
{
    constexpr quint64 HighBits = 0x8080808080808080;
    qsizetype done = 0;
    for (; done + qsizetype(sizeof(quint64)) <= bytes.size(); done += sizeof(quint64)) {
        quint64 eight;
        std::memcpy(&eight, bytes.data() + done, sizeof eight);
        if ((eight & HighBits) != 0)
            return false;
    }
    return std::all_of(
        bytes.begin() + done, bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool isUtf8(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qsizetype length = firstSequence(bytes).length;
        if (length == 0)
            return false;
        bytes = bytes.sliced(length);
    }
    return true;
}

bool readsAsUtf8(QByteArrayView bytes)
{
    return !isAscii(bytes) && isUtf8(bytes);
}

// Valid UTF-8 as text. QString::fromUtf8 would take a mark away that is part of the text.
QString fromUtf8(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    while (!bytes.isEmpty()) {
        const Sequence sequence = firstSequence(bytes);
        text += QChar::fromUcs4(sequence.code);
        bytes = bytes.sliced(sequence.length);
    }
    return text;
}

QString from1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return QChar(byte >= 0x80 && byte < 0xA0 ? Upper1252[byte - 0x80] : char16_t(byte));
    });
    return text;
}

std::optional<char> byte1252(QChar character)
{
    const char16_t code = character.unicode();
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
        return char(code);
    const auto *place = std::find(Upper1252.begin(), Upper1252.end(), code);
    if (place == Upper1252.end())
        return std::nullopt;
    return char(0x80 + (place - Upper1252.begin()));
}

std::optional<QByteArray> to1252(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const std::optional<char> byte = byte1252(character);
        if (!byte)
            return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

bool isEscape(char32_t code)
{
    return code >= FirstEscape && code <= LastEscape;
}

} // namespace

DecodedText decodeText(const QByteArray &bytes)
{
    DecodedText result;
    result.endMark = bytes.endsWith(EndMark);
    const auto content = QByteArrayView(bytes).chopped(result.endMark ? 1 : 0);
    if (isAscii(content)) {
        result.text = QString::fromLatin1(content);
    } else if (!isUtf8(content)) {
        result.text = from1252(content);
    } else if (content.startsWith(ByteOrderMark)) {
        result.encoding = Encoding::Utf8WithMark;
        result.text = fromUtf8(content.sliced(ByteOrderMark.size()));
    } else {
        result.encoding = Encoding::Utf8;
        result.text = fromUtf8(content);
    }
    return result;
}

QByteArray encodeText(const DecodedText &text)
{
    QByteArray bytes;
    std::optional<QByteArray> plain;
    if (text.encoding == Encoding::Windows1252)
        plain = to1252(text.text);
    if (plain && !readsAsUtf8(*plain))
        bytes = *plain;
    else
        bytes = text.text.toUtf8();
    if (text.encoding == Encoding::Utf8WithMark)
        bytes.prepend(ByteOrderMark);
    if (text.endMark)
        bytes += EndMark;
    return bytes;
}

QString nameFromDisk(QByteArrayView bytes)
{
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);
    QString name;
    name.reserve(bytes.size());
    QByteArrayView rest(bytes);
    while (!rest.isEmpty()) {
        const Sequence sequence = firstSequence(rest);
        if (sequence.length == 0 || isEscape(sequence.code)) {
            name += QChar(char16_t(EscapeBase + byteAt(rest, 0)));
            rest = rest.sliced(1);
        } else {
            name += QChar::fromUcs4(sequence.code);
            rest = rest.sliced(sequence.length);
        }
    }
    return name;
}

QByteArray nameToDisk(const QString &name)
{
    if (std::none_of(name.begin(), name.end(), [](QChar c) { return isEscape(c.unicode()); }))
        return name.toUtf8();
    QByteArray bytes;
    bytes.reserve(name.size());
    QStringView rest(name);
    while (!rest.isEmpty()) {
        const bool escaped = isEscape(rest.front().unicode());
        const auto end = std::find_if(
            rest.begin(), rest.end(), [escaped](QChar c) { return isEscape(c.unicode()) != escaped; });
        const QStringView run = rest.first(end - rest.begin());
        rest = rest.sliced(run.size());
        if (!escaped) {
            bytes += run.toUtf8();
            continue;
        }
        for (const QChar character : run)
            bytes += char(character.unicode() - EscapeBase);
    }
    return bytes;
}

} // namespace host
