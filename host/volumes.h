// The volumes that a user browses: the root, the home, and what is mounted, or may be, apart from the
// system's own.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace host {

// Absolute paths without a closing separator: "/", the home, then the mount points in the order of names,
// those of mounted file systems and those that the table of file systems lets a user mount; and the drives
// (host/drives.h), "C:". Without the file systems that belong to the system (those of the kernel, boot
// partitions, run-time directories other than those of media).
QStringList volumes();

// The same from the texts of the two tables, as the kernel and the administrator write them.
QStringList volumesIn(const QByteArray &mounts, const QByteArray &table, const QString &home);

// True for "/" and the home, for a mount point while something is mounted there, and for a drive whose place
// is there.
bool isVolumeReady(const QString &volume);
bool isVolumeReadyIn(const QByteArray &mounts, const QString &home, const QString &volume);

// Whether it lies on a compact disc, or on a picture of one that is mounted; a place where nobody can write
// is none yet.
bool isOnCompactDisc(const QByteArray &path);
// The same by what statfs tells: the file system's magic number, and whether nothing can be written there.
bool isCompactDisc(long fileSystem, bool readOnly);

// The volume that the path belongs to: the longest of them that it lies in or is. Empty if there is none.
QString volumeOf(const QStringList &volumes, const QString &path);

} // namespace host
