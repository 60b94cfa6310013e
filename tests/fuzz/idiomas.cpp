// Language files: the texts, and the words of the program's own.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "core/idiomas.h"
#include "core/lineas.h"
#include "core/modulo.h"
#include "core/palabras.h"
#include "core/textos.h"

#include "host/encoding.h"
#include "host/failure.h"

#include <QHash>

#include <optional>
#include <string>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr std::size_t Delante = 20; // characters of a line ahead of its text

QString textoDeLinea(const std::u32string &linea)
{
    return linea.size() <= Delante
        ? QString()
        : QString::fromStdU32String(linea.substr(Delante, linea.size() - Delante - 1));
}

// What the file gives to a key: the text of its last line; none without a line.
std::optional<QString> textoDe(QStringView clave, const QString &fichero)
{
    const QString rellena = clave.toString().leftJustified(18, u'.');
    std::optional<QString> texto;
    for (const core::LineaConFin &linea : core::EnLineas(fichero)) {
        if (linea.linea.startsWith(rellena))
            texto = textoDeLinea(linea.linea.toString().toStdU32String());
    }
    return texto;
}

void textos(const QString &fichero)
{
    core::TextosIdioma textos;
    QHash<QString, QString> directos;
    core::LectorDeTextos lector(
        textos, [&directos](const QString &nombre, const QString &texto) { directos[nombre] = texto; });
    bool corta = false;
    const int fallo = Fallo({ host::InvalidArgument }, "reading a language", [&] {
        for (const core::LineaConFin &linea : core::EnLineas(fichero)) {
            corta =
                linea.linea.toString().toStdU32String().size() <= Delante && !linea.linea.startsWith(u'\'');
            lector.Linea(linea.linea.toString());
        }
    });
    Exige((fallo != 0) == corta, "only a line that is too short fails");
    if (fallo != 0)
        return;
    for (const core::ClaveDeTexto &clave : core::ClavesDeTexto()) {
        const std::optional<QString> seria = textoDe(clave.nombre, fichero);
        if (clave.variable)
            ExigeIgual(
                textos.*(clave.variable), seria.value_or(QString()), "a text is that of its last line");
        else
            ExigeIgual(directos.value(clave.nombre.toString()), seria.value_or(QString()),
                "a text is that of its last line");
    }
}

void palabras(const QString &fichero)
{
    core::Palabras palabras;
    const int fallo = Fallo({ host::InvalidArgument }, "reading a word", [&] {
        for (const core::LineaConFin &linea : core::EnLineas(fichero))
            core::LeePalabra(palabras, linea.linea.toString());
    });
    if (fallo != 0)
        return;
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras()) {
        const QString propia = core::Palabras().*(clave.variable);
        ExigeIgual(palabras.*(clave.variable), textoDe(clave.nombre, fichero).value_or(propia),
            "a word is that of its last line, or its own");
    }
}

} // namespace

void probarIdiomas(Bytes bytes)
{
    const QByteArray resto = Entrada(bytes).Resto();
    const QString fichero = host::decodeText(resto).text;
    textos(fichero);
    palabras(fichero);
    PonFichero("LNG/ZB-XXX.LNG", resto);
    core::Modulo M;
    Fallo({ host::InvalidArgument }, "reading the credit", [&M, &fichero] {
        const QString credito = core::CreditoDeIdioma(M, u"ZB-XXX.LNG"_s);
        Exige(credito.isEmpty() || fichero.contains(credito), "the credit stands in the file", credito);
    });
}

} // namespace pelusa
