// The one routine that replaces a file. At any moment the old or the new file stands in its place, whole.
#pragma once

#include "host/plainfile.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

// What two of its failures say was being done; the second one is the end of it.
inline const QString ChangedMeanwhile =
    QStringLiteral("rewrite a file that another program has changed meanwhile");
inline const QString KeptLocked = QStringLiteral(" has kept its directory locked for 10 seconds");

// From its making to its end it holds the lock on the directory, which other copies of the program wait for.
// What it fails with names the path as it was typed. A scratch file that it made doesn't outlive it.
class Replacement {
public:
    // A link in the file's place is followed: the lock, the scratch file and the last step are all in the
    // directory of what it leads to. Fails with 76 if there is no such directory, 5 if the scratch name is no
    // name beside it, 70 if another keeps the lock for more than ten seconds.
    Replacement(const QString &path, const QString &scratchName);
    Replacement(const Replacement &) = delete;
    Replacement &operator=(const Replacement &) = delete;
    ~Replacement();

    // The bytes of the file; none if it doesn't exist. Comes before write. Fails with 75 if it can't be read.
    std::optional<QByteArray> read();

    // Writes the bytes to the scratch file, whatever lay there, and flushes them to the disk. Fails with 75
    // if the old file may not be written, else with what the system says; as ReadOnlyPlace where nothing may
    // be written in the directory.
    void write(const QByteArray &bytes);

    // Puts the scratch file in the place of the old one. Fails with 75 if either isn't the one any more that
    // was written or read: where a directory can't be locked, another copy may be at work on them.
    void commit();

private:
    void lock();
    void makeScratch();
    void mustBeAsRead() const;
    void mustBeAsWritten() const;
    bool look(const QByteArray &name, struct stat &status) const; // false, with errno
    bool mayBeWritten() const;
    [[noreturn]] void failForbidden() const; // of the file or of its directory
    [[noreturn]] void failIn(const QString &operation) const; // as fail, of the directory in plain words
    [[noreturn]] void fail(const QString &operation) const; // with errno

    QString m_path;
    QByteArray m_name; // within the directory
    QByteArray m_scratchName;
    Descriptor m_directory;
    Descriptor m_scratch;
    std::optional<PlainFile> m_old; // without its bytes
    bool m_scratchStands = false;
};

// Whether a rewrite of this file would fail as nothing can be written in its directory; a link is followed,
// as there.
bool liesInReadOnlyPlace(const QString &path);

} // namespace host
