// Paths of the host: both separators, any case, short forms, the listings behind them.
//
// A path is kept as it was typed. Handed to the host it is found as spelled or, component by component, in
// any case (exact spelling first, then the order of upper-cased code, ties by bytes), or by its short form;
// where nothing fits, once more without the points and blanks at a component's end. A path that begins on a
// drive that there is ("C:\EMUS", host/drives.h) stands below that drive's place; one on any other is a name
// with a colon.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <functional>

namespace host {

// Index of the last separator of either kind, -1 if there is none.
qsizetype lastSeparator(QStringView path);

// The separator that the program adds to this path: a backslash if it holds one and no slash, else a slash.
QChar separatorOf(QStringView path);

// The path with a closing separator of its own kind; an empty path and one that has its separator stay as
// they are.
QString withClosingSeparator(const QString &path);

// The true spelling on the disk of an existing path, as bytes for the system; empty if there is no such path.
// Relative paths stand in the working directory. A closing separator is kept as '/', and then only a
// directory fits. A backslash separates too, unless it is part of a name that is there. Links are not
// followed in the spelling.
QByteArray findOnDisk(const QString &path);

// For a path that may be about to be made: the directory part as found, the last component as found or, if
// there is none, as spelled. Without a closing separator. Empty if the directory doesn't exist.
QByteArray findForWriting(const QString &path);

// As findOnDisk, as text.
QString trueSpelling(const QString &path);

// The absolute path of an existing directory in its true spelling, without a closing separator but for the
// root.
// "." and ".." are resolved, links aren't. Fails with 76 if there is no such directory.
QString directoryPath(const QString &path);

// The short form of an existing path: absolute, each component in lower case, its blanks and inner points as
// '_', so without blanks and with at most one point a component. A name that has this form already is its own
// short form; the others that collide with it get ~2, ~3 ... ahead of the point. Keeps a closing separator.
// Empty if there is no such path, or only a link that leads nowhere. A pure function of what lies in the
// directories; findOnDisk of a short form is the path's own file. A component ".." stays, a "." goes.
QString GetShortPathNameA(const QString &path);

// Whether there is such a path; a link that leads nowhere is none.
bool exists(const QString &path);

// Attributes of an existing path: 16 a directory (a link to one is none), 1 added where the owner can't
// write, 2 added for a hidden name. Fails with 53 if there is no such path, or only a link that leads
// nowhere.
int attributes(const QString &path);
enum Attribute : int { ReadOnlyAttribute = 1, HiddenAttribute = 2, DirectoryAttribute = 16 };

// Clears every attribute that can be cleared: the owner may write again. Follows no link. Fails with 53.
void clearAttributes(const QString &path);

// Length in bytes of an existing file. Fails with 53, for a directory too.
qint64 fileLength(const QString &path);

// The plain files of a directory, without path, or its sub-directories, by name only. Links are followed to
// see what they are; hidden names, broken links, sockets and the like are left out. In the order of names,
// ties by bytes. An empty path and one that can't be listed fail with 76.
QStringList listFiles(const QString &directory);
QStringList listDirectories(const QString &directory);

// The names of listFiles that fit the pattern: "*.*" fits all, "*.lng" all with that ending in any case; '*'
// stands for any characters, '?' for one; several patterns are separated by ';'.
QStringList listFiles(const QString &directory, const QString &pattern);
bool fitsPattern(QStringView name, const QString &pattern);

// The plain files of a directory, as listFiles, that fit the pattern or that the user may execute.
QStringList listPrograms(const QString &directory, const QString &pattern);

// Files and sub-directories together, in the same order; what listFiles leaves out is left out here too.
QStringList listFilesAndDirectories(const QString &directory);

// The plain files of a directory, hidden ones included and links left out: what deleteFiles takes, but for
// those that their owner may not write. Fails with 76.
QStringList listPlainFiles(const QString &directory);

// The names of all the entries of a directory, "." and ".." apart, in the order in which the disk lists them.
// Fails with 76.
QByteArrayList listInDiskOrder(const QString &directory);

void makeDirectory(const QString &path, int mode = 0777); // fails with 75 or 76, also if it exists
void removeDirectory(const QString &path); // fails with 75 or 76; only an empty one goes

// Deletes the plain files that lie in the directory itself: hidden ones too, but no sub-directories, no
// links, no file that its owner may not write. With names, only the files of exactly these names. Files that
// can't be deleted are left. Fails with 5 if the path isn't absolute, 76 if there is no such directory, or a
// link in its place.
void deleteFiles(const QString &directory);
void deleteFiles(const QString &directory, const QStringList &names);

// Deletes one file; of a link to one, the link. Fails with 53 if there is no such path, 75 if it is or leads
// to a directory, if its owner may not write it, or if it can't be deleted.
void deleteFile(const QString &path);

void changeDirectory(const QString &path); // fails with 76
QString currentDirectory(); // empty if it has been deleted

// The directory of the executable, without a closing separator, read anew at each call.
QString executableDirectory();

// The directory of the program's files: the executable's own, unless another is set. An empty path puts the
// executable's own back.
QString programDirectory();
void setProgramDirectory(const QString &path);

// The path of a file beside the executable: the program's directory, a slash, the name.
QString programFile(const QString &name);

// The directory for temporary files, closed by a separator: $TMPDIR, else /tmp, if it belongs to this user
// alone; in a shared one a directory of the user's own in it, named after the program and the user's id, mode
// 0700, made if it isn't there. Empty if that is somebody else's, or a link, or can't be made.
QString temporaryPath(const QString &program);

// Removes the user's own directory of temporaryPath if it is empty; a directory that was there for others
// stays.
void tidyTemporaryPath(const QString &program);

} // namespace host
