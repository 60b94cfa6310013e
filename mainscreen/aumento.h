// The frameless window of the enlarged capture; it also keeps the black picture, and which
// captures could be loaded.
#pragma once

#include "forms/form.h"
#include "forms/image.h"
#include "forms/knownpictures.h"

namespace mainscreen {

class Aumento : public forms::Form {
public:
    Aumento();

    // Shows the capture so wide and high, in twips, over its owner, until it is hidden. The owner keeps the
    // focus and the mouse.
    void Muestra(int ancho, int alto, QWidget &dueño);

    forms::Image *Imagen; // the same picture as Graf_Imagen
    forms::Image *Negro; // black, never in view
    forms::KnownPictures Conocidas; // captures that could be loaded
};

} // namespace mainscreen
