// How a screen puts its controls together.
#pragma once

#include "forms/units.h"

#include <QString>

namespace dialogs {

// The control, named and in its place.
template <typename Control>
Control *coloca(Control *control, const QString &nombre, const forms::Place &lugar)
{
    control->setObjectName(nombre);
    forms::move(*control, lugar);
    return control;
}

} // namespace dialogs
