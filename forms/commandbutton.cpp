#include "forms/commandbutton.h"

#include "forms/control.h"

using namespace Qt::StringLiterals;

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
    setText(QString(caption).replace(u'&', u"&&"_s));
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
