#include "options/montaje.h"

#include "dialogs/coloca.h"
#include "dialogs/etiqueta.h"

#include "forms/shape.h"

namespace options::montaje {

namespace {

template <typename Control>
Control *conLetra(Control *control, const QString &nombre, const forms::Place &lugar)
{
    control->setFont(forms::arial(8.25));
    return dialogs::coloca(control, nombre, lugar);
}

} // namespace

void PonFondo(forms::Form &forma, const dialogs::Teja &teja)
{
    forma.SetBackColour(AzulNoche);
    forma.SetTile(teja.imagen, teja.ancho, teja.alto);
}

forms::Label *PonEtiqueta(forms::Form &forma, const QString &nombre, const forms::Place &lugar,
    const QString &texto, const QColor &color, Qt::Alignment alineacion)
{
    return dialogs::etiqueta(&forma, nombre, texto, lugar, color, forms::arial(8.25), alineacion);
}

forms::CommandButton *PonBoton(
    forms::Form &forma, const QString &nombre, const forms::Place &lugar, const QString &texto)
{
    auto *boton = conLetra(new forms::CommandButton(&forma), nombre, lugar);
    boton->SetCaption(texto);
    return boton;
}

forms::PictureButton *PonPareja(
    forms::Form &forma, const QString &enReposo, const QString &pulsada, const forms::Place &lugar)
{
    auto *pareja = new forms::PictureButton(enReposo, pulsada, &forma);
    pareja->SetPlace(lugar);
    return pareja;
}

forms::ComboBox *PonCombo(forms::Form &forma, const QString &nombre, const forms::Place &lugar)
{
    return conLetra(new forms::ComboBox(&forma, false), nombre, lugar);
}

void PonSeparador(forms::Form &forma, const QString &nombre, int arriba, int ancho)
{
    constexpr int Margen = 120;
    const QColor verdeMarco(0, 128, 128);
    dialogs::coloca(new forms::Shape(verdeMarco, &forma), nombre,
        { Margen, arriba, ancho - 2 * Margen, forms::TwipsPerPixel });
}

} // namespace options::montaje
