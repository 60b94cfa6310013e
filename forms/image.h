// A picture on the screen, stretched to its place.
#pragma once

#include "forms/control.h"

#include <QColor>
#include <QPixmap>
#include <QWheelEvent>
#include <QWidget>

#include <optional>

namespace forms {

// Also a container: a television set is an image with controls in it. A click gives it the focus only where
// the screen sets a focus policy. One that takes the focus by Tab shows it, and Space is the press and the
// release of the left button. Hidden, disabled or shut off by a modal window under a held button, or where a
// menu takes the mouse, it raises the release at once: the real one goes elsewhere.
class Image : public Control<QWidget> {
public:
    explicit Image(QWidget *parent);

    Event<const QWheelEvent &> Wheel; // without a handler the wheel is the parent's

    void SetPicture(const QPixmap &picture); // stretched to the image's size
    void SetArtwork(const QString &name); // drawn at the image's size
    const QPixmap &Picture() const { return m_picture; }
    void SetBorder(bool single); // a single dark line inside its edge

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool event(QEvent *event) override;
    void loseMouse() override;

private:
    void letGo();
    bool isSpace(const QKeyEvent &event) const;

    int m_held = 0; // the button that is pressed on it, by the mouse or by Space; 0: none
    QPixmap m_picture;
    std::optional<QColor> m_onlyColour; // of the picture
    QString m_artwork;
    bool m_border = false;
};

} // namespace forms
