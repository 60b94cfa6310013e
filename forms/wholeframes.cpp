#include "forms/wholeframes.h"

#include <QApplication>
#include <QEvent>
#include <QScopeGuard>
#include <QTimer>
#include <QWidget>

#include <cmath>
#include <utility>

namespace forms {

WholeFrames::WholeFrames(double factor)
    : m_factor(factor)
{
    qApp->installEventFilter(this);
}

bool WholeFrames::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() != QEvent::Paint || m_painting || !receiver->isWidgetType())
        return false;
    QWidget *window = static_cast<QWidget *>(receiver)->window();
    if (!needsWholeFrames(window->devicePixelRatioF(), m_factor))
        return false;
    if (m_parted.isEmpty())
        QTimer::singleShot(0, this, [this] { paintWhole(); });
    m_parted.insert(window);
    return false;
}

void WholeFrames::paintWhole()
{
    m_painting = true;
    const auto over = qScopeGuard([this] { m_painting = false; });
    const QSet<QWidget *> parted = std::exchange(m_parted, {});
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) { // some may be gone
        if (parted.contains(window))
            window->repaint();
    }
}

bool needsWholeFrames(double ratio, double factor)
{
    const double ofCompositor = factor > 0 ? std::round(ratio / factor) : 1;
    return factor != std::floor(factor) && ofCompositor > 1;
}

} // namespace forms
