#include "host/questions.h"

#include <QtGlobal>

namespace host {

namespace {
Questions *current = nullptr;
}

Questions &questions()
{
    Q_ASSERT(current);
    return *current;
}

void setQuestions(Questions *questions)
{
    current = questions;
}

} // namespace host
