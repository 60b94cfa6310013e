// A list from which one entry is selected.
#pragma once

#include "forms/control.h"
#include "forms/entries.h"

#include <QElapsedTimer>
#include <QListView>

#include <functional>

namespace forms {

class Rows;

// Indices count from 0; -1 is no entry. Selecting from code raises Selection, also for the entry selected
// already; so does a press of the left button on an entry, also on the selected one, and a move by the
// keyboard; where none is selected, an arrow selects the entry that the keyboard stands on, and Home and End
// select theirs. The right and the middle button never select, and neither does the pointer moved with a
// button held. Adding, removing and clearing raise nothing. No row is cut off at the bottom: what is left of
// the height stays blank.
class ListBox : public Control<QListView> {
public:
    explicit ListBox(QWidget *parent, bool sorted = false);

    Event<> Selection;

    // Appends, or in a sorted list inserts by upper-cased text, code point by code point, behind its equals.
    // Returns the new entry's index. The selected entry stays selected.
    int AddItem(const QString &text, int itemData = 0);
    void AddItems(const QStringList &texts); // as AddItem of each
    void SetLook(int index, const Look &look);
    void RemoveItem(
        int index); // fails with 5 for an index out of range; removing the selected entry selects none
    void Clear();

    int ListCount() const { return m_entries->count(); }
    QString List(int index) const; // an empty text for an index out of range
    int ItemData(int index) const; // fails with 380 for an index out of range

    int ListIndex() const;
    void SetListIndex(int index); // -1 deselects without an event; fails with 380 out of range,
                                  // but for 0 in an empty list, which does nothing

    QString Text() const; // of the selected entry, empty if there is none
    void SetText(const QString
            &text); // selects the first entry with exactly this text, else deselects without an event

    // A bar along the bottom where an entry is wider than the list. Without one it is cut off.
    void SetHorizontalBar();

    // Whether an entry that is cut off shows as a tip; it does, unless the screen shows it by itself.
    void SetTips(bool tips);

    // For letters typed with which no entry begins as they stand: the index to select, or -1. With one for
    // going on, F4 and Shift+F4 (`back`) select the entry that it gives for the letters typed last.
    std::function<int(const QString &typed)> Find;
    std::function<int(const QString &typed, bool back)> FindNext;

    int LetterWidth() const; // of an entry, that can be seen, in pixels
    int TopIndex() const; // the first entry in view
    QModelIndex indexAt(const QPoint &point) const override;
    // The entry at this point of the client area, in pixels; below the last entry ListCount() is given where
    // that is still inside the control, -1 outside.
    int ItemFromPoint(int x, int y) const;
    // Where it shows, in pixels of the client area; empty for an index out of range.
    QRect RowPlace(int index) const { return visualRect(model()->index(index, 0)); }

protected:
    void keyboardSearch(const QString &letters) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex &index, const QEvent *event) const override;

private:
    enum class Scroll { No, Yes };

    int placeOf(const QString &text) const;
    int currentRow() const { return currentIndex().row(); }
    void setCurrentRow(int row);
    void select(int index, Scroll scroll = Scroll::Yes);
    bool begins(const QString &typed) const;
    void findNext(bool back);
    bool press(const QMouseEvent &event);
    int rowsEnd() const; // of those that have room, in pixels of the client area

    Entries *m_entries;
    bool m_sorted;
    QString m_typed; // without a longer pause
    QElapsedTimer m_sinceTyped;
    Rows *m_rows;
};

} // namespace forms
