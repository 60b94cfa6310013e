#include "core/primeravez.h"

#include "core/ajustes.h"
#include "core/catalogo.h"

#include "host/encoding.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace core {

namespace {

struct FicheroDeLengua {
    QStringView lengua; // as the names of locales begin
    QLatin1StringView fichero;
};
constexpr FicheroDeLengua FicherosDeLenguas[] = {
    { u"ca", "ZB-CAT.LNG"_L1 },
    { u"de", "ZB-DEU.LNG"_L1 },
    { u"en", "ZB-ENG.LNG"_L1 },
    { u"es", "ZB-ESP.LNG"_L1 },
    { u"fr", "ZB-FRA.LNG"_L1 },
    { u"it", "ZB-ITA.LNG"_L1 },
    { u"pt", "ZB-POR.LNG"_L1 },
};

// "ca" of "ca_ES.UTF-8@valencia".
QStringView lenguaDe(QStringView local)
{
    const auto fin = std::find_if(local.begin(), local.end(), [](QChar letra) { return !letra.isLetter(); });
    return local.first(fin - local.begin());
}

QString textoDelCatalogo()
{
    return host::decodeText(host::readBytes(host::programFile(u"Zembro.emu"_s))).text;
}

} // namespace

QString IdiomaDeLocal(const QString &local, const QStringList &idiomas)
{
    const QStringView lengua = lenguaDe(local);
    for (const FicheroDeLengua &suyo : FicherosDeLenguas) {
        if (suyo.lengua == lengua && idiomas.contains(suyo.fichero))
            return suyo.fichero;
    }
    const QString ingles = u"ZB-ENG.LNG"_s;
    return idiomas.contains(ingles) ? ingles : idiomas.value(0);
}

QString LocalDelEntorno()
{
    for (const char *variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return host::nameFromDisk(qgetenv(variable));
    }
    return {};
}

bool PonPrimerosAjustes(Modulo &M, const QString &idioma, const QString &sistema, const QString &emulador)
{
    if (!EsPrimeraVez(M))
        return false;
    const QString texto = textoDelCatalogo();
    const Posiciones lugar = PosicionesEnTexto(*CatalogoDe(texto), texto, sistema, emulador);
    const QString ajustes = ConAjuste(AjustesPorDefecto(idioma), Ajuste::UltimaSeleccion,
        LineasDeUltimaSeleccion(lugar.sistema, lugar.emulador));
    M.Ficheros.replace(host::programFile(u"Zembro.cfg"_s), u"Zembro.tmp"_s, ajustes);
    return true;
}

} // namespace core
