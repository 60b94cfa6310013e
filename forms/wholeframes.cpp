#include "forms/wholeframes.h"

#include <QApplication>
#include <QBackingStore>
#include <QPaintEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <cmath>
#include <utility>

namespace forms {

namespace {

constexpr auto Ground = "paintsGround";

bool isWhole(double factor)
{
    return factor == std::floor(factor);
}

void makeTransparent(QWidget &control)
{
    control.setAttribute(Qt::WA_OpaquePaintEvent, false);
    if (!control.autoFillBackground())
        return;
    control.setProperty(Ground, true);
    control.setAutoFillBackground(false);
}

void paintGround(QWidget &control)
{
    QPainter(&control).fillRect(control.rect(), control.palette().brush(control.backgroundRole()));
}

// Another image of the same pixels: the one on which the toolkit paints is clipped while it does.
void lengthenEdgesOf(const QWidget &window)
{
    QBackingStore *store = window.backingStore();
    if (!store || !window.windowHandle()->isExposed())
        return;
    auto *painted = dynamic_cast<QImage *>(store->paintDevice());
    if (!painted || painted->depth() != 32)
        return;
    QImage picture(
        painted->bits(), painted->width(), painted->height(), painted->bytesPerLine(), painted->format());
    lengthenEdges(picture, (QSizeF(window.size()) * painted->devicePixelRatio()).toSize());
}

} // namespace

WholeFrames::WholeFrames(double factor)
    : m_factor(factor)
{
    qApp->installEventFilter(this);
}

bool WholeFrames::eventFilter(QObject *receiver, QEvent *event)
{
    if (!receiver->isWidgetType())
        return false;
    auto &widget = static_cast<QWidget &>(*receiver);
    if (event->type() == QEvent::Polish && !isWhole(m_factor) && !widget.isWindow())
        makeTransparent(widget);
    if (event->type() == QEvent::Resize && !isWhole(m_factor) && widget.windowType() == Qt::ToolTip)
        widget.resize(uncut(widget.size(), m_factor));
    return event->type() == QEvent::Paint && paint(widget, static_cast<QPaintEvent &>(*event));
}

bool WholeFrames::paint(QWidget &widget, QPaintEvent &event)
{
    if (widget.property(Ground).toBool())
        paintGround(widget);
    QWidget &window = *widget.window();
    if (m_lengthening || !needsWholeFrames(window.devicePixelRatioF(), m_factor))
        return false;
    if (!m_painting)
        paintAgainLater(window);
    if (&widget != &window)
        return false;
    {
        m_lengthening = true;
        const auto over = qScopeGuard([this] { m_lengthening = false; });
        QCoreApplication::sendEvent(&window, &event);
    }
    lengthenEdgesOf(window);
    return true;
}

void WholeFrames::paintAgainLater(QWidget &window)
{
    if (m_parted.isEmpty())
        QTimer::singleShot(0, this, [this] { paintWhole(); });
    m_parted.insert(&window);
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
    return !isWhole(factor) && ofCompositor > 1;
}

QSize uncut(QSize size, double factor)
{
    constexpr double Nothing = 1e-6; // of a pixel
    const auto isCut = [factor](
                           int length) { return std::round(length * factor) < length * factor - Nothing; };
    while (isCut(size.width()))
        ++size.rwidth();
    while (isCut(size.height()))
        ++size.rheight();
    return size;
}

void lengthenEdges(QImage &picture, const QSize &window)
{
    if (window.isEmpty())
        return;
    for (int x = window.width(); x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y)
            picture.setPixel(x, y, picture.pixel(window.width() - 1, y));
    }
    for (int y = window.height(); y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, picture.pixel(x, window.height() - 1));
    }
}

} // namespace forms
