#include "forms/hold.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace forms {

Hold::Hold(QWidget &control, std::function<void()> lost)
    : m_control(control)
    , m_lost(std::move(lost))
{
    // The application's: what opens a menu is told to the menu alone.
    QCoreApplication::instance()->installEventFilter(this);
}

bool Hold::eventFilter(QObject *receiver, QEvent *event)
{
    if (m_lost && isLostBy(receiver, *event))
        std::exchange(m_lost, nullptr)();
    return false;
}

bool Hold::isLostBy(const QObject *receiver, const QEvent &event) const
{
    switch (event.type()) {
    case QEvent::WindowBlocked:
    case QEvent::Hide:
        return receiver == &m_control;
    case QEvent::EnabledChange:
        return receiver == &m_control && !m_control.isEnabled();
    case QEvent::Show: {
        const auto *window = qobject_cast<const QWidget *>(receiver);
        return window && window->windowType() == Qt::Popup;
    }
    default:
        return false;
    }
}

QMouseEvent releaseOutside(const QWidget &control, Qt::MouseButton button)
{
    const QPointF outside(-1, -1);
    return { QEvent::MouseButtonRelease, outside, control.mapToGlobal(outside), button, Qt::NoButton,
        Qt::NoModifier };
}

void letGo(QWidget &control, Qt::MouseButton button)
{
    QMouseEvent release = releaseOutside(control, button);
    // Not sent: the button may still be held, and the parents have no part in it.
    QObject &receiver = control;
    receiver.event(&release);
}

} // namespace forms
