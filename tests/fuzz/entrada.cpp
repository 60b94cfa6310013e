#include "entrada.h"

#include "host/encoding.h"

#include <utility>

namespace pelusa {

Entrada::Entrada(Bytes bytes)
    : m_resto(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size()))
{
}

int Entrada::Numero(int total)
{
    if (Acabada())
        return 0;
    const auto byte = static_cast<unsigned char>(m_resto.front() - '0');
    m_resto.remove(0, 1);
    return byte % total;
}

QByteArray Entrada::Campo()
{
    const qsizetype nulo = m_resto.indexOf('\0');
    const QByteArray campo = nulo < 0 ? m_resto : m_resto.first(nulo);
    m_resto.remove(0, nulo < 0 ? m_resto.size() : nulo + 1);
    return campo;
}

QString Entrada::Texto()
{
    return host::decodeText(Campo()).text;
}

QString Entrada::Nombre()
{
    return host::nameFromDisk(Campo());
}

QString Entrada::UnoDe(const QStringList &textos)
{
    const int total = int(std::min<qsizetype>(textos.size(), 32));
    const int cual = Numero(total + 1);
    return cual < total ? textos[cual] : Texto();
}

QByteArray Entrada::Resto()
{
    return std::exchange(m_resto, {});
}

} // namespace pelusa
