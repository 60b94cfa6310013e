#include "optionscreens.h"

OptionScreens::OptionScreens(core::Modulo &M, const QString &language)
    : m_portada(M)
    , m_opciones1([this, &M] { return std::make_unique<options::Opciones1>(M, m_portada); })
{
    M.LanguageFile = language;
    m_portada.Textos();
    m_opciones1->PonTextos();
    m_opciones2 = std::make_unique<options::Opciones2>(M, m_portada);
    m_opciones2->PonTextos(M.TXT_Grabar, M.TXT_Volver);
    m_utilidades = std::make_unique<options::Utilidades>(M, m_portada, m_opciones1);
    m_utilidades->PonTextos();
    m_acercaDe = std::make_unique<options::AcercaDe>(M, m_portada);
    m_acercaDe->PonTextos();
    m_all = { &*m_opciones1, m_opciones2.get(), m_utilidades.get(), m_acercaDe.get() };
}
