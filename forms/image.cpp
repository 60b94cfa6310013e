#include "forms/image.h"

#include "forms/focusframe.h"
#include "forms/pictures.h"
#include "forms/sharp.h"

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

#include <cstdlib>
#include <cstring>
#include <utility>

namespace forms {

namespace {

// Smoothed over the place, which seldom holds a whole number of the screen's pixels, a picture that was made
// for them would blur.
bool isMadeFor(QPainter &painter, const QRect &place, const QPixmap &picture)
{
    const QSize rest = Sharp(painter, place).place().size() - picture.size();
    return std::abs(rest.width()) <= 1 && std::abs(rest.height()) <= 1;
}

// Of an opaque picture that has no other one, as the black of a set that is off: it needs no stretching,
// which the toolkit does anew at each painting.
std::optional<QColor> onlyColour(const QPixmap &picture)
{
    constexpr qsizetype Pixel = 4;
    const QImage image = picture.toImage();
    if (image.format() != QImage::Format_RGB32
        || std::memcmp(image.constBits(), image.constBits() + Pixel, image.sizeInBytes() - Pixel) != 0)
        return std::nullopt;
    return image.pixelColor(0, 0);
}

} // namespace

Image::Image(QWidget *parent)
    : Control(parent)
{
    setMouseTracking(true);
}

void Image::SetPicture(const QPixmap &picture)
{
    if (m_artwork.isEmpty() && picture.cacheKey() == m_picture.cacheKey())
        return;
    m_picture = picture;
    m_onlyColour = onlyColour(picture);
    m_artwork.clear();
    update();
}

void Image::SetArtwork(const QString &name)
{
    if (name == m_artwork)
        return;
    m_picture = {};
    m_onlyColour.reset();
    m_artwork = name;
    update();
}

void Image::SetBorder(bool single)
{
    m_border = single;
    update();
}

void Image::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_artwork.isEmpty())
        drawPart(painter, event->region(), artwork(m_artwork, size(), devicePixelRatioF()));
    else if (m_onlyColour)
        painter.fillRect(rect(), *m_onlyColour);
    else if (!m_picture.isNull() && isMadeFor(painter, rect(), m_picture))
        drawUnscaled(painter, rect(), m_picture);
    else if (!m_picture.isNull())
        painter.drawPixmap(rect(), m_picture);
    if (m_border) {
        painter.setPen(Qt::black);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (focusPolicy() & Qt::TabFocus)
        drawFocusFrame(painter, *this);
}

bool Image::isSpace(const QKeyEvent &event) const
{
    return event.key() == Qt::Key_Space && (focusPolicy() & Qt::TabFocus);
}

void Image::keyPressEvent(QKeyEvent *event)
{
    if (!isSpace(*event)) {
        Control::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || m_held != 0)
        return;
    m_held = LeftButton;
    MouseDown.raise(Mouse { LeftButton });
}

void Image::keyReleaseEvent(QKeyEvent *event)
{
    if (!isSpace(*event)) {
        Control::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || m_held == 0)
        return;
    const QPointer<QObject> self(this);
    letGo();
    if (self)
        Click.raise();
}

void Image::focusOutEvent(QFocusEvent *event)
{
    Control::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        letGo();
}

void Image::mousePressEvent(QMouseEvent *event)
{
    const QPointer<QObject> self(this);
    m_held = mouseOf(*event).button;
    Control::mousePressEvent(event);
    // A menu that the press has opened took the release.
    if (self && !QGuiApplication::mouseButtons().testFlag(event->button()))
        m_held = 0;
}

void Image::mouseReleaseEvent(QMouseEvent *event)
{
    m_held = 0;
    Control::mouseReleaseEvent(event);
}

void Image::wheelEvent(QWheelEvent *event)
{
    if (!Wheel.hasHandler()) {
        Control::wheelEvent(event);
        return;
    }
    event->accept();
    Wheel.raise(*event);
}

bool Image::event(QEvent *event)
{
    const bool shutOff = event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked
        || (event->type() == QEvent::EnabledChange && !isEnabled());
    const QPointer<QObject> self(this);
    const bool taken = Control::event(event);
    if (self && shutOff)
        letGo();
    return taken;
}

void Image::loseMouse()
{
    letGo();
    Control::loseMouse();
}

void Image::letGo()
{
    const int button = std::exchange(m_held, 0);
    if (button != 0)
        MouseUp.raise(Mouse { button });
}

} // namespace forms
