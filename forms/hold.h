// A mouse button held on a control, whose release may go elsewhere.
#pragma once

#include <QMouseEvent>
#include <QObject>

#include <functional>

class QWidget;

namespace forms {

// Lives from the press to the release. Calls back, once, when the release won't come to the control: a modal
// window has shut it off, a menu or a drop-down list takes the mouse, or it was hidden or disabled. The
// callback may destroy it.
class Hold final : public QObject {
public:
    Hold(QWidget &control, std::function<void()> lost);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    bool isLostBy(const QObject *receiver, const QEvent &event) const;

    QWidget &m_control;
    std::function<void()> m_lost;
};

// Gives a control of the toolkit's the release that won't come: it is at rest then, without having acted.
void letGo(QWidget &control, Qt::MouseButton button);

// That release: outside the control, where a button doesn't act on it.
QMouseEvent releaseOutside(const QWidget &control, Qt::MouseButton button);

} // namespace forms
