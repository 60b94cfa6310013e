#include "maintenance/pasos.h"

#include "maintenance/grabacion.h"

#include "core/basededatos.h"

#include "mainscreen/portada.h"

namespace maintenance {

Pasos::Pasos(core::Modulo &modulo, mainscreen::Portada &portada)
    : M(modulo)
    , P(portada)
    , m_paso1([this] { return HazPaso1(); })
    , m_paso2([this] { return HazPaso2(); })
    , m_examinar([this] { return HazExaminar(); })
{
    P.Boton1b->Release = [this] { Boton1b_Release(); };
}

std::unique_ptr<Configuracion1> Pasos::HazPaso1()
{
    auto paso = std::make_unique<Configuracion1>(M, P);
    paso->Acepta = [this] { Acepta(); };
    return paso;
}

std::unique_ptr<Configuracion2> Pasos::HazPaso2()
{
    m_pareja = ParejaElegida();
    auto paso = std::make_unique<Configuracion2>(M, P.Teja(), m_examinar, m_pareja.first, m_pareja.second);
    paso->Graba = [this] { Grabacion(M, P, *m_paso1, *m_paso2).Graba(); };
    return paso;
}

std::unique_ptr<dialogs::Examinar> Pasos::HazExaminar()
{
    const auto aviso = [this](const QString &texto, const QString &titulo, const QString &boton1,
                           const QString &boton2) { P.Mensaje(4, texto, titulo, boton1, boton2, QString()); };
    return std::make_unique<dialogs::Examinar>(M, P.Teja(), aviso);
}

void Pasos::Boton1b_Release()
{
    m_paso1->PonTextos();
    m_paso1.ShowModal(nullptr);
}

// The first touch of the second step loads it, with the pair of the moment, before anything is looked at. It
// is loaded anew where it is to be shown for another pair.
void Pasos::Acepta()
{
    TocaPaso2();
    M.Config_Origen = -1;
    if (m_paso1->Lista2->ListIndex() < 0) {
        m_paso1->Mensaje(3, M.Msg_NoEmuLD1, M.Msg_NoEmuLD0);
        return;
    }
    if (m_pareja != ParejaElegida()) {
        m_paso2.Unload();
        TocaPaso2();
    }
    M.Config_Origen = core::OrigenDe(m_paso1->Lista1->Text());
    m_paso2->Prepara();
    m_paso2.ShowModal(nullptr);
}

void Pasos::TocaPaso2()
{
    m_paso2->TXT_Grabar->SetCaption(M.TXT_Grabar);
    m_paso2->TXT_Volver->SetCaption(m_paso1->TXT_Volver->Caption());
}

std::pair<QString, QString> Pasos::ParejaElegida()
{
    return { m_paso1->Lista1->Text(), m_paso1->Lista2->Text() };
}

} // namespace maintenance
