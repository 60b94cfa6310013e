#include "core/seccion.h"

#include "core/campos.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// The rest of a line of which the last field read was not the last one.
void acabaLaLinea(host::TextSource &fuente, QStringView leido)
{
    if (!fuente.atEnd() && !leido.endsWith(u'\n'))
        fuente.readLine();
}

void copiaComoEsta(Copia &copia, QStringView texto)
{
    for (const LineaConFin &linea : EnLineas(texto))
        copia.Copiar(linea);
}

QStringList camposDe(const Parametros &parametros)
{
    return { parametros.clave, parametros.sistema, parametros.emulador, parametros.texto };
}

QStringList camposDe(const QStringList &lineas)
{
    host::TextSource fuente(lineas.join(u'\n'));
    QStringList campos;
    while (!fuente.atEnd())
        campos << fuente.readField();
    return campos;
}

// A field that is an apostrophe closes a system without notes: the lines around it stay lines.
QStringList enLineasPropias(const Parametros &cierre)
{
    if (cierre.emulador == u"'" || cierre.texto == u"'")
        return camposDe(cierre);
    return { cierre.clave, cierre.sistema, cierre.emulador + u",\""_s + cierre.texto + u'"' };
}

// Lines that hold the closing record and nothing else. A field on a line of its own may be the header of a
// system that follows the section, unless it's empty or the word that no system is called by.
bool esSoloCierre(const QStringList &lineas, const QStringList &campos)
{
    if (lineas.size() == 1 && camposDe(lineas) == campos)
        return true;
    return lineas == campos.sliced(0, std::min(lineas.size(), campos.size()))
        && std::all_of(lineas.begin() + 1, lineas.end(),
            [](const QString &linea) { return linea.isEmpty() || linea == u"fin"; });
}

} // namespace

QString CampoOVacio(host::TextSource &fuente)
{
    return fuente.atEnd() ? QString() : fuente.readField();
}

std::optional<QString> ClaveEscrita(const QString &clave)
{
    if (clave == u"'")
        return std::nullopt;
    const bool pareceAncla = clave.startsWith(u'\'') || clave.startsWith(u'[');
    return CampoEscrito(clave, pareceAncla ? Comillas::Siempre : Comillas::SiHacenFalta);
}

std::optional<QString> RegistroDeParametros(const Parametros &parametros)
{
    const std::optional<QString> campos[] = { ClaveEscrita(parametros.clave),
        CampoEscrito(parametros.sistema), CampoEscrito(parametros.emulador), CampoEscrito(parametros.texto) };
    QStringList escritos;
    for (const std::optional<QString> &campo : campos) {
        if (!campo)
            return std::nullopt;
        escritos << *campo;
    }
    return escritos.join(u',');
}

RegistroLeido LeeRegistro(host::TextSource &fuente)
{
    const QStringView antes = fuente.rest();
    const auto leido = [&] { return antes.first(antes.size() - fuente.rest().size()); };
    RegistroLeido registro;
    registro.campos.clave = fuente.readField();
    registro.campos.sistema = CampoOVacio(fuente);
    registro.campos.emulador = CampoOVacio(fuente);
    registro.campos.texto = CampoOVacio(fuente);
    if (registro.EsCierre())
        acabaLaLinea(fuente, leido());
    registro.texto = leido();
    if (!fuente.atEnd() && registro.texto.endsWith(u',')) {
        registro.texto.chop(1);
        registro.faltaElUltimo = registro.texto.endsWith(u'\n');
    }
    return registro;
}

void CopiaRegistro(Copia &copia, const RegistroLeido &registro)
{
    const std::optional<QString> linea = RegistroDeParametros(registro.campos);
    if (linea)
        copia.Nueva(*linea);
    else
        copiaComoEsta(copia, registro.texto);
    if (!linea && registro.faltaElUltimo)
        copia.Nueva(u"\"\""_s);
}

void CopiaCierre(Copia &copia, const RegistroLeido &cierre)
{
    QStringList lineas;
    for (const LineaConFin &linea : EnLineas(cierre.texto))
        lineas << linea.linea.toString();
    const QStringList campos = camposDe(cierre.campos);
    const QStringList nuevas = enLineasPropias(cierre.campos);
    if (lineas == nuevas || !esSoloCierre(lineas, campos) || camposDe(nuevas) != campos) {
        copiaComoEsta(copia, cierre.texto);
        return;
    }
    for (const QString &linea : nuevas)
        copia.Nueva(linea);
}

} // namespace core
