// The advanced options: whether the last selection is remembered, which directories are no games, and the
// word with which a console tells that its program has ended.
//
// The option buttons act at once, saved or not; the disk writes all that has changed.
#pragma once

#include "core/modulo.h"

#include "forms/checks.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebutton.h"
#include "forms/textbox.h"

namespace mainscreen {
class Portada;
}

namespace options {

class Opciones2 : public forms::Form {
public:
    // Loading shows the settings in force, and takes them for saved.
    Opciones2(core::Modulo &modulo, mainscreen::Portada &portada);

    // Writes the words on the form, two of them those of the form that opens it.
    void PonTextos(const QString &grabar, const QString &volver);

    forms::Label *TXT_Guardar;
    forms::OptionButton *Opcion1;
    forms::Label *TXT_Si;
    forms::OptionButton *Opcion2;
    forms::Label *TXT_No;
    forms::Label *TXT_GuardarAviso;
    forms::Label *TXT_Filtros;
    forms::TextBox *CajaTexto1;
    forms::Label *TXT_FinDOS;
    forms::TextBox *CajaTexto2;
    forms::Label *TXT_FinDOSAviso;
    forms::PictureButton *Disco1;
    forms::Label *TXT_Grabar;
    forms::PictureButton *Flecha2;
    forms::Label *TXT_Volver;

private:
    void Monta();
    void MontaAjustes();
    void Conecta();
    void Carga();
    void TomaPrevios();
    void NombraControles();
    bool HayCambios() const;
    void Disco1_Release();
    bool Rechaza();
    void Graba();
    void GrabaFiltros();

    core::Modulo &M;
    mainscreen::Portada &P;
};

} // namespace options
