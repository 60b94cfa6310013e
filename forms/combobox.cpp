#include "forms/combobox.h"

#include "forms/comboaccess.h"
#include "forms/plaintext.h"
#include "forms/rows.h"
#include "forms/shownpart.h"
#include "forms/styleparts.h"

#include "host/failure.h"
#include "host/letters.h"

#include <QHelpEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace forms {

ComboBox::ComboBox(QWidget *parent, bool sorted)
    : Control(parent)
    , m_sorted(sorted)
{
    // Not the wheel's focus: turning it over the control would select.
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setItemDelegate(new Rows(Rows::Height::WithRoom, this));
    // The last of the signals of a pick: the handler may destroy the control. It comes for the entry that
    // shows, too.
    connect(this, &QComboBox::textActivated, this, [this] { Selection.raise(); });
    connect(this, &QComboBox::currentIndexChanged, this, [this] { TellOfEntry(*this); });
}

int ComboBox::AddItem(const QString &text, int itemData)
{
    int first = 0;
    int last = m_sorted ? count() : 0;
    while (first < last) {
        const int middle = (first + last) / 2;
        if (host::compareNames(text, itemText(middle)) < 0)
            last = middle;
        else
            first = middle + 1;
    }
    const int row = m_sorted ? first : count();
    const int selected = currentIndex();
    const QSignalBlocker quiet(this);
    insertItem(row, text, itemData);
    // The first entry of all gets selected by itself.
    setCurrentIndex(selected < row ? selected : selected + 1);
    return row;
}

void ComboBox::RemoveItem(int index)
{
    if (index < 0 || index >= count())
        throw host::Failure(
            host::InvalidArgument, u"remove an entry of a drop-down list"_s, QString::number(index));
    const QSignalBlocker quiet(this);
    // Else the selection would go to a neighbour.
    if (index == currentIndex())
        setCurrentIndex(-1);
    removeItem(index);
    if (currentIndex() < 0)
        TellOfEntry(*this);
}

void ComboBox::Clear()
{
    const QSignalBlocker quiet(this);
    clear();
    TellOfEntry(*this);
}

QString ComboBox::List(int index) const
{
    return itemText(index);
}

int ComboBox::ItemData(int index) const
{
    if (index < 0 || index >= count())
        throw host::Failure(host::InvalidProperty, u"read the number of an entry"_s, QString::number(index));
    return itemData(index).toInt();
}

void ComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= count())
        throw host::Failure(
            host::InvalidProperty, u"select an entry of a drop-down list"_s, QString::number(index));
    select(index);
}

QString ComboBox::Text() const
{
    return List(currentIndex());
}

void ComboBox::SetText(const QString &text)
{
    int index = 0;
    while (index < count() && itemText(index) != text)
        ++index;
    if (index == count())
        throw host::Failure(host::PropertyNotSettable, u"set the text of a drop-down list"_s, text);
    select(index);
}

void ComboBox::select(int index)
{
    {
        const QSignalBlocker quiet(this);
        setCurrentIndex(index);
    }
    TellOfEntry(*this);
    if (index >= 0)
        Selection.raise();
}

bool ComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return Control::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (shownInCombo(option, *style(), this) == shownPart(option.currentText))
        return Control::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), asTipOfLines(Text()), this);
    return true;
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        Control::wheelEvent(event);
    else
        event->ignore();
}

} // namespace forms
