#include "companion/preguntas.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/process.h"

#include <array>
#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// One line of the terminal; empty where there is none.
QString linea()
{
    if (isatty(STDIN_FILENO) == 0)
        return {};
    std::array<char, 1024> letras {};
    if (!std::fgets(letras.data(), static_cast<int>(letras.size()), stdin))
        return {};
    return host::nameFromDisk(QByteArray(letras.data())).remove(u'\n');
}

} // namespace

PreguntasDeTexto::PreguntasDeTexto(const Sesion &sesion)
    : m_sesion(sesion)
{
    host::setQuestions(this);
}

PreguntasDeTexto::~PreguntasDeTexto()
{
    host::setQuestions(nullptr);
}

QString PreguntasDeTexto::askText(const QString &prompt)
{
    m_sesion.Avisa(prompt);
    return linea();
}

host::Questions::Answer PreguntasDeTexto::askYesNoCancel(const QString &title, const QString &text)
{
    return askYesNo(title, text) ? Answer::Yes : Answer::No;
}

bool PreguntasDeTexto::askYesNo(const QString &title, const QString &text)
{
    const QString si = m_sesion.M.TXT_Si.isEmpty() ? u"Yes"_s : m_sesion.M.TXT_Si;
    const QString no = m_sesion.M.TXT_No.isEmpty() ? u"No"_s : m_sesion.M.TXT_No;
    m_sesion.Avisa(title + u": "_s + text + u" ("_s + si + u'/' + no + u')');
    const QString dicho = host::upper(linea().trimmed());
    return dicho == host::upper(si) || dicho == host::upper(si).left(1);
}

void PreguntasDeTexto::tell(const QString &title, const QString &text)
{
    m_sesion.Avisa(title + u": "_s + text);
}

void PreguntasDeTexto::endWithError(const QString &title, const QString &text)
{
    tell(title, text);
    host::endProcess(NoPudo);
}

void PreguntasDeTexto::endProcess(int status)
{
    host::endProcess(status);
}

} // namespace companion
