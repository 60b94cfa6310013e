#include "tests/support/testquestions.h"

#include <gtest/gtest.h>

namespace {

void unexpected(const char *kind, const QString &text)
{
    ADD_FAILURE() << "unexpected " << kind << ": " << text.toStdString();
}

} // namespace

TestQuestions::~TestQuestions()
{
    if (m_end)
        ADD_FAILURE() << "unexpected end of the process, status " << m_end->status << ": "
                      << m_end->text.toStdString();
}

QString TestQuestions::askText(const QString &prompt)
{
    unexpected("prompt", prompt);
    return {};
}

host::Questions::Answer TestQuestions::askYesNoCancel(const QString &, const QString &text)
{
    unexpected("question", text);
    return Answer::Cancel;
}

bool TestQuestions::askYesNo(const QString &title, const QString &text)
{
    if (yesNo.empty()) {
        unexpected("question", text);
        return false;
    }
    asked << title << text;
    const bool answer = yesNo.front();
    yesNo.pop_front();
    return answer;
}

void TestQuestions::tell(const QString &, const QString &text)
{
    unexpected("box", text);
}

void TestQuestions::endWithError(const QString &title, const QString &text)
{
    ProcessEnd error;
    error.status = 1;
    error.title = title;
    error.text = text;
    end(error);
}

void TestQuestions::endProcess(int status)
{
    ProcessEnd regular;
    regular.status = status;
    end(regular);
}

std::optional<ProcessEnd> TestQuestions::takeEnd()
{
    return std::exchange(m_end, std::nullopt);
}

void TestQuestions::end(const ProcessEnd &end)
{
    if (!m_end)
        m_end = end;
    throw end;
}
