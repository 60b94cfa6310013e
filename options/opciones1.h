// The options: the look of the built-in editor, the language, and the way to the advanced ones.
//
// What is picked changes the running program at once; only the disk writes Zembro.cfg. Going back undoes
// nothing, so that after leaving and coming back an unsaved change counts as saved.
#pragma once

#include "core/ajustes.h"
#include "core/modulo.h"

#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebutton.h"

#include "options/opciones2.h"

namespace mainscreen {
class Portada;
}

namespace options {

class Opciones1 : public forms::Form {
public:
    // Loading fills the two lists and takes what stands there for saved. Fails with 9 for more language files
    // than MaxIdiomas, 380 for a TypeOfEditor other than 0 and 1.
    Opciones1(core::Modulo &modulo, mainscreen::Portada &portada);

    // Writes the words of the language on the form; who shows it does so first.
    void PonTextos();

    forms::Label *TXT_Editor;
    forms::ComboBox *Combo1;
    forms::Label *TXT_Idioma;
    forms::ComboBox *Combo2;
    forms::Label *TXT_InfoLNG;
    forms::Label *TXT_EditarLNG;
    forms::CommandButton *Boton2;
    forms::CommandButton *Boton_CFGAv;
    forms::PictureButton *Disco1;
    forms::Label *TXT_Grabar;
    forms::PictureButton *Flecha2;
    forms::Label *TXT_Volver;

private:
    void Monta();
    void Conecta();
    void Carga();
    void LlenaCombo1();
    void NombraControles();
    void Combo1_Selection();
    void Combo2_Selection();
    void Boton2_Click();
    void Boton_CFGAv_Click();
    void Disco1_Release();
    void Advierte(const QString &titulo, const QString &texto);
    bool Graba(core::Ajuste ajuste, const QString &linea); // false, with a word, where it can't be kept
    void Confirma();

    core::Modulo &M;
    mainscreen::Portada &P;
    forms::FormHolder<Opciones2> m_avanzadas;
};

} // namespace options
