// Whether a control shows a text whole.
#pragma once

#include "forms/form.h"
#include "forms/label.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>

namespace room {

// The label shows its text whole: within its own place, grown as it is, within its parent, and over no other
// control that shows, apart from one that the design puts beneath it.
testing::AssertionResult showsWhole(const forms::Label &label, const QWidget *beneath = nullptr);

// The button has room for this caption, or the drop-down list for this entry.
testing::AssertionResult takes(const QPushButton &button, const QString &caption);
testing::AssertionResult takes(const QComboBox &combo, const QString &entry);

// A form of this client width in twips has room for this caption in its title bar, beside an icon and a box
// for closing if it has them.
testing::AssertionResult titleTakes(const QString &caption, int width, bool boxes);

// What a form says: its caption, its labels and buttons, and the entries of its drop-down lists.
QStringList textsOf(const forms::Form &form);

// Expects that a form with a box for closing says all of it whole.
void expectWhole(const forms::Form &form);

} // namespace room
