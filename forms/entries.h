// The entries of a list, in the form that the toolkit's views ask for: one block of plain values, for lists
// of thousands.
#pragma once

#include <QAbstractListModel>
#include <QPixmap>
#include <QString>

#include <memory>
#include <vector>

namespace forms {

struct Look {
    QPixmap picture; // at the left of the text
    QString tip;
};

struct Entry {
    QString text;
    int itemData = 0;
    std::shared_ptr<const Look> look; // none in most lists
};

// Indices count from 0 and have to be in range.
class Entries : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int count() const { return static_cast<int>(m_entries.size()); }
    const Entry &at(int index) const { return m_entries[static_cast<std::size_t>(index)]; }

    void setLook(int index, Look look);
    void insert(int index, std::vector<Entry> entries);
    void remove(int index);
    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<Entry> m_entries;
};

} // namespace forms
