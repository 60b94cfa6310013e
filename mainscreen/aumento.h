// The frameless window of the enlarged capture; it also keeps the black picture.
#pragma once

#include "forms/form.h"
#include "forms/image.h"

namespace mainscreen {

class Aumento : public forms::Form {
public:
    Aumento();

    // Shows the capture so wide and high, in twips, over its owner, until it is hidden. The owner keeps the
    // focus and the mouse.
    void Muestra(int ancho, int alto, QWidget &dueño);

    forms::Image *Imagen; // the same picture as Graf_Imagen
    forms::Image *Negro; // black, never in view
};

} // namespace mainscreen
