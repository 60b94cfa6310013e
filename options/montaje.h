// How the controls of the option screens are made: their kind, name, place in twips and look.
#pragma once

#include "dialogs/teja.h"

#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebutton.h"

namespace options::montaje {

inline const QColor AzulNoche(0, 0, 64);
inline const QColor VerdeClaro(192, 255, 192); // words of buttons
inline const QColor CianClaro(192, 255, 255); // what is to be set

// The tile over the dark ground, with which each of these screens begins its loading.
void PonFondo(forms::Form &forma, const dialogs::Teja &teja);

forms::Label *PonEtiqueta(forms::Form &forma, const QString &nombre, const forms::Place &lugar,
    const QString &texto, const QColor &color, Qt::Alignment alineacion = Qt::AlignLeft);
forms::CommandButton *PonBoton(
    forms::Form &forma, const QString &nombre, const forms::Place &lugar, const QString &texto);
forms::PictureButton *PonPareja(
    forms::Form &forma, const QString &enReposo, const QString &pulsada, const forms::Place &lugar);
forms::ComboBox *PonCombo(forms::Form &forma, const QString &nombre, const forms::Place &lugar);

// A line across the form, at this height.
void PonSeparador(forms::Form &forma, const QString &nombre, int arriba, int ancho);

} // namespace options::montaje
