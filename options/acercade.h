// What the program is, and how its authors are reached. It changes nothing.
#pragma once

#include "core/modulo.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/picturebutton.h"

#include "options/enlace.h"

namespace mainscreen {
class Portada;
}

namespace options {

class AcercaDe : public forms::Form {
public:
    AcercaDe(core::Modulo &modulo, mainscreen::Portada &portada);

    // Writes the words of the language on the form; who shows it does so first.
    void PonTextos();

    forms::Image *Logotipo;
    forms::Label *Label4; // who made it
    forms::Label *TXT_Correo1, *TXT_Web1, *TXT_Redir; // above the links
    Enlace *Link_Correo1, *Link_Web1, *Link_Redir;
    forms::PictureButton *Flecha2;
    forms::Label *TXT_Volver;

private:
    void Monta();
    void MontaDirecciones();

    core::Modulo &M;
    mainscreen::Portada &P;
};

} // namespace options
