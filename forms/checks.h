// Check boxes and option buttons.
#pragma once

#include "forms/control.h"

#include <QCheckBox>
#include <QRadioButton>

namespace forms {

// Click comes when the value changes, by the user or by code.
class CheckBox : public QCheckBox {
public:
    explicit CheckBox(QWidget *parent);
    Event<> Click;

    int Value() const { return isChecked() ? 1 : 0; }
    void SetValue(int value);

protected:
    void keyPressEvent(QKeyEvent *event) override; // Enter is nothing here, and not the form's either
};

class OptionButton : public QRadioButton {
public:
    explicit OptionButton(QWidget *parent);
    Event<> Click; // when it turns set, and when code sets it; not when another takes over

    bool Value() const { return isChecked(); }
    void SetValue(bool value);
};

} // namespace forms
