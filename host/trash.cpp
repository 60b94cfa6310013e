#include "host/trash.h"

#include "host/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

bool isOwnDirectory(const QString &path)
{
    struct stat status { };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == geteuid() && access(QFile::encodeName(path).constData(), W_OK | X_OK) == 0;
}

bool haveOwnDirectory(const QString &path)
{
    mkdir(QFile::encodeName(path).constData(), 0700);
    return isOwnDirectory(path);
}

bool haveTrash(const QString &trash)
{
    return haveOwnDirectory(trash) && haveOwnDirectory(trash + u"/files"_s)
        && haveOwnDirectory(trash + u"/info"_s);
}

// The volume's administrator has made it for all users: a real directory with the sticky bit.
bool isSharedTrash(const QString &path)
{
    struct stat status { };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && (status.st_mode & S_ISVTX);
}

bool haveVolumeTrash(const QString &root)
{
    const QString user = QString::number(getuid());
    const QString top = root.endsWith(u'/') ? root : root + u'/';
    const QString shared = top + u".Trash"_s;
    return (isSharedTrash(shared) && haveTrash(shared + u'/' + user)) || haveTrash(top + u".Trash-"_s + user);
}

bool haveHomeTrash()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir().mkpath(data) && haveTrash(data + u"/Trash"_s);
}

} // namespace

bool moveToTrash(const QString &path)
{
    QString spelling = trueSpelling(path);
    while (spelling.size() > 1 && spelling.endsWith(u'/'))
        spelling.chop(1);
    const QFileInfo file(spelling);
    if (spelling.isEmpty() || (!file.exists() && !file.isSymLink()))
        return false;
    // Without a trash directory the toolkit moves the file to a stray place, and reports success.
    const QStorageInfo volume(file.absolutePath());
    const bool atHome = volume == QStorageInfo(QDir::homePath());
    if (!(atHome ? haveHomeTrash() : haveVolumeTrash(volume.rootPath())))
        return false;
    return QFile::moveToTrash(file.absoluteFilePath());
}

} // namespace host
