#include "languages.h"

#include "sources.h"

#include "companion/palabras.h"

#include "core/palabras.h"
#include "core/textos.h"

using namespace Qt::StringLiterals;

namespace languages {

void PrintTo(const Language &language, std::ostream *out)
{
    *out << language.name;
}

const std::vector<Language> &delivered()
{
    static const std::vector<Language> languages {
        { "Spanish", u"LNG/ZB-ESP.LNG"_s, u"Lng: Español - Autor: Dorvel"_s },
        { "English", u"LNG/ZB-ENG.LNG"_s, u"Lng: English - Author: Dorvel"_s },
        { "Italian", u"LNG/ZB-ITA.LNG"_s, u"Lng: Italiano - Autore: Dorvel"_s },
        { "French", u"LNG/ZB-FRA.LNG"_s, u"Lng\u00A0: Français - Auteur\u00A0: Dorvel"_s },
        { "German", u"LNG/ZB-DEU.LNG"_s, u"Lng: Deutsch - Autor: Dorvel"_s },
        { "Portuguese", u"LNG/ZB-POR.LNG"_s, u"Lng: Português - Autor: Dorvel"_s },
        { "Catalan", u"LNG/ZB-CAT.LNG"_s, u"Lng: Català - Autor: Dorvel"_s },
    };
    return languages;
}

QStringList companionKeys()
{
    QStringList keys;
    for (const companion::ClaveDePalabra &key : companion::ClavesDePalabras())
        keys += key.nombre.toString();
    return keys;
}

QStringList knownKeys()
{
    QStringList keys;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
        keys += key.nombre.toString();
    for (const core::ClaveDePalabra &key : core::ClavesDePalabras())
        keys += key.nombre.toString();
    keys += companionKeys();
    for (QString &key : keys)
        key = key.leftJustified(core::AnchoClave, u'.');
    keys.sort();
    return keys;
}

QStringList settings(const Language &language)
{
    QStringList lines = sources::lines(language.file);
    lines.removeIf([](const QString &line) { return line.startsWith(u'\''); });
    return lines;
}

QMap<QString, QString> texts(const Language &language)
{
    QMap<QString, QString> read;
    for (const QString &line : settings(language)) {
        QString key = line.left(core::AnchoClave);
        while (key.endsWith(u'.'))
            key.chop(1);
        read[key] = core::TextoDeLinea(line);
    }
    return read;
}

} // namespace languages
