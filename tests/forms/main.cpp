#include "drive.h"

#include "forms/application.h"

#include "host/questions.h"

#include <gtest/gtest.h>

namespace {

// Every box fails the test but the fatal end, which the tests catch.
class NoQuestions final : public host::Questions {
public:
    QString askText(const QString &prompt) override { return unexpected(prompt), QString(); }
    Answer askYesNoCancel(const QString &, const QString &text) override
    {
        return unexpected(text), Answer::Cancel;
    }
    bool askYesNo(const QString &, const QString &text) override { return unexpected(text), false; }
    void tell(const QString &, const QString &text) override { unexpected(text); }
    [[noreturn]] void endWithError(const QString &title, const QString &text) override
    {
        throw drive::ProcessEnd { title, text };
    }
    [[noreturn]] void endProcess(int status) override
    {
        unexpected(QString::number(status));
        throw drive::ProcessEnd {};
    }

private:
    static void unexpected(const QString &text) { ADD_FAILURE() << "a box: " << qPrintable(text); }
};

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    forms::Application application(argc, argv);
    NoQuestions questions;
    host::setQuestions(&questions);
    return RUN_ALL_TESTS();
}
