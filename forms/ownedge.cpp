#include "forms/ownedge.h"

#include "forms/pieces.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

// On Wayland there always is one: the compositor's or the toolkit's own.
bool hasFrame(const QWidget &window)
{
    const QWindow *handle = window.windowHandle();
    return !handle || !handle->frameMargins().isNull()
        || QGuiApplication::platformName().startsWith(u"wayland"_s);
}

} // namespace

void drawOwnEdge(QPainter &painter, const QWidget &window)
{
    if (!hasFrame(window))
        drawFrame(painter, window.rect(), window.palette().color(QPalette::Dark));
}

bool OwnEdge::eventFilter(QObject *window, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(window);
    if (widget && event->type() == QEvent::Paint) {
        QPainter painter(widget);
        drawOwnEdge(painter, *widget);
    }
    return false;
}

} // namespace forms
