// A list that leads through the directories: those that lead to the open one, itself, and those in it.
#pragma once

#include "forms/listbox.h"

namespace forms {

// A double click or Enter opens the directory of a row; a single click only marks it. Hidden directories
// don't show. One that can't be read stays closed.
class DirectoryList : public ListBox {
public:
    explicit DirectoryList(QWidget *parent);

    Event<> Change; // another directory is open

    const QString &Path() const { return m_path; } // absolute, without a closing separator but for the root
    // The same in the spelling of the drive that it was entered by, "C:\EMUS", as long as it lies on that.
    QString PathAsEntered() const;
    void SetPath(const QString &path); // fails with 76 if there is no such directory or it can't be read;
                                       // the open one stays then

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addRow(const QString &path, const QString &name, int depth, bool open);
    void fill(const QStringList &subdirectories);
    void openRow(int row);
    void open(const QString &path);

    QString m_path;
    QChar m_drive; // null for none
    QStringList m_paths; // by row
};

} // namespace forms
