#include "companion/imprimible.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// The character that stands for a byte of a name that is no text.
constexpr char16_t PrimerByte = 0xF780;
constexpr char16_t UltimoByte = 0xF7FF;

bool esByte(char16_t c)
{
    return c >= PrimerByte && c <= UltimoByte;
}

bool gobierna(char16_t c)
{
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool direccion = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E)
        || (c >= 0x2066 && c <= 0x2069);
    return control || direccion || c == 0x2028 || c == 0x2029 || c == 0xFEFF;
}

QString enHexadecimal(int numero, int cifras)
{
    return QString::number(numero, 16).toUpper().rightJustified(cifras, u'0');
}

} // namespace

QString Imprimible(const QString &texto)
{
    QString resultado;
    resultado.reserve(texto.size());
    for (const QChar letra : texto) {
        const char16_t c = letra.unicode();
        if (esByte(c))
            resultado += u"\\x"_s + enHexadecimal(c & 0xFF, 2);
        else if (!gobierna(c))
            resultado += letra;
        else if (c < 0x80)
            resultado += u"\\x"_s + enHexadecimal(c, 2);
        else
            resultado += u"\\u{"_s + enHexadecimal(c, 4) + u'}';
    }
    return resultado;
}

QByteArray ComoJson(const QJsonObject &objeto)
{
    const QString texto = QString::fromUtf8(QJsonDocument(objeto).toJson());
    QString resultado;
    resultado.reserve(texto.size());
    for (const QChar letra : texto) {
        // Outside its strings JSON holds nothing of these but ends of lines.
        if (letra != u'\n' && gobierna(letra.unicode()))
            resultado += u"\\u"_s + enHexadecimal(letra.unicode(), 4);
        else
            resultado += letra;
    }
    return resultado.toUtf8();
}

} // namespace companion
