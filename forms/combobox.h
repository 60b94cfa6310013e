// A drop-down list from which the user can only pick.
#pragma once

#include "forms/control.h"

#include <QComboBox>

namespace forms {

// Indices count from 0; -1 is no entry, as after each Clear, until one is selected. Selecting from code
// raises Selection, also for the entry selected already; so does picking by the user, also of the entry that
// shows. Adding, removing and clearing raise nothing. The wheel acts only while the control has the focus.
class ComboBox : public Control<QComboBox> {
public:
    explicit ComboBox(QWidget *parent, bool sorted = true);

    Event<> Selection;

    int AddItem(const QString &text, int itemData = 0); // as ListBox::AddItem
    void RemoveItem(int index); // as ListBox::RemoveItem
    void Clear();

    int ListCount() const { return count(); }
    QString List(int index) const; // an empty text for an index out of range
    int ItemData(int index) const; // fails with 380 for an index out of range

    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index); // -1 deselects without an event; otherwise fails with 380 out of range

    QString Text() const; // of the selected entry, empty if there is none
    void SetText(const QString
            &text); // selects the first entry with exactly this text; fails with 383 if there is none

protected:
    bool event(QEvent *event) override; // a text that is cut off shows whole as a tip
    void wheelEvent(QWheelEvent *event) override;

private:
    void select(int index);
    bool m_sorted;
};

} // namespace forms
