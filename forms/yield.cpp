#include "forms/yield.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScopeGuard>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>

namespace forms {

namespace {

// Sees whether anything at all is delivered while it lives.
class Witness final : public QObject {
public:
    Witness() { qApp->installEventFilter(this); }

    bool hasSeen() const { return m_seen; }

protected:
    bool eventFilter(QObject *, QEvent *) override
    {
        m_seen = true;
        return false;
    }

private:
    bool m_seen = false;
};

// A turn of the event loop may handle one kind of event only, so it takes turns until nothing is left. The
// time stops it where there is always something, as with a timer of no interval.
void handlePending(QEventLoop::ProcessEventsFlags flags)
{
    constexpr int LongestMilliseconds = 50;
    QCoreApplication::processEvents(flags, LongestMilliseconds);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // The toolkit puts painting off by a timer.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->isVisible())
            continue;
        QEvent paint(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &paint);
    }
}

bool yielding = false;

} // namespace

bool IsYielding()
{
    return yielding;
}

void DoEvents()
{
    if (yielding) {
        DoEventsWithoutInput();
        return;
    }
    yielding = true;
    const auto over = qScopeGuard([] { yielding = false; });
    handlePending(QEventLoop::AllEvents);
}

void DoEventsWithoutInput()
{
    handlePending(QEventLoop::ExcludeUserInputEvents);
    QAbstractEventDispatcher::instance()->wakeUp();
}

void WaitForEvents(int descriptor, int milliseconds)
{
    const Witness witness;
    QTimer over;
    over.setSingleShot(true);
    over.setTimerType(Qt::PreciseTimer);
    over.start(milliseconds);
    QSocketNotifier readable(QSocketNotifier::Read);
    if (descriptor >= 0) {
        readable.setSocket(descriptor);
        QObject::connect(
            &readable, &QSocketNotifier::activated, &readable, [&readable] { readable.setEnabled(false); });
        readable.setEnabled(true);
    }

    // What is pending already doesn't keep the loop from waiting for more, so it gets a turn of its own.
    QCoreApplication::processEvents();
    while (!witness.hasSeen() && over.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace forms
