// A button with a caption.
#pragma once

#include "forms/event.h"

#include <QPushButton>

namespace forms {

// Click comes by the left button, by Space, and by Enter while it has the focus. It is never the default:
// Enter elsewhere on the form doesn't press it. A click from code raises Click too. Its caption is its
// accessible name unless the screen sets one; '&' in it stands for itself.
class CommandButton : public QPushButton {
public:
    explicit CommandButton(QWidget *parent);
    Event<> Click;

    QString Caption() const { return m_caption; }
    void SetCaption(const QString &caption);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_caption;
};

} // namespace forms
