// The one operation that shows the message box, and the contract of its answers.
#pragma once

#include "dialogs/caja.h"

#include <functional>

class QWidget;

namespace dialogs {

// Type 1: an input box; 2: a question; 3: a warning with the back arrow alone; 4: a notice with the accept
// button alone. Any other type shows nothing and changes nothing.
//
// Answers: Respuesta_Caja is what stood in the box on acceptance (a box left by the arrow leaves it alone),
// Respuesta_Opcion 1 if the user went back, else 0, RespuestaMensaje (types 1 and 2) what an empty answer
// equals.
class CajaDeMensajes {
public:
    // The owner over which every box stands, and the tile, both asked for at each call.
    CajaDeMensajes(core::Modulo &modulo, std::function<QWidget *()> dueño, std::function<Teja()> teja);

    // Blocks until the box has closed, and gives way to the event loop once before it returns.
    void Mensaje(int Tipo, const QString &mensaje, const QString &TituloVentana, const QString &Boton1,
        const QString &Boton2, const QString &MeterEnCajaDeTexto);

private:
    core::Modulo &M;
    std::function<QWidget *()> m_dueño;
    forms::FormHolder<Caja> m_caja;
};

} // namespace dialogs
