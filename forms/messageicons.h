// The signs of the system boxes.
#pragma once

#include <QIcon>

namespace forms {

enum class MessageSign { Question, Information, Warning, Failure };

QIcon messageIcon(MessageSign sign); // drawn anew for every size, so that it is sharp at all of them

} // namespace forms
