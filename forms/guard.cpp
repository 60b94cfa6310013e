#include "forms/guard.h"

#include "host/questions.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace forms {

namespace {

std::function<FatalWords(const host::Failure &)> fatalWords;

// The box of the end runs the event loop, and what fails there meanwhile must not open a second one.
bool ending = false;

FatalWords wordsFor(const host::Failure &failure)
{
    if (fatalWords)
        return fatalWords(failure);
    return { QCoreApplication::applicationName(), QString::fromUtf8(failure.what()) };
}

} // namespace

void setFatalWords(std::function<FatalWords(const host::Failure &)> words)
{
    fatalWords = std::move(words);
}

void guarded(const std::function<void()> &handler)
{
    try {
        handler();
    } catch (const host::Failure &failure) {
        if (ending)
            return;
        ending = true;
        const auto ended = qScopeGuard([] { ending = false; });
        const FatalWords words = wordsFor(failure);
        host::questions().endWithError(words.title, words.text);
    }
}

} // namespace forms
