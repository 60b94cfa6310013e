// The plain system boxes as the toolkit draws them.
#pragma once

#include "host/questions.h"

namespace host {

// The words on the buttons, from then on; an empty one leaves the toolkit's.
struct AnswerWords {
    QString yes;
    QString no;
    QString accept;
    QString cancel;
};
void setAnswerWords(const AnswerWords &words);
const AnswerWords &answerWords();

class DesktopQuestions final : public Questions {
public:
    QString askText(const QString &prompt) override;
    Answer askYesNoCancel(const QString &title, const QString &text) override;
    bool askYesNo(const QString &title, const QString &text) override;
    void tell(const QString &title, const QString &text) override;
    [[noreturn]] void endWithError(const QString &title, const QString &text) override;
    [[noreturn]] void endProcess(int status) override;
};

} // namespace host
