// A text on the screen.
#pragma once

#include "forms/control.h"

#include <QLabel>
#include <QPointer>

#include <functional>
#include <optional>

namespace forms {

class WholeText;

// Transparent, one line or wrapped as its place allows. A caption wider than its place grows into the free
// room around it, about its point of alignment, up to the next visible control or the parent's edge, never
// over either.
class Label : public Control<QLabel> {
public:
    explicit Label(QWidget *parent);

    QString Caption() const { return text(); }
    void SetCaption(const QString &caption); // nothing is posted if it stands already
    void SetForeColor(const QColor &colour); // nothing is posted if it stands already
    QColor ForeColor() const;
    void SetPlace(const Place &place); // the place of the design, from which the label grows
    // false: a caption too long for its place is clipped, behind its last whole line, and is the tip
    void SetGrowing(bool growing);
    void SetRoom(const Place &room); // beyond this part of its parent it doesn't grow
    // A caption that has no room even so is painted as the function gives it back, which asks what fits. The
    // caption itself stays whole, and shows so under the pointer.
    using Fits = std::function<bool(const QString &)>;
    void SetShortening(std::function<QString(const QString &, const Fits &)> shorten);
    QString Shown() const { return m_shown; } // what is painted
    void Redraw(); // at once

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void grow();
    std::optional<QString> clipped() const;
    void shorten();
    void showWhole();
    void hideWhole();

    bool m_growing = true;
    QRect m_room; // in pixels; none: all of the parent
    std::function<QString(const QString &, const Fits &)> m_shorten;
    QString m_shown;
    QPointer<WholeText> m_whole; // of the window, made when it is first shown
    QRect m_place; // of the design, in pixels
    QRect m_grown; // where the label was put last; anything else was set from outside and is a new design
};

} // namespace forms
