// The two steps of configuring an emulator, and the way to them and from one to the other: the main screen's
// button Boton1b.
#pragma once

#include "core/modulo.h"

#include "dialogs/examinar.h"

#include "forms/form.h"

#include "maintenance/configuracion1.h"
#include "maintenance/configuracion2.h"

#include <utility>

namespace mainscreen {
class Portada;
}

namespace maintenance {

// The second step, once loaded, stays so until it has been shown and closed, also where the first one refuses
// to go on or is closed and opened anew; for another pair it is loaded anew.
class Pasos {
public:
    // Puts its handler on the button; must live as long as the screen does.
    Pasos(core::Modulo &modulo, mainscreen::Portada &portada);

private:
    void Boton1b_Release();
    std::unique_ptr<Configuracion1> HazPaso1();
    std::unique_ptr<Configuracion2> HazPaso2();
    std::unique_ptr<dialogs::Examinar> HazExaminar();
    void Acepta();
    void TocaPaso2();
    std::pair<QString, QString> ParejaElegida(); // in the first step

    core::Modulo &M;
    mainscreen::Portada &P;
    forms::FormHolder<Configuracion1> m_paso1;
    forms::FormHolder<Configuracion2> m_paso2;
    forms::FormHolder<dialogs::Examinar> m_examinar;
    std::pair<QString, QString> m_pareja; // that the second step was loaded for
};

} // namespace maintenance
