#include "forms/commandbutton.h"

#include "forms/control.h"
#include "forms/plaintext.h"

namespace forms {

CommandButton::CommandButton(QWidget *parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Click.raise(); });
}

void CommandButton::SetCaption(const QString &caption)
{
    m_caption = caption;
    setText(asCaption(caption));
}

void CommandButton::keyPressEvent(QKeyEvent *event)
{
    if (keyCodeOf(*event) != EnterKey) {
        QPushButton::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        click();
}

} // namespace forms
