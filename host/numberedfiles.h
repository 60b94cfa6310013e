// Text files under fixed numbers, and the one routine that replaces a file.
//
// A number stays in use until it is closed, also when the operation that opened it failed in between: the
// next open under it fails. The program's operations rely on that.
#pragma once

#include "host/encoding.h"
#include "host/filestate.h"
#include "host/textsource.h"

#include <QString>

#include <functional>
#include <limits>
#include <map>
#include <optional>

namespace host {

class Replacement;

class NumberedFiles {
public:
    // Opens a text file for reading. Fails with 55 if the number is in use, 53 if there is no such file, 75
    // if it can't be read. The text is read whole; the file itself is never changed by reading.
    void openForInput(int number, const QString &path);

    // The same of a text that stands for the file. Fails with 55.
    void openText(int number, const QString &path, const QString &text);

    // From now on this text is read in the place of the file's, which itself stays as it is.
    void readInstead(const QString &path, const QString &text);

    // The text that openForInput reads. Fails with 53 or 75.
    QString textOf(const QString &path) const;

    // Fail with 52 if the number isn't open, 62 at the end of the text.
    QString readLine(int number);
    QString readField(int number);
    bool atEnd(int number);
    QString rest(int number); // what hasn't been read yet, and stays unread

    void close(int number);
    void closeAll();
    bool isOpen(int number) const;

    // Replaces a text file by what `change` makes of its text. Fails with 55 if the numbers 1 and 2 aren't
    // both free, 53 if there is no such file, 75 if it can't be read or may not be written, else with what
    // the system says.
    //
    // Under a lock on the directory, which a second copy of the program waits for: reads the file, writes the
    // new text to the scratch name beside it, flushes it to the disk, and puts it in the place of the old one
    // in one atomic step. So at any moment the old or the new file is there, whole. The file's encoding, mode
    // and owner are kept, and a link is followed. Whatever fails leaves the old file as it was, and names it.
    // From the reading to the end of the writing both numbers are in use, and a failure in between, one of
    // `change` too, leaves them so; ReadOnlyPlace, with which the program goes on, doesn't.
    void rewrite(const QString &path, const QString &scratchName,
        const std::function<QString(const QString &)> &change);

    // As rewrite, for a file whose old text doesn't matter; it is made if it isn't there.
    void replace(const QString &path, const QString &scratchName, const QString &text);

private:
    struct OpenFile {
        QString path;
        TextSource source;
    };
    OpenFile &open(int number, const char *operation);
    void mustBeFree(int number, const QString &path) const;
    void mustBeFree(const QString &path) const; // both numbers of a rewrite
    void takeNumbers(const QString &path);
    void finish(Replacement &replacement, const DecodedText &text);

    std::map<int, OpenFile> m_open;
    std::map<QString, QString> m_instead; // texts by paths
};

// A file's bytes, the first `most` of them, and the state that they were read in. Fails with 53 or 75.
QByteArray readBytes(const QString &path, qint64 most = std::numeric_limits<qint64>::max(),
    std::optional<FileState> *state = nullptr);

// The bytes of a file; none where there surely is no such file. Fails with 75 where that can't be told.
std::optional<QByteArray> readIfThere(const QString &path);

} // namespace host
