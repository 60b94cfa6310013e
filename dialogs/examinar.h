// The file browser: the one dialog where the user picks a program file or a directory.
#pragma once

#include "core/modulo.h"

#include "dialogs/teja.h"

#include "forms/combobox.h"
#include "forms/directorylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"

#include <functional>

namespace dialogs {

// The caller sets the path of Directorios (fails with 76; the program's own directory then stays), hides
// Archivos to have a directory picked, writes the texts, and shows it.
//
// Answers: Respuesta_Opcion is 1 if the user went back, else 0. On acceptance RutaExaminar is the open
// directory, as DirectoryList::PathAsEntered tells it, and ArchivoExaminar the name marked in Archivos, empty
// if none is. Left in any other way, by the box for closing too, both keep their old values.
class Examinar : public forms::Form {
public:
    // Shows a notice: text, title, and the words of its two buttons.
    using Aviso = std::function<void(
        const QString &texto, const QString &titulo, const QString &boton1, const QString &boton2)>;

    // Loading opens the program's own directory, and clears Respuesta_Opcion.
    Examinar(core::Modulo &modulo, const Teja &teja, Aviso aviso);

    // The captions in the language; the word of the back arrow is the caller's.
    void PonTextos(const QString &volver);

    forms::ComboBox *Discos;
    forms::DirectoryList *Directorios;
    forms::ListBox *Archivos;
    forms::PictureButton *Aceptar2, *Flecha2;
    forms::Label *TXT_Aceptar, *TXT_Volver;

private:
    void Monta();
    void LlenaDiscos();
    void Discos_Selection();
    void Directorios_Change();
    void Acepta();

    core::Modulo &M;
    Aviso m_aviso;
};

} // namespace dialogs
