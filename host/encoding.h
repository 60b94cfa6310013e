// The bytes of text files and of names on the disk, as text and back. Nothing is ever lost on the way.
#pragma once

#include <QByteArray>
#include <QString>

namespace host {

enum class Encoding { Windows1252, Utf8, Utf8WithMark };

struct DecodedText {
    QString text; // without the byte order mark and without a closing byte 26
    Encoding encoding = Encoding::Windows1252;
    bool endMark = false; // the last byte was a 26, the end-of-text mark of old editors; no text, but kept
};

// Valid UTF-8 with at least one character above 127 is UTF-8; anything else is Windows-1252, its five
// undefined bytes mapped one to one, so that every file can be decoded and comes back byte for byte.
DecodedText decodeText(const QByteArray &bytes);

// The bytes of the text in the file's own encoding. Moves to UTF-8 where the text can't be written in
// Windows-1252, or where its Windows-1252 bytes would be read as UTF-8.
QByteArray encodeText(const DecodedText &text);

// Names on the disk. A byte that isn't part of valid UTF-8 becomes the private-use character U+F700 + byte;
// the bytes of those private-use characters themselves are taken the same way, which makes it reversible.
QString nameFromDisk(QByteArrayView bytes);
QByteArray nameToDisk(const QString &name);

} // namespace host
