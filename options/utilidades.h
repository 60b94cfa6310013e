// The utilities: the captures of the selected emulator, converted from PCX to GIF by the program beside this
// one, each deleted once it has had its turn.
#pragma once

#include "core/modulo.h"

#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebutton.h"

#include "options/opciones1.h"

namespace mainscreen {
class Portada;
}

namespace options {

class Utilidades : public forms::Form {
public:
    // Loading touches Opciones1 too, which stays in memory until it is next shown and closed.
    Utilidades(core::Modulo &modulo, mainscreen::Portada &portada, forms::FormHolder<Opciones1> &opciones1);

    // Writes the words of the language on the form; who shows it does so first.
    void PonTextos();

    forms::Label *TXT_Convertir;
    forms::CommandButton *Boton1;
    forms::PictureButton *Flecha2;
    forms::Label *TXT_Volver;

private:
    void Monta();
    void Boton1_Click();
    void Convierte(const QStringList &capturas);
    void ConvierteUna(const QString &directorio, const QString &captura);
    void Trabaja(bool trabajando);

    core::Modulo &M;
    mainscreen::Portada &P;
};

} // namespace options
