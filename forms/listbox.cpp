#include "forms/listbox.h"

#include "forms/rows.h"

#include "host/failure.h"
#include "host/letters.h"

#include <QApplication>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

bool isMouseEvent(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return true;
    default:
        return false;
    }
}

} // namespace

ListBox::ListBox(QWidget *parent, bool sorted)
    : Control(parent)
    , m_entries(new Entries(this))
    , m_sorted(sorted)
{
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_rows = new Rows(Rows::Height::OfTheFont, this);
    setItemDelegate(m_rows);
    viewport()->setMouseTracking(true);
    setModel(m_entries);
}

void ListBox::SetHorizontalBar()
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setUniformItemSizes(false); // else all count for as wide as one of them
}

void ListBox::SetTips(bool tips)
{
    m_rows->SetTips(tips);
}

int ListBox::rowsEnd() const
{
    const int height = viewport()->height();
    return height - height % fontMetrics().height();
}

QModelIndex ListBox::indexAt(const QPoint &point) const
{
    return point.y() < rowsEnd() ? Control::indexAt(point) : QModelIndex();
}

// Neighbours share the dots at their edges, and what one of them leaves there the other has to paint anew.
void ListBox::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    Control::selectionChanged(selected, deselected);
    viewport()->update();
    // Only what comes from neither mouse nor keys nor code gets here: an assistive program's selection. The
    // last step: its handler may destroy the list.
    if (!signalsBlocked() && ListIndex() >= 0)
        Selection.raise();
}

void ListBox::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    Control::currentChanged(current, previous);
    viewport()->update();
}

void ListBox::scrollContentsBy(int dx, int dy)
{
    Control::scrollContentsBy(dx, dy);
    viewport()->update();
}

void ListBox::paintEvent(QPaintEvent *event)
{
    // Letters may hang over the row's edge: with a row its neighbours are painted.
    const int row = fontMetrics().height();
    QPaintEvent rows(event->rect().adjusted(0, -row, 0, row) & QRect(0, 0, viewport()->width(), rowsEnd()));
    for (const Rows::Layer layer : { Rows::Layer::Grounds, Rows::Layer::Letters }) {
        m_rows->SetLayer(layer);
        Control::paintEvent(&rows);
    }
}

void ListBox::focusInEvent(QFocusEvent *event)
{
    viewport()->update();
    Control::focusInEvent(event); // the last step: its handler may destroy the list
}

void ListBox::focusOutEvent(QFocusEvent *event)
{
    Control::focusOutEvent(event);
    viewport()->update();
}

int ListBox::placeOf(const QString &text) const
{
    int first = 0;
    int last = ListCount();
    while (first < last) {
        const int middle = (first + last) / 2;
        if (host::compareNames(text, m_entries->at(middle).text) < 0)
            last = middle;
        else
            first = middle + 1;
    }
    return first;
}

int ListBox::AddItem(const QString &text, int itemData)
{
    const int row = m_sorted ? placeOf(text) : ListCount();
    const QSignalBlocker quiet(this);
    m_entries->insert(row, { { text, itemData, nullptr } });
    return row;
}

void ListBox::AddItems(const QStringList &texts)
{
    if (m_sorted) {
        for (const QString &text : texts)
            AddItem(text);
        return;
    }
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString &text : texts)
        entries.push_back({ text, 0, nullptr });
    const QSignalBlocker quiet(this);
    m_entries->insert(ListCount(), std::move(entries));
}

void ListBox::SetLook(int index, const Look &look)
{
    m_entries->setLook(index, look);
}

void ListBox::RemoveItem(int index)
{
    if (index < 0 || index >= ListCount())
        throw host::Failure(host::InvalidArgument, u"remove a list entry"_s, QString::number(index));
    const QSignalBlocker quiet(this);
    // Else the selection would go to a neighbour.
    if (index == ListIndex())
        setCurrentRow(-1);
    m_entries->remove(index);
}

void ListBox::Clear()
{
    const QSignalBlocker quiet(this);
    m_entries->clear();
}

QString ListBox::List(int index) const
{
    return index >= 0 && index < ListCount() ? m_entries->at(index).text : QString();
}

int ListBox::ItemData(int index) const
{
    if (index < 0 || index >= ListCount())
        throw host::Failure(host::InvalidProperty, u"read a list entry's number"_s, QString::number(index));
    return m_entries->at(index).itemData;
}

int ListBox::ListIndex() const
{
    // Not the current row: that one may be the place of the keyboard only.
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::SetListIndex(int index)
{
    if (index == 0 && ListCount() == 0)
        return;
    if (index < -1 || index >= ListCount())
        throw host::Failure(host::InvalidProperty, u"select a list entry"_s, QString::number(index));
    select(index);
}

QString ListBox::Text() const
{
    return List(ListIndex());
}

void ListBox::SetText(const QString &text)
{
    int index = 0;
    while (index < ListCount() && m_entries->at(index).text != text)
        ++index;
    select(index < ListCount() ? index : -1);
}

int ListBox::LetterWidth() const
{
    // The margin that the rows leave free at their left.
    return viewport()->width() - (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
}

int ListBox::TopIndex() const
{
    return std::max(indexAt(QPoint(0, 0)).row(), 0);
}

int ListBox::ItemFromPoint(int x, int y) const
{
    const QPoint point(x, y);
    if (!viewport()->rect().contains(point))
        return -1;
    const QModelIndex index = indexAt(point);
    return index.isValid() ? index.row() : ListCount();
}

void ListBox::setCurrentRow(int row)
{
    selectionModel()->setCurrentIndex(m_entries->index(row), QItemSelectionModel::ClearAndSelect);
}

void ListBox::select(int index, Scroll scroll)
{
    {
        const QSignalBlocker quiet(this);
        setAutoScroll(scroll == Scroll::Yes);
        setCurrentRow(index);
        setAutoScroll(true);
    }
    if (index >= 0)
        Selection.raise();
}

void ListBox::mousePressEvent(QMouseEvent *event)
{
    press(*event);
    event->accept();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (press(*event) && event->button() == Qt::LeftButton)
        DblClick.raise();
    event->accept();
}

// Returns whether the list still exists.
bool ListBox::press(const QMouseEvent &event)
{
    const QPointer<QObject> self(this);
    MouseDown.raise(mouseOf(event));
    if (!self || event.button() != Qt::LeftButton || !isEnabled())
        return self;
    const QModelIndex index = indexAt(event.position().toPoint());
    // No scrolling to a row half in view: the second press of a double click would meet another row.
    if (index.isValid())
        select(index.row(), Scroll::No);
    return self;
}

void ListBox::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton) {
        Control::mouseMoveEvent(event);
        return;
    }
    MouseMove.raise(heldMouseOf(*event));
    event->accept();
}

// Where the toolkit's own search has found nothing. It counts a letter typed again for a step to the next
// entry.
bool ListBox::begins(const QString &typed) const
{
    const bool again = typed.count(typed.front()) == typed.size();
    const QString beginning = again ? typed.first(1) : typed;
    for (int i = 0; i < ListCount(); ++i) {
        if (m_entries->at(i).text.startsWith(beginning, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

void ListBox::keyboardSearch(const QString &letters)
{
    Control::keyboardSearch(letters);
    if (!Find || letters.isEmpty())
        return;
    const bool goesOn =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() <= QApplication::keyboardInputInterval();
    m_typed = goesOn ? m_typed + letters : letters;
    m_sinceTyped.start();
    const int found = begins(m_typed) ? -1 : Find(m_typed);
    if (found >= 0)
        setCurrentRow(found);
}

void ListBox::findNext(bool back)
{
    const int found = m_typed.isEmpty() ? -1 : FindNext(m_typed, back);
    if (found >= 0 && found != ListIndex())
        select(found);
}

void ListBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F4 && FindNext && !(event->modifiers() & ~Qt::ShiftModifier)) {
        event->accept();
        findNext(event->modifiers() == Qt::ShiftModifier);
        return;
    }
    if (keyCodeOf(*event) != 0) {
        Control::keyPressEvent(event);
        return;
    }
    const int before = ListIndex();
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (before < 0 && arrow && currentRow() >= 0) {
        event->accept();
        select(currentRow());
        return;
    }
    {
        const QSignalBlocker quiet(this);
        Control::keyPressEvent(event);
    }
    const int after = ListIndex();
    const bool toAnEnd = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    if (after < 0 && toAnEnd && currentRow() >= 0)
        select(currentRow()); // the keyboard stood there already
    else if (after >= 0 && after != before)
        Selection.raise();
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(
    const QModelIndex &index, const QEvent *event) const
{
    // The presses select by themselves; moves and releases never do.
    if (event && isMouseEvent(*event))
        return QItemSelectionModel::NoUpdate;
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear;
}

} // namespace forms
