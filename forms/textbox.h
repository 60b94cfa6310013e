// Boxes to type into, one line or many.
#pragma once

#include "forms/control.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace forms {

class TextBox : public Control<QLineEdit> {
public:
    explicit TextBox(QWidget *parent);

    QString Text() const { return text(); }
    void SetText(const QString &value) { setText(value); }
};

class TextArea : public Control<QPlainTextEdit> {
public:
    explicit TextArea(QWidget *parent);

    QString Text() const { return toPlainText(); }
    void SetText(const QString &value) { setPlainText(value); }
    void SetColours(const QColor &back, const QColor &text);
};

} // namespace forms
