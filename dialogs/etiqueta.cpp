#include "dialogs/etiqueta.h"

namespace dialogs {

forms::Label *etiqueta(QWidget *padre, const QString &nombre, const QString &texto, const forms::Place &lugar,
    const QColor &color, const QFont &letra, Qt::Alignment alineacion)
{
    auto *etiqueta = new forms::Label(padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setFont(letra);
    etiqueta->SetForeColor(color);
    etiqueta->setAlignment(alineacion | Qt::AlignTop);
    etiqueta->SetPlace(lugar);
    etiqueta->SetCaption(texto);
    return etiqueta;
}

forms::Label *palabra(QWidget *padre, const QString &nombre, const QString &texto, const forms::Place &lugar)
{
    const QColor verdeClaro(192, 255, 192);
    return etiqueta(padre, nombre, texto, lugar, verdeClaro, forms::arial(8.25), Qt::AlignHCenter);
}

} // namespace dialogs
