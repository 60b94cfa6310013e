// The frameless window of the enlarged capture; it also keeps the black picture.
#pragma once

#include "forms/form.h"
#include "forms/image.h"

namespace mainscreen {

class Aumento : public forms::Form {
public:
    Aumento();

    forms::Image *Imagen; // the same picture as Graf_Imagen
    forms::Image *Negro; // black, never in view
};

} // namespace mainscreen
