// The drives of other systems: letters that stand for places on this disk.
//
// "Zembro.uni" beside the executable names them, one line a drive, "C=/home/ana/oldc", in any case and with
// blanks around either; "~/" is the user's home, and a place that isn't absolute counts from the executable's
// directory. Where there is no such file they are those of the user's
// Wine prefix.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace host {

struct Drive {
    QChar letter; // upper case
    QString place; // absolute, without a closing separator but for the root; it may be missing
};

// In the order of letters. Looked up anew where the file or the prefix has changed.
const std::vector<Drive> &drives();

// Lets these drives count until the object goes, whatever the file says.
class OtherDrives {
public:
    explicit OtherDrives(std::vector<Drive> drives);
    ~OtherDrives();
    OtherDrives(const OtherDrives &) = delete;
    OtherDrives &operator=(const OtherDrives &) = delete;

private:
    std::vector<Drive> m_drives;
    const std::vector<Drive> *m_before;
};

// The letter, in upper case, of a path that begins with a letter and a colon; null for any other. Whether
// there is such a drive is another matter.
QChar driveLetter(QStringView path);

// The drive of this letter, null if there is none.
const Drive *driveNamed(QChar letter);

// Whether the path means the same place from every directory: it begins with a separator, or on a drive that
// there is.
bool isAbsolute(QStringView path);

// A path on the disk, absolute and in its spelling there, as the drive has it, "C:\EMUS\NES", its place as
// "C:\". The path itself where it lies elsewhere, or can't be said so.
QString spelledOnDrive(QChar letter, const QString &path);

// The drives that a text names, places that aren't absolute from `base` on. Of two lines for a letter the
// first counts; a line that names none is passed over.
std::vector<Drive> drivesIn(const QString &text, const QString &base);

// The line that names it, without an end; empty where none can, as its place holds a line's end.
QString lineOf(const Drive &drive);

// The user's Wine prefix, absolute: $WINEPREFIX, else ".wine" in the home.
QString winePrefix();

// The drives of a Wine prefix; none if there is no such prefix.
const std::vector<Drive> &drivesOfWine(const QString &prefix);

} // namespace host
