#include "configscreens.h"

#include "core/basededatos.h"

using namespace Qt::StringLiterals;

ConfigScreens::ConfigScreens(core::Modulo &M, const QString &language)
    : m_portada(M)
    , m_examinar([this, &M] { return std::make_unique<dialogs::Examinar>(M, m_portada.Teja(), nullptr); })
{
    M.LanguageFile = language;
    m_portada.Textos();
    m_first = std::make_unique<maintenance::Configuracion1>(M, m_portada);
    m_first->PonTextos();
    m_all = { m_first.get() };
    for (const int origin : { core::SistemaConocido, core::SistemaRecreativo, core::OtroSistema })
        makeSecondStep(M, origin);
    m_examinar->PonTextos(M.TXT_Volver);
    m_examinar->SetOuterWidth(maintenance::Configuracion2::SinArchivos);
    m_examinar->Archivos->hide();
    m_examinar->Discos->Clear(); // those of the machine
    m_all.push_back(&*m_examinar);
}

void ConfigScreens::makeSecondStep(core::Modulo &M, int origin)
{
    auto step = std::make_unique<maintenance::Configuracion2>(
        M, m_portada.Teja(), m_examinar, u"System"_s, u"Emulator"_s);
    step->TXT_Grabar->SetCaption(M.TXT_Grabar);
    step->TXT_Volver->SetCaption(M.TXT_Volver);
    M.Config_Origen = origin;
    step->Prepara();
    if (origin == core::SistemaConocido)
        step->TXT_AutoComp->hide(); // the window ends above it
    m_all.push_back(step.get());
    m_second.push_back(std::move(step));
}
