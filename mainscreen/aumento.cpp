#include "mainscreen/aumento.h"

using namespace Qt::StringLiterals;

namespace mainscreen {

Aumento::Aumento()
    : Form(u"Aumento"_s, 3135, 2775, Border::None)
{
    SetBackColour(Qt::black);
    Imagen = new forms::Image(this);
    Imagen->setObjectName(u"Imagen"_s);
    forms::move(*Imagen, { 0, 0, 3135, 2775 });
    Imagen->SetBorder(true);

    Negro = new forms::Image(this);
    Negro->setObjectName(u"Negro"_s);
    forms::move(*Negro, { 0, 4560, 3135, 2775 });
    Negro->SetBorder(true);
    QPixmap negro(Negro->size());
    negro.fill(Qt::black);
    Negro->SetPicture(negro);
}

void Aumento::Muestra(int ancho, int alto, QWidget &dueño)
{
    SetClientSize(ancho, alto);
    forms::move(*Imagen, { 0, 0, ancho, alto });
    ShowAside(dueño);
}

} // namespace mainscreen
