// Lengths of files, for passes over a whole directory.
#pragma once

#include "host/filestate.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace host {

class Descriptor;
class Directory;

// As fileLength, for paths that begin as the directory does; the directory is found on the disk but once, and
// once a name isn't there as it is spelled, the names are looked for in one listing first. For one pass,
// then: it doesn't see what is renamed meanwhile.
class LengthsIn {
public:
    explicit LengthsIn(const QString &directory);

    // Length in bytes. Fails with 53.
    qint64 operator()(const QString &path) const;

    // As those of the directory with each name behind it, in their order, up to the first that fails. Many
    // are asked for at once.
    QList<qint64> ofAll(const QStringList &names) const;

    // True if a listing of the directory tells that the file is there, without a look at the file itself: a
    // directory that can be listed but not entered has no lengths. False proves nothing.
    bool lists(const QString &path) const;

    // The states of these files, which all begin as the directory does, by which what they hold is known
    // again; none of what is no entry of the directory itself, and shortly after a change. Fails with 53 as
    // the lengths do. Many are asked for at once.
    std::vector<std::optional<FileState>> states(const QStringList &paths) const;

private:
    bool leadsToFile(const QString &spelling, struct stat &status) const;
    const Directory *listing() const;
    std::optional<FileState> state(const QString &path) const;
    QStringList spellings(const QStringList &names) const;
    bool look(const QString &name, struct stat &status) const;
    bool isEntry(const QString &name) const;
    QString spelling(const QString &name) const;

    QString m_directory;
    QByteArray m_found; // empty where each path has to be found as a whole
    std::shared_ptr<const Descriptor> m_opened; // the directory found: looks from there take half the time
    mutable std::shared_ptr<const Directory> m_listing;
    mutable bool m_listed = false; // m_listing is null where that failed
};

} // namespace host
