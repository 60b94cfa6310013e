// Windows that are painted whole, where a part of one would leave lines behind.
#pragma once

#include <QObject>
#include <QSet>

class QWidget;

namespace forms {

// While it lives, a window of which a part was painted is painted whole right after. A Wayland window at a
// factor of the toolkit's own that is no whole number needs it: ahead of painting a part, the toolkit clears
// it in whole pixels of the compositor's, which are larger than the screen's where the compositor enlarges,
// and lines of those stay bare.
class WholeFrames : public QObject {
public:
    // Watches every window of the application; the factor is the toolkit's own.
    explicit WholeFrames(double factor);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    void paintWhole();

    double m_factor;
    QSet<QWidget *> m_parted; // windows
    bool m_painting = false;
};

// Whether a window shown at this ratio, of which the toolkit's own factor is a part, needs it.
bool needsWholeFrames(double ratio, double factor);

} // namespace forms
