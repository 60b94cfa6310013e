// A window of the program: built and loaded at first touch, shown modally or not, destroyed at closing.
#pragma once

#include "forms/event.h"
#include "forms/units.h"

#include <QPixmap>
#include <QScopeGuard>
#include <QWidget>

#include <functional>
#include <memory>

namespace forms {

// With a border, it draws an edge of its own where no window manager frames it.
class Form : public QWidget {
public:
    enum class Border { None, FixedSingle, FixedWithCloseBox };

    // Name, client size in twips and border; not shown yet. The title bar, where there is one, has no
    // buttons but the box for closing, where there is that.
    Form(const QString &name, int clientWidth, int clientHeight, Border border);
    ~Form() override;

    QString Caption() const;
    void SetCaption(const QString &caption);

    // Height and width with the frame, in twips: 375 more than the client's height, 90 more than its width.
    void SetOuterHeight(int height);
    void SetOuterWidth(int width);
    void SetClientSize(int width, int height);

    // Shows the form over its owner (centred over it; on the screen if there is none), and returns when it
    // has closed. The other screens get no input until then. Where a handler of the form still works after
    // it was closed, the call that showed it waits for that; another one meanwhile shows the form again for
    // the waiting one, and returns at once.
    void ShowModal(QWidget *owner);

    // Shows the form and returns at once.
    void ShowModeless(QWidget *owner);

    // Shows a form without border over its owner, centred, and returns at once. It takes neither the focus
    // nor the mouse: who holds a button keeps it.
    void ShowAside(QWidget &owner);

    // Closes a form shown modally: ShowModal returns. The holder destroys it.
    void Unload();

    void SetBackColour(const QColor &colour);
    // Paints the picture over the whole client area in rows and columns, the last ones also if half outside.
    void SetTile(const QPixmap &tile, int width, int height); // size of the picture in twips
    void SetBackground(const QString &artworkName); // one drawing of the client's size

    // The control of this name, a picture pair under either of its names; null if there is none.
    QWidget *Control(const QString &name) const;

    Event<> KeyEnter; // Enter, where no control took it
    Event<const struct Mouse &> MouseMove; // over the form's own surface
    // The window manager's or the desktop's wish to close the form. Without a handler the wish is
    // ignored on a form without a title bar, and closes one that has one.
    Event<> CloseWished;

protected:
    bool event(QEvent *event) override; // an accelerator held down fires once
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintTile(QPainter &painter) const;

    struct State;
    std::unique_ptr<State> m_state;
};

// The one instance of a form: made when it is first touched, gone after Unload, and made anew then.
template <class F> class FormHolder {
public:
    explicit FormHolder(std::function<std::unique_ptr<F>()> make)
        : m_make(std::move(make))
    {
    }

    F &operator*() { return *touch(); }
    F *operator->() { return touch(); }
    bool isLoaded() const { return m_form != nullptr; }

    // Shows it modally, and destroys it when it has closed; within another such call, that one destroys it.
    void ShowModal(QWidget *owner)
    {
        if (m_shown) {
            touch()->ShowModal(owner);
            return;
        }
        m_shown = true;
        const auto destroy = qScopeGuard([this] {
            m_shown = false;
            m_form.reset();
        });
        touch()->ShowModal(owner);
    }
    void Unload() { m_form.reset(); }

private:
    F *touch()
    {
        if (!m_form)
            m_form = m_make();
        return m_form.get();
    }

    std::function<std::unique_ptr<F>()> m_make;
    std::unique_ptr<F> m_form;
    bool m_shown = false; // modally
};

} // namespace forms
