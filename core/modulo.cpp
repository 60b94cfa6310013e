#include "core/modulo.h"

#include "host/letters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

int Numero(const QString &texto)
{
    return texto.size() == 1 && texto[0] >= u'0' && texto[0] <= u'9' ? texto[0].unicode() - u'0' : -1;
}

int NumeroDeAjuste(const QString &texto)
{
    const QString recortado = texto.trimmed();
    const bool negativo = recortado.startsWith(u'-');
    qsizetype inicio = negativo ? 1 : 0;
    while (inicio < recortado.size() && recortado[inicio] == u'0')
        ++inicio;
    qsizetype final = inicio;
    while (final < recortado.size() && recortado[final] >= u'0' && recortado[final] <= u'9')
        ++final;
    constexpr qsizetype cifrasSeguras = 9; // more can't be a position, and would not fit
    const int valor = QStringView(recortado).sliced(inicio, std::min(final - inicio, cifrasSeguras)).toInt();
    return negativo ? -valor : valor;
}

QString TipoDe(const QString &lineaXDI)
{
    return lineaXDI.sliced(host::startOfLast(lineaXDI, 1));
}

QString Valor(const QString &linea, int prefijo)
{
    return linea.mid(prefijo);
}

QString ValorExigido(const QString &linea, int prefijo)
{
    if (linea.size() < prefijo)
        throw host::Failure(host::InvalidArgument, u"read a line of the catalogue"_s, linea);
    return Valor(linea, prefijo);
}

} // namespace core
