// The first step of configuring: the database of systems and emulators, where the user picks the pair to
// configure, adds and removes, and changes extensions and addresses. What is changed is on the disk at once.
//
// One class, one file a topic: configuracion1 (lists and events), configuracion1_cambios (additions and
// removals), configuracion1_datos (extensions and addresses), configuracion1_disposicion, the table of where
// every control stands.
#pragma once

#include "core/modulo.h"

#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"
#include "forms/shape.h"

#include <functional>

namespace mainscreen {
class Portada;
}

namespace maintenance {

class Configuracion1 : public forms::Form {
public:
    // Loading reads the database, and selects its first system with its first emulator.
    Configuracion1(core::Modulo &modulo, mainscreen::Portada &portada);

    // The captions in the language, and the names under which screen readers know the controls.
    void PonTextos();

    // The message box with this screen's words under its buttons.
    void Mensaje(
        int tipo, const QString &mensaje, const QString &titulo, const QString &enLaCasilla = QString());

    std::function<void()> Acepta; // what the accept button does: it takes both steps

    // In the order of the screen. An entry of Lista1 carries its row in the tables, one of Lista2 its column
    // minus 1.
    forms::Label *TXT_Escoge;
    forms::Label *TXT_Sistemas, *TXT_Emuladores;
    forms::CommandButton *Mas1, *Menos1, *Boton_E, *Boton_W1;
    forms::CommandButton *Boton_Mas2, *Boton_Menos2, *Boton_W2;
    forms::ListBox *Lista1, *Lista2;
    forms::Label *TXT_Sevaaañadir, *Texto5;
    forms::PictureButton *Aceptar2, *Flecha2;
    forms::Label *TXT_Aceptar, *TXT_Volver;
    forms::Shape *Shape1;
    forms::Label *TXT_Leyenda, *Texto8, *TXT_Añadir, *Texto10, *TXT_Borrar, *Texto12, *TXT_Extensiones,
        *Texto14, *TXT_Webs;

private:
    using Cambio = std::function<QString(const QString &)>;

    // Whose data change: a system's, or an emulator's of it.
    struct Pareja {
        QString sistema;
        QString emulador;
        bool deEmulador = false;
    };

    void Monta();
    void ConectaListas();
    void ConectaBotones();
    void NombraControles();

    void Llena_Configuracion1();
    void LlenaYElige(const QString &sistema);
    void LlenaLista2();
    bool SistemasAlDia() const;
    bool EmuladoresAlDia() const;
    void Lista1_Selection();
    void PonPareja();
    int Sistema() const; // row of the selected system in the tables; fails with 380 if none is
    int Emulador() const; // column of the selected emulator; fails with 380 if none is

    void AñadirSistema();
    void BorrarSistema();
    void AñadirEmulador();
    void BorrarEmulador();
    QString PideNombre(const QString &mensaje, const QString &titulo);
    bool Confirma(const QString &mensaje, const QString &titulo);
    enum class Alta { Hecha, Repetida, SinNombre };
    Alta AñadeALosFicheros(const QString &nuevo);
    enum class Baja { Hecha, EnUso, Cambiado };
    Baja BorraDeLosFicheros(const QString &sistema, int fila);

    void Boton_E_Click();
    void Boton_W1_Click();
    void Boton_W2_Click();
    bool Pide(const QString &mensaje, const QString &titulo, const QString &oferta);
    void CambiaEnAmbos(const Cambio &cambio, const Pareja &pareja);
    bool EstaEnUso(const Pareja &pareja);

    core::Modulo &M;
    mainscreen::Portada &P;
};

} // namespace maintenance
