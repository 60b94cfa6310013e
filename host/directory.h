// One reading of a directory: its names in their order, found in any case or by their short form. Readings
// are kept and used again while the directory stands unchanged. For the host's own files only.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace host {

class Descriptor;

class Directory {
public:
    struct Entry {
        QString name;
        unsigned char type; // of the entry itself, as readdir tells it: one of the DT_ values
    };

    // The directory as it is now; null if there is none, or it can't be read.
    static std::shared_ptr<const Directory> at(const QByteArray &path);

    // As at, always from the disk. The descriptor stays open, at its end.
    static std::shared_ptr<const Directory> of(const Descriptor &descriptor);

    // How many directories were read from the disk since the program began.
    static int readings();

    explicit Directory(std::vector<Entry> entries);

    // In the order of names, ties by bytes, without "." and "..".
    const std::vector<Entry> &entries() const { return m_entries; }

    // The entry of this name, else the first that has it in any case, else the one that has this short form,
    // or else one of an old disk, whose bytes are no UTF-8 and read so by Windows's code page; spelled as it
    // is. Empty if there is none.
    QString find(const QString &name) const;

    // True if what find gives was a plain file at the reading; false also where the reading didn't tell.
    bool holdsFile(const QString &name) const;

    // The short form of an entry; any other name stays as it is.
    QString shortForm(const QString &name) const;

private:
    std::size_t placeOf(const QString &name) const;
    const Entry *named(const QString &name) const;
    bool isAloneWith(const QString &name, const QString &plain) const;
    bool mayBeShortForm(const QString &name) const;
    void nameShortForms() const;
    QString findOld(const QString &name) const;

    std::vector<Entry> m_entries;
    mutable QHash<QString, QString> m_shortForms; // by name, of those whose form isn't the name itself
    mutable QHash<QString, QString> m_byShortForm; // by upper-cased form
    mutable bool m_shortFormsNamed = false;
    mutable QHash<QString, QString> m_byOldName; // by upper-cased text
    mutable bool m_oldNamed = false;
    mutable std::size_t m_next = 0; // behind the one found last and its equals
};

// A directory's own entry, also where the path is closed: behind a slash the system would follow a link.
QByteArray withoutClosing(QByteArray path);

// A path with the slash between that it needs; none behind no directory at all.
QByteArray joined(const QByteArray &directory, const QByteArray &name);

// The bytes of a directory's entry that this name stands for; empty if there is none. Points and blanks at
// the end of a name that isn't there don't count.
QByteArray entryFor(const QByteArray &directory, const QString &name);

} // namespace host
