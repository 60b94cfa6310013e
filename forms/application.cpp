#include "forms/application.h"

#include "forms/comboaccess.h"
#include "forms/guard.h"
#include "forms/shownpart.h"
#include "forms/units.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

class Style final : public QProxyStyle {
public:
    Style()
        : QProxyStyle(u"fusion"_s)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returned) const override
    {
        // A drop-down list drops down, and doesn't lay itself over the control as a menu.
        if (hint == SH_ComboBox_Popup)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

    // Of texts without end only what can be seen is measured and painted.
    void drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette, bool enabled,
        const QString &text, QPalette::ColorRole role) const override
    {
        QProxyStyle::drawItemText(painter, place, flags, palette, enabled, shownPart(text), role);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override
    {
        if (const auto *row = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
            const QStyleOptionViewItem shown = shownRow(*row);
            QProxyStyle::drawControl(element, &shown, painter, widget);
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
        const QWidget *widget) const override
    {
        if (const auto *row = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
            const QStyleOptionViewItem shown = shownRow(*row);
            return QProxyStyle::sizeFromContents(type, &shown, size, widget);
        }
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

private:
    static QStyleOptionViewItem shownRow(const QStyleOptionViewItem &row)
    {
        QStyleOptionViewItem shown = row;
        shown.text = shownPart(row.text);
        return shown;
    }
};

// All of it, so that nothing of the desktop's theme shows through.
QPalette ownPalette()
{
    const QColor face(212, 212, 208);
    const QColor grey(128, 128, 128);
    const QColor paper = colourFromNumber(0x80000005);
    const QColor ink = colourFromNumber(0x80000012);
    const QColor marked(0, 64, 128);

    QPalette palette(ink, face, Qt::white, grey, QColor(160, 160, 160), ink, Qt::white, paper, face);
    palette.setColor(QPalette::Button, face);
    palette.setColor(QPalette::Midlight, face.lighter(110));
    palette.setColor(QPalette::Shadow, QColor(64, 64, 64));
    palette.setColor(QPalette::AlternateBase, paper);
    palette.setColor(QPalette::Highlight, marked);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 192));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, grey);
    palette.setColor(QPalette::Link, marked);
    palette.setColor(QPalette::LinkVisited, marked);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, grey);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, grey);
    return palette;
}

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

bool isInDialog(const QObject *receiver)
{
    const auto *control = qobject_cast<const QWidget *>(receiver);
    return control && qobject_cast<const QDialog *>(control->window());
}

} // namespace

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setLook(*this);
    TellAssistantsOfCombos();
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    bool taken = false;
    auto deliverIt = [&] { taken = deliver(receiver, event); };
    guarded(std::ref(deliverIt));
    return taken;
}

bool Application::deliver(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return deliverKey(receiver, static_cast<QKeyEvent *>(event));
    default:
        return QApplication::notify(receiver, event);
    }
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

bool Application::deliverKey(QObject *receiver, QKeyEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        m_released = event->timestamp();
        m_releasedCode = event->nativeScanCode();
        return QApplication::notify(receiver, event);
    }
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
    return QApplication::notify(receiver, event);
}

void setLook(QApplication &application)
{
    Q_UNUSED(application)
    QApplication::setStyle(new Style);
    QApplication::setPalette(ownPalette());
    QApplication::setFont(arial(8.25));
    // The style would keep its pictures by the palette of a control, and each form that opens has new ones:
    // what it kept for those before would never be found again. Drawing them takes no longer.
    QPixmapCache::setCacheLimit(0);
}

} // namespace forms
