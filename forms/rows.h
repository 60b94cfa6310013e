// The rows of every list, painted so that their letters are whole at any scale.
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

namespace forms {

// A row's edges lie between two of the screen's dots where the scale isn't whole, and its letters may be a
// dot higher than it is: the toolkit's own rows cut off what reaches over. These stand their letters on a
// whole dot, and leave them whole; of a list that paints its grounds first, and its letters then, also where
// the neighbour is the selected one. Dots frame the row that the keys would move from, so that of several
// lists the user sees which one has the focus; they leave the letters out.
class Rows final : public QStyledItemDelegate {
public:
    enum class Height {
        OfTheFont, // so that code that reckons with the height of a line meets the rows
        WithRoom
    };
    enum class Layer { Grounds, Letters, Both };
    struct Reach { // of the letters from their base line, in the screen's dots
        int above = 0;
        int below = 0;
    };

    Rows(Height height, QObject *parent);

    void SetLayer(Layer layer) { m_layer = layer; } // of what is painted from now on
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const Reach &reachOf(const QFont &font, qreal scale) const;

    Height m_height;
    Layer m_layer = Layer::Both;
    mutable QFont m_font; // what was measured last
    mutable qreal m_scale = 0;
    mutable Reach m_reach;
};

} // namespace forms
