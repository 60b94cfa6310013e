// True spellings of the entries of one directory, for passes over all of it.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace host {

class Directory;

// As trueSpelling, for paths that begin as the directory does; the directory is found on the disk but once,
// and the names are looked for in one listing. For one pass, then: it doesn't see what is renamed meanwhile.
class NamesIn {
public:
    explicit NamesIn(const QString &directory);

    QString trueSpelling(const QString &path) const;

private:
    QString m_directory;
    QByteArray m_found; // empty where each path has to be found as a whole
    std::shared_ptr<const Directory> m_listing;
};

} // namespace host
