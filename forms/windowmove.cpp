#include "forms/windowmove.h"

#include "forms/control.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

// Lives from the press to the release.
class Follower final : public QObject {
public:
    explicit Follower(QWidget &handle)
        : QObject(&handle)
        , m_window(*handle.window())
        , m_fromPointer(m_window.pos() - QCursor::pos())
    {
        handle.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove)
            follow(static_cast<const QMouseEvent &>(*event));
        else if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonPress)
            deleteLater();
        return false;
    }

private:
    void follow(const QMouseEvent &move)
    {
        if (move.buttons() == Qt::NoButton)
            deleteLater();
        else
            m_window.move(move.globalPosition().toPoint() + m_fromPointer);
    }

    QWidget &m_window;
    const QPoint m_fromPointer;
};

} // namespace

void MoveWindow(QWidget &handle, int button)
{
    const bool systemSeesRelease = button == LeftButton || QGuiApplication::platformName() != u"xcb";
    QWindow *window = handle.window()->windowHandle();
    if (!systemSeesRelease || !window || !window->startSystemMove())
        new Follower(handle);
}

} // namespace forms
