// Windows that are painted whole, where a part of one would leave lines behind.
#pragma once

#include <QObject>
#include <QSet>

class QImage;
class QPaintEvent;
class QSize;
class QWidget;

namespace forms {

// While it lives, a window of which a part was painted is painted whole right after. A Wayland window at a
// factor of the toolkit's own that is no whole number needs it: ahead of painting a part, the toolkit clears
// it in whole pixels of the compositor's, which are larger than the screen's where the compositor enlarges,
// and lines of those stay bare.
//
// Controls begin and end within a pixel there. What the toolkit takes for opaque it leaves out of what lies
// below, piece by piece, and rounds each piece by itself: a pixel between two would stay bare. So no control
// counts as opaque, and each ground is painted here. And a window ends within a pixel of the compositor's:
// what its picture holds beyond its own size shows too, and gets the colours beside it; a tip, whose last
// line would be cut where the window ends ahead of it, gets larger.
class WholeFrames : public QObject {
public:
    // Watches every window of the application; the factor is the toolkit's own.
    explicit WholeFrames(double factor);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    bool paint(QWidget &widget, QPaintEvent &event);
    void paintAgainLater(QWidget &window);
    void paintWhole();

    double m_factor;
    QSet<QWidget *> m_parted; // windows
    bool m_painting = false;
    bool m_lengthening = false; // a window is painted whose edges come next
};

// Whether a window shown at this ratio, of which the toolkit's own factor is a part, needs it.
bool needsWholeFrames(double ratio, double factor);

// The least size, from this one on, of which the factor makes no fewer pixels than it asks for: the toolkit
// rounds to the nearest.
QSize uncut(QSize size, double factor);

// What lies to the right of the window's size and below it, in pixels of the picture, gets the colours of the
// window's last column and row.
void lengthenEdges(QImage &picture, const QSize &window);

} // namespace forms
