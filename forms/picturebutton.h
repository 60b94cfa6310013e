// A picture pair: a button that shows one picture at rest and another while pressed.
#pragma once

#include "forms/event.h"
#include "forms/hold.h"
#include "forms/units.h"

#include <QAbstractButton>

#include <memory>

namespace forms {

// One widget for both pictures, named after the one at rest. Press and release take any mouse button; the
// release shows the picture at rest and only then acts, wherever the pointer stands. The second press of a
// double click is a press. The focus comes by Tab, never by a click; Space is press and release, and so is
// the press action of assistive programs. Enter is left to the form. While one button holds it, another has
// no effect. Disabled, hidden or shut off by a modal window while pressed, or held by the mouse that a menu
// takes, it goes back to rest and doesn't act.
class PictureButton : public QAbstractButton {
public:
    // Names of the artwork at rest and pressed; they are the names of the pair's two pictures.
    PictureButton(const QString &atRest, const QString &pressed, QWidget *parent);

    Event<> Press; // once the pressed picture shows
    Event<> Release; // once the picture at rest shows again
    Event<> Cancel; // in the place of Release, where the press is taken back

    const QString &PressedName() const { return m_pressedName; }
    void SetArtwork(const QString &atRest, const QString &pressed); // other drawings than those of the names
    bool ShowsPressed() const { return m_pressedBy != By::Nothing; }
    void SetPlace(const Place &place, int pressedWidth = 0); // pressedWidth 0: as at rest

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    enum class By { Nothing, Mouse, Other };

    void press(By means);
    void release();
    void cancel();
    void showPicture(By pressedBy);

    QString m_pressedName;
    QString m_artwork; // at rest
    QString m_pressedArtwork;
    int m_growth = 0; // of the width while pressed, in pixels
    By m_pressedBy = By::Nothing;
    Qt::MouseButton m_button = Qt::NoButton; // the button that pressed it
    bool m_keyHeld = false;
    std::unique_ptr<Hold> m_hold; // by the mouse
};

} // namespace forms
