#include "forms/directorylist.h"

#include "forms/pieces.h"
#include "forms/plaintext.h"

#include "host/drives.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int FolderSize = 12; // pixels
constexpr int Indent = 6; // pixels for each level
constexpr auto Root = '/';

QString joined(const QString &directory, const QString &name)
{
    return (directory.endsWith(Root) ? directory : directory + Root) + name;
}

// A folder as far in as its level.
QPixmap folder(const QWidget &widget, int depth, bool open)
{
    const qreal ratio = widget.devicePixelRatioF();
    const int indent = Indent * depth;
    QPixmap picture((QSizeF(indent + FolderSize, FolderSize) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawFolder(painter, { indent, 0, FolderSize, FolderSize }, open);
    return picture;
}

} // namespace

DirectoryList::DirectoryList(QWidget *parent)
    : ListBox(parent)
{
    SetHorizontalBar();
}

void DirectoryList::SetPath(const QString &path)
{
    open(path);
    const host::Drive *drive = host::driveNamed(host::driveLetter(path));
    m_drive = drive ? drive->letter : QChar();
}

QString DirectoryList::PathAsEntered() const
{
    return m_drive.isNull() ? m_path : host::spelledOnDrive(m_drive, m_path);
}

void DirectoryList::open(const QString &path)
{
    const QString found = host::directoryPath(path);
    const QStringList subdirectories = host::listDirectories(found);
    if (found == m_path)
        return;
    m_path = found;
    fill(subdirectories);
    Change.raise();
}

void DirectoryList::fill(const QStringList &subdirectories)
{
    Clear();
    m_paths.clear();
    addRow(QChar(Root), QChar(Root), 0, true);
    int depth = 0;
    for (const QString &name : m_path.split(QChar(Root), Qt::SkipEmptyParts))
        addRow(joined(m_paths.last(), name), name, ++depth, true);
    for (const QString &name : subdirectories)
        addRow(joined(m_path, name), name, depth + 1, false);
    SetListIndex(depth);
    // As much as there is room for of what lies within, but the open one in any case.
    scrollTo(model()->index(ListCount() - 1, 0));
    scrollTo(model()->index(depth, 0));
}

void DirectoryList::addRow(const QString &path, const QString &name, int depth, bool open)
{
    m_paths += path;
    SetLook(AddItem(name), { folder(*this, depth, open), asTip(path) });
}

void DirectoryList::openRow(int row)
{
    if (row < 0)
        return;
    try {
        open(QString(m_paths[row]));
    } catch (const host::Failure &) {
        // Not for this user's eyes, or gone meanwhile.
    }
}

void DirectoryList::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int row = indexAt(event->position().toPoint()).row();
    ListBox::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        openRow(row);
}

void DirectoryList::keyPressEvent(QKeyEvent *event)
{
    if (keyCodeOf(*event) != EnterKey) {
        ListBox::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        openRow(ListIndex());
}

} // namespace forms
