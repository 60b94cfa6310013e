// The second step of configuring: executable, directories, parameters and marks of the emulator picked in the
// first one, as the catalogue holds them, or empty for a new one.
#pragma once

#include "core/configuracion.h"
#include "core/modulo.h"

#include "dialogs/examinar.h"

#include "finder/pistas.h"

#include "forms/checks.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebutton.h"
#include "forms/shape.h"
#include "forms/textbox.h"

#include <functional>
#include <optional>

namespace maintenance {

class Configuracion2 : public forms::Form {
public:
    static constexpr int SinArchivos = 2160; // twips: outer width of the browser without its list of files

    // Loading looks the pair up in the catalogue (Config2_Cambios) and fills the form.
    Configuracion2(core::Modulo &modulo, const dialogs::Teja &teja,
        forms::FormHolder<dialogs::Examinar> &examinar, const QString &sistema, const QString &emulador);

    // The captions in the language, the look that Config_Origen asks for, and what is known of the emulator.
    void Prepara();

    core::Casillas Textos() const;
    core::Marcas Marcas() const;

    std::function<void()> Graba; // what the save button does: it takes both steps

    // In the order of the screen.
    forms::Label *TXT_CFGDe, *Texto2;
    forms::Label *TXT_CFGGeneral;
    forms::Shape *Shape1;
    forms::Label *TXT_EXE, *TXT_ROM, *TXT_IMG, *TXT_PAR, *Texto7, *Texto8;
    forms::TextBox *Casilla1, *Casilla2, *Casilla3, *Casilla4, *Casilla5;
    forms::CommandButton *Boton1, *Boton2, *Boton3;
    forms::CheckBox *Check4;
    forms::Label *TXT_SoloEXE;
    forms::Label *TXT_Especial;
    forms::Shape *Shape2;
    forms::Label *TXT_1DIR, *TXT_Comp, *TXT_AutoComp;
    forms::CheckBox *Check1, *Check2, *Check3;
    forms::PictureButton *Disco1, *Flecha1; // these two are the ones at rest
    forms::Label *TXT_Grabar, *TXT_Volver;
    forms::Shape *Shape3;
    forms::Label *TXT_Aviso;

private:
    void Monta();
    void Conecta();
    void PonExaminar();
    void PonTextos();
    void NombraControles();
    void QuitaEspeciales();

    void PonMarcas(const core::Marcas &marcas);
    void AplicaCerrojos();

    void ConectaPistas();
    void Reconoce();
    void PonPistas();
    void MiraRutas();
    void MiraRuta(forms::TextBox &casilla);

    void BuscaEjecutable();
    void BuscaDirectorio(forms::TextBox &casilla);
    bool CargaExaminar(const QString &inicio);
    bool Examina();

    core::Modulo &M;
    forms::FormHolder<dialogs::Examinar> &m_examinar;
    const QString m_sistema;
    const QString m_emulador;
    std::optional<finder::Conocido> m_conocido; // from the showing on
};

} // namespace maintenance
