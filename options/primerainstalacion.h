// The first run: the user picks a language, and the settings are written for the first time.
#pragma once

#include "core/modulo.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"

namespace options {

// It runs before any language is in memory, so its own words are in several. Only its accept button closes
// it.
class PrimeraInstalacion : public forms::Form {
public:
    // Loading lists the language files and selects the program's own.
    explicit PrimeraInstalacion(core::Modulo &modulo);

    forms::ListBox *List1;
    forms::ListBox *File1; // hidden, and empty: it keeps its name
    forms::Label *Label1;
    forms::PictureButton *Aceptar2;
    forms::Label *TXT_Aceptar;
    forms::Label *Label6;

private:
    void Monta();
    void Carga();
    void List1_Selection();
    bool FaltaElegir() const;
    void Aceptar2_Press();
    void Aceptar2_Release();

    core::Modulo &M;
};

} // namespace options
