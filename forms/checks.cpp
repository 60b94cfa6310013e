#include "forms/checks.h"

namespace forms {

CheckBox::CheckBox(QWidget *parent)
    : QCheckBox(parent)
{
    connect(this, &QCheckBox::toggled, this, [this] { Click.raise(); });
}

void CheckBox::SetValue(int value)
{
    setChecked(value != 0);
}

void CheckBox::keyPressEvent(QKeyEvent *event)
{
    if (keyCodeOf(*event) == EnterKey)
        event->accept();
    else
        QCheckBox::keyPressEvent(event);
}

OptionButton::OptionButton(QWidget *parent)
    : QRadioButton(parent)
{
    connect(this, &QRadioButton::toggled, this, [this](bool set) {
        if (set)
            Click.raise();
    });
}

void OptionButton::SetValue(bool value)
{
    setChecked(value);
}

} // namespace forms
