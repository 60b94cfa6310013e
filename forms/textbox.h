// Boxes to type into, one line or many.
#pragma once

#include "forms/control.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace forms {

// One line: of a text with line breaks, pasted or set, what stands ahead of the first one stays. Of a text
// set that is too long for the box its beginning shows. One of more than LongestShown units shows no further:
// dots stand for the rest, which belongs to the text as long as they and the letters ahead of them do.
class TextBox : public Control<QLineEdit> {
public:
    explicit TextBox(QWidget *parent);

    static constexpr qsizetype LongestShown = 10'000; // the toolkit lays out all of it at each key

    QString Text() const;
    void SetText(const QString &value);
    void SetTip(); // from now on a text too wide for the box shows in full under the pointer

    // Shows in the empty box, in grey, what Ctrl+Space takes over; it is no text of the box. One too wide is
    // shortened in its middle. The words tell of it in the tip. An empty hint is none.
    QString Hint() const { return m_hint; }
    void SetHint(const QString &hint, const QString &words);
    // Of the text that stands there now: its letters in red, and in its tip why. Empty words take that back.
    void SetFault(const QString &words);

    Event<> Change; // of the text, by whomever

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    int room() const; // pixels for letters
    bool fits(const QString &text) const;
    void showHint();
    void showTip();

    bool m_tip = false;
    bool m_tells = false; // it has a tip of its own, not the screen's
    QString m_hint;
    QString m_hintWords;
    QString m_fault;
    QString m_rest; // what the dots stand for
    QString m_dots; // with the letters ahead of them
};

// Many lines. Of what is pasted or dropped it takes the plain text.
class TextArea : public Control<QPlainTextEdit> {
public:
    explicit TextArea(QWidget *parent);

    QString Text() const { return toPlainText(); }
    void SetText(const QString &value) { setPlainText(value); }
    // Letters of one width, and lines as long as they are; else the form's letters, and lines that wrap.
    void SetColumns(bool columns, int tab); // letters of a tab
    void SetColours(const QColor &back, const QColor &text);

protected:
    void keyPressEvent(
        QKeyEvent *event) override; // Enter never travels to the form, also if nothing can be typed
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace forms
