#include "mesaderevision.h"

#include "companion/palabras.h"

#include "core/palabras.h"
#include "core/textos.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

QByteArray linea(QStringView clave, const QString &texto)
{
    return clave.toString().leftJustified(core::AnchoClave, u'.').toUtf8() + "=\"" + texto.toUtf8()
        + "\"\r\n";
}

} // namespace

Check::Check()
{
    Pon(u"Zembro.sye"_s, "-Sis\r\n*.NES\r\n'\r\n+Uno\r\n'------\r\n[EOF]\r\n");
    QByteArray idioma;
    for (const core::ClaveDeTexto &clave : core::ClavesDeTexto())
        idioma += linea(clave.nombre, u"x "_s);
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras())
        idioma += linea(clave.nombre, u"x "_s);
    // The answers that the tests expect.
    const companion::Palabras palabras;
    for (const companion::ClaveDePalabra &clave : companion::ClavesDePalabras())
        idioma += linea(clave.nombre, palabras.*clave.variable);
    Pon(u"LNG/ZB-ENG.LNG"_s, idioma);
    Pon(u"img/Sonic.gif"_s, UnGif());
}

QStringList Check::clases(const QStringList &argumentos) const
{
    const Respuesta respuesta = Zembro(argumentos + QStringList { u"--json"_s });
    QStringList todas;
    for (const QJsonValue &uno : QJsonDocument::fromJson(respuesta.salida)[u"findings"_s].toArray())
        todas += uno[u"kind"_s].toString();
    EXPECT_EQ(respuesta.estado, todas.isEmpty() ? companion::Bien : companion::Hallazgos);
    return todas;
}

QByteArray Check::dicho() const
{
    return Zembro({ u"check"_s }).salida;
}
