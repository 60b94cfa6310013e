#include "optionscreens.h"

#include "languages.h"
#include "room.h"

#include "tests/support/programdirectory.h"

using namespace Qt::StringLiterals;

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

// In a language that says each text as its own key.
QStringList OptionScreens::keysShown()
{
    const ProgramDirectory files;
    QStringList lines;
    for (const QString &key : languages::knownKeys())
        lines << languageLine(key, key);
    files.writeLines(u"LNG/KEYS.LNG"_s, lines);
    const auto M = std::make_unique<core::Modulo>();
    const OptionScreens screens(*M, u"KEYS.LNG"_s);
    QStringList texts;
    for (const forms::Form *form : screens.all())
        texts += room::textsOf(*form);
    texts.removeIf([](const QString &text) { return !languages::knownKeys().contains(text); });
    return texts;
}
