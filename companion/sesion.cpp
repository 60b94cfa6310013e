#include "companion/sesion.h"

#include "companion/imprimible.h"

#include <QJsonArray>

#include <utility>

using namespace Qt::StringLiterals;

namespace companion {

Sesion::Sesion(const Pedido &pedido, const Palabras &palabrasDelIdioma, core::Modulo &modulo, Consola consola)
    : palabras(palabrasDelIdioma)
    , M(modulo)
    , m_pedido(pedido)
    , m_consola(std::move(consola))
{
}

QString Sesion::Valor(const QString &opcion) const
{
    const QStringList valores = m_pedido.opciones.value(opcion);
    return valores.isEmpty() ? QString() : valores.last();
}

void Sesion::Escribe(const QString &linea) const
{
    m_consola.sale(Imprimible(linea).toUtf8() + '\n');
}

void Sesion::Escribe(const QStringList &lineas) const
{
    for (const QString &linea : lineas)
        Escribe(linea);
}

void Sesion::EscribeColumnas(const QStringList &columnas) const
{
    QStringList visibles;
    for (const QString &columna : columnas)
        visibles += Imprimible(columna);
    m_consola.sale(visibles.join(u'\t').toUtf8() + '\n');
}

void Sesion::Json(const QJsonObject &objeto) const
{
    m_consola.sale(ComoJson(objeto));
}

void Sesion::Avisa(const QString &linea) const
{
    m_consola.error("zembro: " + Imprimible(linea).toUtf8() + '\n');
}

int Sesion::Falla(const QString &motivo) const
{
    return Falla(QStringList { motivo });
}

int Sesion::Falla(const QStringList &lineas) const
{
    Avisa(lineas.value(0));
    for (const QString &linea : lineas.mid(1))
        m_consola.error("    " + Imprimible(linea).toUtf8() + '\n');
    QJsonObject objeto { { u"error"_s, lineas.value(0) } };
    if (lineas.size() > 1)
        objeto[u"candidates"_s] = QJsonArray::fromStringList(lineas.mid(1));
    if (EnJson())
        Json(objeto);
    return NoPudo;
}

QString TextoDe(const host::Failure &fallo)
{
    const QString texto = u"Failed to "_s + fallo.operation();
    return fallo.about().isEmpty() ? texto + u'.' : texto + u": "_s + fallo.about();
}

} // namespace companion
