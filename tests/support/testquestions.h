// The plain boxes and the end of the process as a test sees them.
#pragma once

#include "host/questions.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <exception>
#include <optional>

// The end of the process. TestQuestions keeps it and throws it on; the test's application stops it where an
// event was delivered.
struct ProcessEnd : std::exception {
    int status = 0;
    QString title; // of the box of an error; empty at a regular end
    QString text;
};

// A box that isn't announced fails the test.
class TestQuestions : public host::Questions {
public:
    ~TestQuestions() override;

    QString askText(const QString &prompt) override;
    Answer askYesNoCancel(const QString &title, const QString &text) override;
    bool askYesNo(const QString &title, const QString &text) override;
    void tell(const QString &title, const QString &text) override;
    [[noreturn]] void endWithError(const QString &title, const QString &text) override;
    [[noreturn]] void endProcess(int status) override;

    // The answers to the next questions of yes and no, with what was asked.
    std::deque<bool> yesNo;
    QStringList asked; // titles and texts, one after the other

    // The first end since the last call; a test that leaves one untaken fails.
    std::optional<ProcessEnd> takeEnd();

private:
    [[noreturn]] void end(const ProcessEnd &end);

    std::optional<ProcessEnd> m_end;
};
