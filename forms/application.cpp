#include "forms/application.h"

#include "forms/assistance.h"
#include "forms/colours.h"
#include "forms/comboaccess.h"
#include "forms/guard.h"
#include "forms/hold.h"
#include "forms/ownfonts.h"
#include "forms/picturebutton.h"
#include "forms/style.h"
#include "forms/wholeframes.h"
#include "forms/units.h"

#include "host/fontsahead.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QDialog>
#include <QKeyEvent>
#include <QPixmapCache>

#include <utility>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

// How long the other half of a repeat may take. Counted in turns of the event loop too, so that one that was
// there in time isn't missed where the program itself is late.
constexpr int Turns = 3;
constexpr int TurnLength = 10; // milliseconds

class Press final : public QKeyEvent {
public:
    Press(const QKeyEvent &event, bool repeat)
        : QKeyEvent(event)
    {
        m_autoRepeat = repeat;
    }
};

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// The key for menus is one that the toolkit knows by itself; not every keyboard has it.
bool asksForMenu(const QKeyEvent &event)
{
    return event.type() == QEvent::KeyPress && event.key() == Qt::Key_F10
        && event.modifiers() == Qt::ShiftModifier && !event.isAutoRepeat();
}

// As the toolkit does for that key. Returns false where the receiver is none of the controls.
bool askForMenu(QObject *receiver)
{
    auto *control = qobject_cast<QWidget *>(receiver);
    if (!control || QApplication::activePopupWidget())
        return false;
    const QPoint place = control->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, control->mapToGlobal(place));
    QApplication::sendEvent(control, &event);
    return true;
}

bool isInDialog(const QObject *receiver)
{
    const auto *control = qobject_cast<const QWidget *>(receiver);
    return control && qobject_cast<const QDialog *>(control->window());
}

// Those that this program has made itself see to their held buttons themselves.
bool isToolkitsOwn(const QWidget &control)
{
    if (qobject_cast<const QAbstractSlider *>(&control))
        return true;
    return qobject_cast<const QAbstractButton *>(&control) && !dynamic_cast<const PictureButton *>(&control);
}

} // namespace

Application::Application(int &argc, char **argv, host::FontsAhead *fonts)
    : QApplication(argc, argv)
{
    if (fonts)
        fonts->wait();
    setDesktopFileName(u"zembrolix"_s); // so that a desktop finds the icon and the entry of its windows
    addOwnFonts();
    setLook(*this);
    TellAssistantsOfCombos();
    TellAssistantsOfControls();
    setQuitOnLastWindowClosed(false);
    if (platformName().startsWith(u"wayland"))
        m_wholeFrames = std::make_unique<WholeFrames>(qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    m_wait.setInterval(TurnLength);
    m_wait.callOnTimeout(this, [this] {
        if (--m_waits == 0)
            deliverPutOff();
    });
}

Application::~Application() = default;

bool Application::notify(QObject *receiver, QEvent *event)
{
    bool taken = false;
    auto deliverIt = [&] { taken = deliver(receiver, event); };
    guarded(std::ref(deliverIt));
    return taken;
}

void hideTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QTipLabel"))
            window->hide();
    }
}

bool Application::deliver(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return deliverKey(receiver, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        deliverPutOff();
        hold(receiver, static_cast<const QMouseEvent &>(*event));
        break;
    case QEvent::MouseButtonRelease:
        deliverPutOff();
        if (static_cast<const QMouseEvent *>(event)->buttons() == Qt::NoButton)
            m_hold.reset();
        break;
    case QEvent::MouseMove:
    case QEvent::Wheel:
        if (event->spontaneous())
            deliverPutOff();
        break;
    case QEvent::FocusAboutToChange:
        deliverPutOff();
        break;
    case QEvent::ToolTip:
        // There, one on show stays where it came up, whatever it is to say then.
        if (platformName().startsWith(u"wayland"))
            hideTip();
        break;
    default:
        break;
    }
    return QApplication::notify(receiver, event);
}

// A button held as a modal window or a menu opens is let go there. A scroll bar would scroll on for ever.
void Application::hold(QObject *receiver, const QMouseEvent &press)
{
    auto *control = qobject_cast<QWidget *>(receiver);
    if (!control || !isToolkitsOwn(*control))
        return;
    m_hold = std::make_unique<Hold>(*control, [this, control, button = press.button()] {
        m_hold.reset();
        letGo(*control, button);
    });
    connect(control, &QObject::destroyed, m_hold.get(), [this] { m_hold.reset(); });
}

// X tells of a key held down by releases and presses in pairs of one time. The toolkit takes a press for a
// repeat only if the pair lay in its queue together, which on a busy machine it often doesn't; and after such
// a pair it takes the next press for one as well where another program's window got the key's last release.
bool Application::isRepeat(const QKeyEvent &press) const
{
    if (press.nativeScanCode() == 0)
        return press.isAutoRepeat();
    const bool ofAPair = press.nativeScanCode() == m_releasedCode && press.timestamp() == m_released;
    return ofAPair || (press.isAutoRepeat() && platformName() != u"xcb");
}

// A release that the toolkit doesn't take for half of a repeat is put off until the other half would be here.
bool Application::deliverRelease(QObject *receiver, QKeyEvent *event)
{
    deliverPutOff();
    m_released = event->timestamp();
    m_releasedCode = event->nativeScanCode();
    const bool mayRepeat = m_releasedCode != 0 && !event->isAutoRepeat() && platformName() == u"xcb";
    if (!mayRepeat || !receiver->isWindowType())
        return QApplication::notify(receiver, event);
    putOff(receiver, *event);
    event->accept();
    return true;
}

void Application::putOff(QObject *receiver, const QKeyEvent &release)
{
    m_putOff.reset(release.clone());
    m_putOffFor = receiver;
    m_waits = Turns;
    m_wait.start();
}

void Application::deliverPutOff()
{
    m_wait.stop();
    const std::unique_ptr<QKeyEvent> release = std::exchange(m_putOff, nullptr);
    if (release && m_putOffFor)
        QApplication::notify(m_putOffFor, release.get());
}

bool Application::deliverKey(QObject *receiver, QKeyEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        m_shutBy = 0;
        return deliverRelease(receiver, event);
    }
    if (m_putOff && event->nativeScanCode() == m_releasedCode && event->timestamp() == m_released)
        m_putOff.reset();
    deliverPutOff();
    const bool repeat = isRepeat(*event);
    if (repeat != event->isAutoRepeat()) {
        Press press(*event, repeat);
        const bool taken = deliverKey(receiver, &press);
        event->setAccepted(press.isAccepted());
        return taken;
    }
    // Enter that has opened a box of the desktop must not answer it.
    if (event->type() == QEvent::KeyPress && repeat && isEnter(*event) && isInDialog(receiver)) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride)
        return deliverOverride(receiver, event);
    if (m_shutBy != 0 && event->key() == m_shutBy) {
        event->accept();
        return true;
    }
    if (asksForMenu(*event) && askForMenu(receiver)) {
        event->accept();
        return true;
    }
    return QApplication::notify(receiver, event);
}

// A drop-down list takes the key that picks here already, and is shut by the time that the press comes, which
// what lies below would take for its own.
bool Application::deliverOverride(QObject *receiver, QKeyEvent *event)
{
    const bool open = activePopupWidget() != nullptr;
    const QPointer<QWidget> list = activePopupWidget();
    if (!event->isAutoRepeat())
        m_shutBy = 0;
    const bool taken = QApplication::notify(receiver, event);
    if (open && !(list && list->isVisible()))
        m_shutBy = event->key();
    return taken;
}

void setLook(QApplication &application)
{
    Q_UNUSED(application)
    QApplication::setStyle(new Style);
    setColours();
    QApplication::setFont(arial(8.25));
    // The style would keep its pictures by the palette of a control, and each form that opens has new ones:
    // what it kept for those before would never be found again. Drawing them takes no longer.
    QPixmapCache::setCacheLimit(0);
}

} // namespace forms
