#include "companion/partesdeprograma.h"

#include "host/encoding.h"

#include <QtEndian>

#include <optional>
#include <vector>

namespace companion {

namespace {

constexpr qsizetype Cabecera32 = 52;
constexpr qsizetype Cabecera64 = 64;
constexpr quint32 SeCarga = 1; // kinds of parts
constexpr quint32 Interprete = 3;

struct Parte {
    quint32 clase = 0;
    quint64 sitio = 0;
    quint64 largo = 0; // in the file
};

bool es64(const QByteArray &principio)
{
    return principio[4] == 2;
}

bool esELF(const QByteArray &principio)
{
    constexpr char bajoPrimero = 1;
    return principio.startsWith("\x7f"
                                "ELF")
        && principio.size() > 5 && (principio[4] == 1 || es64(principio)) && principio[5] == bajoPrimero;
}

template <typename Numero> Numero en(const QByteArray &principio, qsizetype donde)
{
    return qFromLittleEndian<Numero>(principio.constData() + donde);
}

// None where they don't lie within these bytes.
std::optional<std::vector<Parte>> partesDe(const QByteArray &principio)
{
    const bool de64 = es64(principio);
    if (principio.size() < (de64 ? Cabecera64 : Cabecera32))
        return std::nullopt;
    const qsizetype entrada = de64 ? 56 : 32;
    const quint64 tabla = de64 ? en<quint64>(principio, 32) : en<quint32>(principio, 28);
    const quint16 cuantas = en<quint16>(principio, de64 ? 56 : 44);
    if (tabla > quint64(principio.size()) || quint64(cuantas * entrada) > principio.size() - tabla)
        return std::nullopt;
    std::vector<Parte> partes;
    for (qsizetype donde = qsizetype(tabla); partes.size() < cuantas; donde += entrada) {
        const quint64 sitio = de64 ? en<quint64>(principio, donde + 8) : en<quint32>(principio, donde + 4);
        const quint64 largo = de64 ? en<quint64>(principio, donde + 32) : en<quint32>(principio, donde + 16);
        partes.push_back({ en<quint32>(principio, donde), sitio, largo });
    }
    return partes;
}

} // namespace

QString CargadorDe(const QByteArray &principio)
{
    if (!esELF(principio) || !es64(principio))
        return {};
    for (const Parte &parte : partesDe(principio).value_or(std::vector<Parte>())) {
        if (parte.clase != Interprete)
            continue;
        const quint64 todo = quint64(principio.size());
        if (parte.sitio > todo || parte.largo > todo - parte.sitio || parte.largo == 0)
            return {};
        return host::nameFromDisk(principio.sliced(qsizetype(parte.sitio), qsizetype(parte.largo) - 1));
    }
    return {};
}

bool EstaCortado(const QByteArray &principio, qint64 largo)
{
    if (!esELF(principio))
        return principio.startsWith("\x7f"
                                    "ELF")
            && principio.size() <= 5;
    const std::optional<std::vector<Parte>> partes = partesDe(principio);
    if (!partes)
        return principio.size() == largo; // else its table stands further on
    for (const Parte &parte : *partes) {
        const bool cabe = parte.sitio <= quint64(largo) && parte.largo <= quint64(largo) - parte.sitio;
        if (parte.clase == SeCarga && !cabe)
            return true;
    }
    return false;
}

} // namespace companion
