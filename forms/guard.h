// The one guard around every event handler: a failure that leaves a handler ends the process.
#pragma once

#include "host/failure.h"

#include <functional>

namespace forms {

// What the box of a fatal end says.
struct FatalWords {
    QString title;
    QString text;
};

// The program's words for a failure; set once from main (or by a test), before the first event.
void setFatalWords(std::function<FatalWords(const host::Failure &)> words);

// Runs a handler. A Failure that leaves it goes to host::questions().endWithError. Events that code raises
// itself pass through here too, so a failure never crosses from an event's handler into the operation that
// raised the event.
void guarded(const std::function<void()> &handler);

} // namespace forms
