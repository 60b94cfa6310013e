#include "maintenance/montaje.h"

namespace maintenance {

namespace {

Qt::Alignment alineacionDe(Alineacion alineacion)
{
    switch (alineacion) {
    case Alineacion::Centro:
        return Qt::AlignHCenter | Qt::AlignTop;
    case Alineacion::EnMedio:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case Alineacion::Izquierda:
        break;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

} // namespace

forms::Label *etiqueta(QWidget *padre, QStringView texto, QRgb color, Letra letra, Alineacion alineacion)
{
    auto *etiqueta = new forms::Label(padre);
    etiqueta->setFont(forms::arial(8.25, letra == Letra::Negrita));
    etiqueta->SetForeColor(color);
    etiqueta->setAlignment(alineacionDe(alineacion));
    etiqueta->SetCaption(texto.toString());
    return etiqueta;
}

} // namespace maintenance
