#include "launch/codigo437.h"

namespace launch {

namespace {

constexpr char16_t PrimeraAlta = 128;
constexpr char16_t PrimeraDeControl = 127;

// From 128 on.
constexpr QStringView Altas = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»"
                              u"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
                              u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(Altas.size() == 128);

} // namespace

std::optional<QByteArray> EnCodigo437(const QString &texto)
{
    QByteArray bytes;
    for (const QChar letra : texto) {
        const qsizetype alta = letra.unicode() < PrimeraAlta ? -1 : Altas.indexOf(letra);
        const bool llana = letra >= u' ' && letra.unicode() < PrimeraDeControl;
        if (!llana && alta < 0)
            return std::nullopt;
        bytes += alta < 0 ? letra.toLatin1() : static_cast<char>(PrimeraAlta + alta);
    }
    return bytes;
}

QString DeCodigo437(const QByteArray &bytes)
{
    QString texto;
    for (const char byte : bytes) {
        const auto codigo = static_cast<unsigned char>(byte);
        texto += codigo < PrimeraAlta ? QChar(codigo) : Altas[codigo - PrimeraAlta];
    }
    return texto;
}

} // namespace launch
