// Lengths of files, for passes over a whole directory.
#pragma once

#include <QByteArray>
#include <QString>

namespace host {

// As fileLength, for paths that begin as the directory does; the directory is found on the disk but once.
class LengthsIn {
public:
    explicit LengthsIn(const QString &directory);

    // Length in bytes. Fails with 53.
    qint64 operator()(const QString &path) const;

private:
    QString m_directory;
    QByteArray m_found; // empty where each path has to be found as a whole
};

} // namespace host
