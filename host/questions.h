// The plain system boxes, behind one interface: a test answers them, and fails on one that it did not expect.
#pragma once

#include <QString>

namespace host {

class Questions {
public:
    enum class Answer { Yes, No, Cancel };

    virtual ~Questions() = default;

    // A password prompt; empty if the user leaves it so, or closes it.
    virtual QString askText(const QString &prompt) = 0;

    // Yes, No, Cancel, with No as the button that Enter takes.
    virtual Answer askYesNoCancel(const QString &title, const QString &text) = 0;

    // Yes or no, with no as the button that Enter takes.
    virtual bool askYesNo(const QString &title, const QString &text) = 0;

    // One text, one button.
    virtual void tell(const QString &title, const QString &text) = 0;

    // The end of the process on a failure: text in a box titled `title` and on the standard error; without a
    // display on the standard error alone. Does not return; a test's answer throws.
    [[noreturn]] virtual void endWithError(const QString &title, const QString &text) = 0;

    // The regular end of the process. Does not return; a test's answer throws.
    [[noreturn]] virtual void endProcess(int status) = 0;
};

// The answers in force: the desktop's own boxes from main, a test's from its fixture. Never null once set.
Questions &questions();
void setQuestions(Questions *questions);

} // namespace host
