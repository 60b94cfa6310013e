// The rows of every list, painted so that their letters are whole at any scale.
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

namespace forms {

// A row's edges lie between two of the screen's dots where the scale isn't whole, and its letters may be a
// dot higher than it is: the toolkit's own rows cut off what reaches over. These stand their letters on a
// whole dot, and leave them whole; of a list that paints its grounds first, and its letters then, also where
// the neighbour is the selected one. Dots frame the row that the keys would move from, so that of several
// lists the user sees which one has the focus; they leave the letters out. An entry that is cut off at the
// right shows whole as a tip, unless the row has one of its own.
class Rows final : public QStyledItemDelegate {
public:
    enum class Height {
        OfTheFont, // so that code that reckons with the height of a line meets the rows
        WithRoom // of a list that drops down: the keys' row is the one to be picked, long ones end in dots
    };
    enum class Layer { Grounds, Letters, Both };
    struct Reach { // of the letters from their base line, in the screen's dots
        int above = 0;
        int below = 0;
    };

    Rows(Height height, QObject *parent);

    void SetLayer(Layer layer) { m_layer = layer; } // of what is painted from now on
    void SetTips(bool tips) { m_tips = tips; } // false: none of those cut off
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    QStyleOptionViewItem rowOf(const QStyleOptionViewItem &option, const QModelIndex &index) const;
    const Reach &reachOf(const QFont &font, qreal scale) const;

    Height m_height;
    Layer m_layer = Layer::Both;
    bool m_tips = true;
    mutable QFont m_font; // what was measured last
    mutable qreal m_scale = 0;
    mutable Reach m_reach;
};

} // namespace forms
