// The message box: one form for every question, input, warning and notice.
#pragma once

#include "core/modulo.h"

#include "dialogs/teja.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/picturebutton.h"
#include "forms/textbox.h"

namespace dialogs {

class Caja : public forms::Form {
public:
    // Loading paints the tile and clears Respuesta_Opcion.
    Caja(core::Modulo &modulo, const Teja &teja);

    // The layouts of the four types, from the layout of the design.
    void PreparaEntrada(const QString &mensaje, const QString &titulo, const QString &enLaCasilla);
    void PreparaPregunta(const QString &mensaje, const QString &titulo);
    void PreparaAdvertencia(const QString &mensaje, const QString &titulo);
    void PreparaAviso(const QString &mensaje, const QString &titulo);

    forms::Label *Texto1;
    forms::Label *Texto2;
    forms::TextBox *Casilla;
    forms::PictureButton *Aceptar2;
    forms::PictureButton *Flecha2;
    forms::Label *TXT_Aceptar;
    forms::Label *TXT_Volver;

private:
    void QuitaCasilla();
    void Acepta();

    core::Modulo &M;
};

} // namespace dialogs
