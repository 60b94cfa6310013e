#include "forms/entries.h"

#include <iterator>
#include <utility>

namespace forms {

void Entries::setLook(int index, Look look)
{
    m_entries[static_cast<std::size_t>(index)].look = std::make_shared<const Look>(std::move(look));
    Q_EMIT dataChanged(this->index(index), this->index(index));
}

void Entries::insert(int index, std::vector<Entry> entries)
{
    if (entries.empty())
        return;
    beginInsertRows({}, index, index + static_cast<int>(entries.size()) - 1);
    if (m_entries.empty())
        m_entries = std::move(entries);
    else
        m_entries.insert(m_entries.begin() + index, std::make_move_iterator(entries.begin()),
            std::make_move_iterator(entries.end()));
    endInsertRows();
}

void Entries::remove(int index)
{
    beginRemoveRows({}, index, index);
    m_entries.erase(m_entries.begin() + index);
    endRemoveRows();
}

void Entries::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

int Entries::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant Entries::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return entry.text;
    case Qt::DecorationRole:
        return entry.look ? entry.look->picture : QVariant();
    case Qt::ToolTipRole:
        return entry.look ? entry.look->tip : QVariant();
    case Qt::UserRole:
        return entry.itemData;
    default:
        return {};
    }
}

} // namespace forms
