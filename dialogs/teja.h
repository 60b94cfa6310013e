// The picture that every secondary screen paints over its client area.
#pragma once

#include <QPixmap>

namespace dialogs {

struct Teja {
    QPixmap imagen;
    int ancho = 0; // twips
    int alto = 0;
};

} // namespace dialogs
