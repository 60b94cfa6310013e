// Texts from outside, where the toolkit would read marks in them: they show letter by letter as they are.
// Labels, lists and text boxes read none.
#pragma once

#include <QString>

class QWidget;

namespace forms {

// Of a control or of a row: it would be taken for HTML, which loads files. Of one without end it is the
// beginning.
QString asTip(const QString &text);
QString asTipOfLines(const QString &text); // a long one on several lines, broken at its blanks
QString asCaption(const QString &text); // of a button: '&' would mark an accelerator

// Of a window: "[*]" would be the place of a mark. Of one that no bar shows whole it is the beginning, and
// dots: window managers and task bars get it as it is.
QString asTitle(const QString &text);

// The tip of a control, which assistive programs are told as its description; an empty text takes both away.
void SetTip(QWidget &control, const QString &text);

// The tip of a control that no word stands beside: its accessible name, and its key where it has one.
// Assistive programs say the name already, and are told the key alone.
void SetTipOfName(QWidget &control, const QString &key = {});

} // namespace forms
