// What the second step knows of the emulator: in the empty boxes, in grey, what Ctrl+Space takes over, and in
// red the paths that lead nowhere. Neither is saved nor hinders the saving.

#include "maintenance/configuracion2.h"

#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace maintenance {

void Configuracion2::ConectaPistas()
{
    for (forms::TextBox *ruta : { Casilla1, Casilla2, Casilla3 })
        ruta->Change = [this, ruta] { MiraRuta(*ruta); };
}

// The table and the machine are looked at here, when the step is about to show, and never at the start.
void Configuracion2::Reconoce()
{
    m_conocido = finder::Reconoce(m_sistema, m_emulador, finder::LeeFichas(finder::TablaDelPrograma()),
        finder::LugaresDeLaMaquina(), host::programDirectory());
    PonPistas();
}

void Configuracion2::PonPistas()
{
    if (!m_conocido)
        return;
    const core::Casillas pistas = finder::PistasDe(*m_conocido, Marcas());
    const QString tecla = M.Palabras.Zem_Ctrl + u'+' + M.Palabras.Zem_Espacio;
    const std::pair<forms::TextBox *, QString> casillas[] = { { Casilla1, pistas.exe },
        { Casilla2, pistas.rom }, { Casilla3, pistas.img }, { Casilla4, pistas.par1 },
        { Casilla5, pistas.par2 } };
    for (const auto &[casilla, pista] : casillas)
        casilla->SetHint(
            pista, QString(M.Palabras.Zem_Pista).replace(u"%1"_s, tecla).replace(u"%2"_s, pista));
}

void Configuracion2::MiraRutas()
{
    for (forms::TextBox *ruta : { Casilla1, Casilla2, Casilla3 })
        MiraRuta(*ruta);
}

void Configuracion2::MiraRuta(forms::TextBox &casilla)
{
    if (!m_conocido)
        return; // all of them are looked at when it is about to show
    const QString ruta = casilla.Text();
    const bool falta = &casilla == Casilla1 ? core::FaltaEjecutable(ruta) : core::FaltaDirectorio(ruta);
    casilla.SetFault(falta ? M.Palabras.Zem_NoEsta : QString());
}

} // namespace maintenance
