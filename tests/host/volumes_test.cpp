#include "disktest.h"

#include "host/volumes.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace host;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

const QByteArray Mounts = "sysfs /sys sysfs rw,nosuid 0 0\n"
                          "proc /proc proc rw 0 0\n"
                          "udev /dev devtmpfs rw 0 0\n"
                          "tmpfs /run tmpfs rw 0 0\n"
                          "/dev/sda2 / ext4 rw,relatime 0 0\n"
                          "tmpfs /tmp tmpfs rw 0 0\n"
                          "/dev/sda1 /boot/efi vfat rw 0 0\n"
                          "/dev/sda3 /home ext4 rw 0 0\n"
                          "/dev/sdb1 /media/ann/OLD\\040GAMES vfat rw 0 0\n"
                          "/dev/sdc1 /run/media/ann/stick exfat rw 0 0\n"
                          "gvfsd-fuse /run/user/1000/gvfs fuse.gvfsd-fuse rw 0 0\n"
                          "ann@host:/games /srv/games fuse.sshfs rw 0 0\n"
                          "server:/export /Net/roms nfs4 rw 0 0\n"
                          "//server/share /mnt/share cifs rw 0 0\n"
                          "/dev/loop3 /snap/core/1 squashfs ro 0 0\n"
                          "/dev/sda2 /etc/hosts ext4 rw 0 0\n";

const QByteArray Table = "# <file system> <mount point> <type> <options>\n"
                         "UUID=11-22 /  ext4\terrors=remount-ro 0 1\n"
                         "UUID=33-44 none swap sw 0 0\n"
                         "/dev/sr0 /media/cdrom0 udf,iso9660 user,noauto 0 0\n"
                         "/dev/fd0 /media/floppy auto rw,users,noauto 0 0\n"
                         "/dev/sdd1 /mnt/backup ext4 noauto 0 0\n"
                         "/dev/sdb1 /media/ann/OLD\\040GAMES vfat user 0 0\n"
                         "broken\n";

} // namespace

TEST(Volumes, AreRootAndHomeAndWhatIsMountedOrMayBeByTheUser)
{
    EXPECT_THAT(volumesIn(Mounts, Table, u"/home/ann"_s),
        ElementsAre(u"/"_s, u"/home/ann"_s, u"/home"_s, u"/media/ann/OLD GAMES"_s, u"/media/cdrom0"_s,
            u"/media/floppy"_s, u"/mnt/share"_s, u"/Net/roms"_s, u"/run/media/ann/stick"_s, u"/srv/games"_s));
}

TEST(Volumes, AHomeOfItsOwnFileSystemComesOnce)
{
    EXPECT_THAT(volumesIn("/dev/sda3 /home/ann ext4 rw 0 0\n", "", u"/home/ann"_s),
        ElementsAre(u"/"_s, u"/home/ann"_s));
    EXPECT_THAT(volumesIn("", "", u"/"_s), ElementsAre(u"/"_s));
}

TEST(Volumes, OfTheUserAreThoseWhoseSourceHoldsFiles)
{
    const auto isOne = [](const QByteArray &sourceAndType) {
        const QList<QByteArray> words = sourceAndType.split(' ');
        return volumesIn(words[0] + " /mnt/x " + words[1] + " rw 0 0\n", "", u"/h"_s).contains(u"/mnt/x"_s);
    };
    for (const char *own : { "/dev/sdb1 ext4", "server:/export nfs", "UUID=1-2 vfat", "LABEL=Games ext4",
             "portal fuse.portal", "tank/games zfs" })
        EXPECT_TRUE(isOne(own)) << own;
    for (const char *kernels :
        { "tmpfs tmpfs", "none overlay", "fusectl fusectl", "fuse fuse", "zfsctl ramfs", "systemd-1 autofs" })
        EXPECT_FALSE(isOne(kernels)) << kernels;
}

TEST(Volumes, OfTheSystemAreItsDirectoriesAndAllBelow_NotThoseThatBeginAlike)
{
    const auto isOne = [](const QString &place) {
        return volumesIn("/dev/sdb1 " + place.toUtf8() + " ext4 rw 0 0\n", "", u"/h"_s).contains(place);
    };
    for (const QString &own :
        { u"/boot"_s, u"/boot/efi"_s, u"/run"_s, u"/run/user/1000"_s, u"/var/lib/x"_s, u"/usr/local"_s,
            u"/snap"_s, u"/efi"_s, u"/dev/x"_s, u"/sys/x"_s, u"/proc/x"_s, u"/etc/hosts"_s })
        EXPECT_FALSE(isOne(own)) << own.toStdString();
    for (const QString &users :
        { u"/bootleg"_s, u"/running"_s, u"/var/games"_s, u"/var/library"_s, u"/usr2"_s, u"/snapshots"_s,
            u"/run/media"_s, u"/run/media/ann/x"_s, u"/development"_s, u"/media"_s })
        EXPECT_TRUE(isOne(users)) << users.toStdString();
    EXPECT_FALSE(isOne(u"/run/mediation"_s));
    EXPECT_FALSE(isOne(u"none"_s)) << "no place at all";
}

TEST(Volumes, NamesKeepTheirBytesAndTheirBackslashes)
{
    EXPECT_THAT(volumesIn("/dev/a /mnt/\xE1\\134b\\ ext4 rw 0 0\n", "", u"/h"_s),
        ElementsAre(u"/"_s, u"/h"_s, QString(u"/mnt/"_s + QChar(0xF7E1) + u"\\b\\"_s)));
}

TEST(Volumes, AreReadyWhileTheyAreMounted)
{
    const auto ready = [](const QString &volume) { return isVolumeReadyIn(Mounts, u"/home/ann"_s, volume); };
    EXPECT_TRUE(ready(u"/"_s));
    EXPECT_TRUE(ready(u"/home/ann"_s));
    EXPECT_TRUE(ready(u"/media/ann/OLD GAMES"_s));
    EXPECT_FALSE(ready(u"/media/cdrom0"_s));
    EXPECT_FALSE(ready(u"/media"_s));
}

TEST(Volumes, APathBelongsToTheLongestThatItLiesIn)
{
    const QStringList volumes { u"/"_s, u"/home/ann"_s, u"/home"_s, u"/media/cd"_s };
    EXPECT_EQ(volumeOf(volumes, u"/home/ann/games"_s), u"/home/ann"_s);
    EXPECT_EQ(volumeOf(volumes, u"/home/ann"_s), u"/home/ann"_s);
    EXPECT_EQ(volumeOf(volumes, u"/home/anna"_s), u"/home"_s);
    EXPECT_EQ(volumeOf(volumes, u"/media/cdrom"_s), u"/"_s);
    EXPECT_EQ(volumeOf(volumes, QString()), u"/"_s);
    EXPECT_EQ(volumeOf({ u"/mnt"_s }, u"/home"_s), QString());
}

TEST(Volumes, OfThisMachineBeginWithRootAndHome)
{
    const QStringList found = volumes();
    ASSERT_GE(found.size(), 2);
    EXPECT_EQ(found[0], u"/"_s);
    EXPECT_EQ(found[1], QDir::homePath());
    EXPECT_THAT(found, Not(Contains(u"/proc"_s)));
    EXPECT_TRUE(isVolumeReady(u"/"_s));
    EXPECT_FALSE(isVolumeReady(u"/nowhere at all"_s));
}

TEST(CompactDiscs, AreKnownByTheirFileSystem)
{
    EXPECT_TRUE(host::isCompactDisc(0x9660, true));
    EXPECT_TRUE(host::isCompactDisc(0x9660, false));
    EXPECT_TRUE(host::isCompactDisc(0x15013346, true));
    EXPECT_FALSE(host::isCompactDisc(0x15013346, false)) << "a disk that can be written";
    EXPECT_FALSE(host::isCompactDisc(0xEF53, true)) << "a read-only ext4";
    EXPECT_FALSE(host::isOnCompactDisc("/"));
    EXPECT_FALSE(host::isOnCompactDisc("/nowhere"));
}
