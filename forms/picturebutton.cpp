#include "forms/picturebutton.h"

#include "forms/focusframe.h"
#include "forms/pictures.h"
#include "forms/sharp.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

namespace forms {

PictureButton::PictureButton(const QString &atRest, const QString &pressed, QWidget *parent)
    : QAbstractButton(parent)
    , m_pressedName(pressed)
    , m_artwork(atRest)
    , m_pressedArtwork(pressed)
{
    setObjectName(atRest);
    setFocusPolicy(Qt::TabFocus);
    // The toolkit's own press and release, which assistive programs start; mouse and keys don't come this
    // way.
    connect(this, &QAbstractButton::pressed, this, [this] {
        if (!ShowsPressed())
            press(By::Other);
    });
    connect(this, &QAbstractButton::clicked, this, [this] { release(); });
}

void PictureButton::SetArtwork(const QString &atRest, const QString &pressed)
{
    m_artwork = atRest;
    m_pressedArtwork = pressed;
    update();
}

void PictureButton::SetPlace(const Place &place, int pressedWidth)
{
    m_growth = pressedWidth == 0 ? 0 : pixels(pressedWidth) - pixels(place.width);
    forms::move(*this, place);
    if (ShowsPressed())
        resize(width() + m_growth, height());
}

void PictureButton::showPicture(By pressedBy)
{
    const bool wasPressed = ShowsPressed();
    m_pressedBy = pressedBy;
    if (ShowsPressed() != wasPressed)
        resize(width() + (wasPressed ? -m_growth : m_growth), height());
    repaint();
}

void PictureButton::press(By means)
{
    showPicture(means);
    Press.raise();
}

void PictureButton::release()
{
    m_hold.reset();
    if (!ShowsPressed())
        return;
    showPicture(By::Nothing);
    Release.raise();
}

void PictureButton::cancel()
{
    m_keyHeld = false;
    m_hold.reset();
    if (!ShowsPressed())
        return;
    showPicture(By::Nothing);
    Cancel.raise();
}

void PictureButton::paintEvent(QPaintEvent *event)
{
    const QString &name = ShowsPressed() ? m_pressedArtwork : m_artwork;
    QPainter painter(this);
    drawPart(painter, event->region(), artwork(name, size(), devicePixelRatioF()));
    drawFocusFrame(painter, *this);
}

void PictureButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    // A press whose release got lost doesn't count as held.
    const bool held =
        m_pressedBy == By::Mouse && event->button() != m_button && (event->buttons() & m_button);
    if (held || m_pressedBy == By::Other)
        return;
    m_button = event->button();
    m_hold = std::make_unique<Hold>(*this, [this] { cancel(); });
    press(By::Mouse);
}

void PictureButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void PictureButton::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (m_pressedBy == By::Mouse && event->button() == m_button)
        release();
}

void PictureButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        event->ignore();
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || ShowsPressed())
        return;
    const QPointer<PictureButton> self(this);
    press(By::Other);
    if (!self)
        return;
    m_keyHeld = hasFocus();
    // Where the press has moved the focus on, the key's release goes there.
    if (!m_keyHeld)
        release();
}

void PictureButton::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        event->ignore();
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || !m_keyHeld)
        return;
    m_keyHeld = false;
    release();
}

void PictureButton::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    if (m_keyHeld)
        cancel();
}

void PictureButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        cancel();
}

bool PictureButton::event(QEvent *event)
{
    // A press by the keyboard would act when its time is over.
    if (event->type() == QEvent::WindowBlocked)
        cancel();
    return QAbstractButton::event(event);
}

void PictureButton::hideEvent(QHideEvent *event)
{
    QAbstractButton::hideEvent(event);
    cancel();
}

} // namespace forms
