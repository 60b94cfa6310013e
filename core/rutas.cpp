#include "core/rutas.h"

#include "core/catalogo.h"
#include "core/modulo.h"

#include "host/drives.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

bool esSeparador(QChar letra)
{
    return letra == u'/' || letra == u'\\';
}

bool empiezaPorUnidad(QStringView valor)
{
    if (valor.size() < 2 || valor[1] != u':')
        return false;
    const char16_t letra = valor[0].unicode() | 0x20;
    return letra >= u'a' && letra <= u'z';
}

} // namespace

bool EsRutaRelativa(QStringView valor)
{
    return !valor.trimmed().isEmpty() && !esSeparador(valor[0]) && !empiezaPorUnidad(valor);
}

QString RutaDeValor(const QString &valor)
{
    return EsRutaRelativa(valor) ? RutaDeValor(valor, host::programDirectory()) : valor;
}

QString RutaDeValor(const QString &valor, const QString &directorio)
{
    return EsRutaRelativa(valor) ? directorio + u'/' + valor : valor;
}

QString RutaDeLinea(const QString &linea)
{
    return RutaDeValor(Valor(linea, PrefijoRuta));
}

QString RutaExigida(const QString &linea)
{
    return RutaDeValor(ValorExigido(linea, PrefijoRuta));
}

QString ValorDeRuta(const QString &ruta)
{
    return ValorDeRuta(ruta, host::programDirectory());
}

QString ValorDeRuta(const QString &ruta, const QString &directorio)
{
    if (!ruta.startsWith(directorio + u'/'))
        return ruta;
    const QString valor = ruta.sliced(directorio.size() + 1);
    // A name that looks like a drive, or begins with a separator, would be read as another place.
    return EsRutaRelativa(valor) ? valor : ruta;
}

QChar UnidadQueFalta(const QString &ruta)
{
    const QChar letra = host::driveLetter(ruta);
    const bool soloLetra = ruta.size() > 2 && !esSeparador(ruta[2]); // "a:b" is a name
    if (letra.isNull() || soloLetra)
        return {};
    const host::Drive *unidad = host::driveNamed(letra);
    return unidad && host::exists(unidad->place) ? QChar() : letra;
}

} // namespace core
