#include "launch/lineadeorden.h"

#include "host/process.h"

using namespace Qt::StringLiterals;

namespace launch {

LineaDeOrden &LineaDeOrden::Texto(const QString &texto)
{
    m_piezas.push_back({ texto, {}, false });
    return *this;
}

LineaDeOrden &LineaDeOrden::Ruta(const QString &texto, const QString &enDisco)
{
    m_piezas.push_back({ texto, enDisco, true });
    return *this;
}

LineaDeOrden LineaDeOrden::DeArgumentos(const QStringList &argumentos)
{
    LineaDeOrden orden;
    for (const QString &argumento : argumentos) {
        if (!orden.m_piezas.empty())
            orden.Texto(u" "_s);
        orden.Ruta(argumento, argumento);
    }
    return orden;
}

QString LineaDeOrden::EnTexto() const
{
    QString texto;
    for (const Pieza &pieza : m_piezas)
        texto += pieza.texto;
    return texto;
}

QStringList LineaDeOrden::Argumentos() const
{
    if (m_piezas.empty())
        return {};
    const Pieza &programa = m_piezas.front();
    if (programa.ruta ? programa.enDisco.isEmpty() : programa.texto.trimmed().isEmpty())
        return {};

    host::ArgumentSplitter divisor;
    for (const Pieza &pieza : m_piezas) {
        if (pieza.ruta)
            divisor.addWhole(pieza.enDisco);
        else
            divisor.addText(pieza.texto);
    }
    return divisor.arguments();
}

} // namespace launch
