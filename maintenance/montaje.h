// The rows that the screens of this folder are laid out from: one a control, in twips, and the functions that
// make the control of a row.
#pragma once

#include "forms/commandbutton.h"
#include "forms/label.h"
#include "forms/picturebutton.h"
#include "forms/shape.h"
#include "forms/units.h"

namespace maintenance {

inline constexpr QRgb Cian = qRgb(192, 255, 255);
inline constexpr QRgb Verde = qRgb(192, 255, 192);
inline constexpr QRgb Blanco = qRgb(255, 255, 255);
inline constexpr QRgb VerdeMarco = qRgb(0, 128, 128);
inline constexpr QRgb AzulNoche = qRgb(0, 0, 64); // beneath the tiles

enum class Letra { Normal, Negrita };
enum class Alineacion { Izquierda, Centro, EnMedio }; // the last: halfway down a place of several lines

template <class Pantalla> struct FilaEtiqueta {
    forms::Label *Pantalla::*control;
    QStringView nombre;
    forms::Place lugar;
    QStringView texto;
    QRgb color;
    Letra letra = Letra::Normal;
    Alineacion alineacion = Alineacion::Izquierda;
};

template <class Pantalla> struct FilaMarco {
    forms::Shape *Pantalla::*control;
    QStringView nombre;
    forms::Place lugar;
    forms::Label *Pantalla::*titulo; // that interrupts its line; none for a frame without a heading
};

template <class Pantalla> struct FilaOrden {
    forms::CommandButton *Pantalla::*control;
    QStringView nombre;
    forms::Place lugar;
    QStringView texto;
};

template <class Pantalla> struct FilaPareja {
    forms::PictureButton *Pantalla::*control;
    QStringView nombre;
    QStringView pulsado;
    forms::Place lugar;
    QStringView dibujo; // of the picture at rest and of the pressed one
    QStringView dibujoPulsado;
};

// Lists, boxes to type into, check boxes.
template <class Pantalla, class Control> struct FilaControl {
    Control *Pantalla::*control;
    QStringView nombre;
    forms::Place lugar;
};

forms::Label *etiqueta(QWidget *padre, QStringView texto, QRgb color, Letra letra, Alineacion alineacion);

template <class Pantalla> void monta(Pantalla &pantalla, const FilaEtiqueta<Pantalla> &fila)
{
    forms::Label *control = etiqueta(&pantalla, fila.texto, fila.color, fila.letra, fila.alineacion);
    control->setObjectName(fila.nombre.toString());
    control->SetPlace(fila.lugar);
    pantalla.*fila.control = control;
}

// Ahead of the labels on it; the heading joins it once there is one.
template <class Pantalla> void monta(Pantalla &pantalla, const FilaMarco<Pantalla> &fila)
{
    auto *control = new forms::Shape(VerdeMarco, &pantalla);
    control->setObjectName(fila.nombre.toString());
    forms::move(*control, fila.lugar);
    pantalla.*fila.control = control;
}

template <class Pantalla> void titula(Pantalla &pantalla, const FilaMarco<Pantalla> &fila)
{
    if (fila.titulo)
        (pantalla.*fila.control)->SetHeading(pantalla.*fila.titulo);
}

template <class Pantalla> void monta(Pantalla &pantalla, const FilaOrden<Pantalla> &fila)
{
    auto *control = new forms::CommandButton(&pantalla);
    control->setObjectName(fila.nombre.toString());
    control->SetCaption(fila.texto.toString());
    forms::move(*control, fila.lugar);
    pantalla.*fila.control = control;
}

template <class Pantalla> void monta(Pantalla &pantalla, const FilaPareja<Pantalla> &fila)
{
    auto *control = new forms::PictureButton(fila.nombre.toString(), fila.pulsado.toString(), &pantalla);
    control->SetArtwork(fila.dibujo.toString(), fila.dibujoPulsado.toString());
    control->SetPlace(fila.lugar);
    pantalla.*fila.control = control;
}

template <class Pantalla, class Control>
void coloca(Pantalla &pantalla, const FilaControl<Pantalla, Control> &fila, Control *control)
{
    control->setObjectName(fila.nombre.toString());
    forms::move(*control, fila.lugar);
    pantalla.*fila.control = control;
}

} // namespace maintenance
