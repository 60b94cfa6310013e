#include "core/lineas.h"

namespace core {

namespace {

// A line break in a value would become a line of its own, with a meaning of its own.
QString enUnaLinea(QString linea)
{
    return linea.replace(u'\r', u' ').replace(u'\n', u' ');
}

} // namespace

std::vector<LineaConFin> EnLineas(QStringView texto)
{
    std::vector<LineaConFin> lineas;
    qsizetype inicio = 0;
    while (inicio < texto.size()) {
        const qsizetype salto = texto.indexOf(u'\n', inicio);
        const qsizetype siguiente = salto < 0 ? texto.size() : salto + 1;
        qsizetype final = salto < 0 ? texto.size() : salto;
        if (salto > inicio && texto[salto - 1] == u'\r')
            --final;
        lineas.push_back({ texto.sliced(inicio, final - inicio), texto.sliced(final, siguiente - final) });
        inicio = siguiente;
    }
    return lineas;
}

void Copia::Copiar(const LineaConFin &linea)
{
    cierraLinea();
    m_texto += linea.linea;
    m_texto += linea.fin;
}

void Copia::Copiar(const std::vector<LineaConFin> &lineas, size_t desde, size_t hasta)
{
    for (size_t i = desde; i < hasta; ++i)
        Copiar(lineas[i]);
}

void Copia::Nueva(const QString &linea)
{
    cierraLinea();
    m_texto += enUnaLinea(linea);
    m_texto += u"\r\n";
}

// Something follows a last line that had no end of its own, or half of one.
void Copia::cierraLinea()
{
    if (!m_texto.isEmpty() && !m_texto.endsWith(u'\n'))
        m_texto += m_texto.endsWith(u'\r') ? u"\n" : u"\r\n";
}

} // namespace core
