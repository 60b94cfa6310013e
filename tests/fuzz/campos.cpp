// Lines and fields of a text.
#include "entrada.h"
#include "temas.h"

#include "core/lineas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/textsource.h"

namespace pelusa {

namespace {

void lineas(const QString &texto)
{
    host::TextSource fuente(texto);
    core::Copia copia;
    QString juntas;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        Exige(!fuente.atEnd(), "there are as many lines to read as to copy");
        ExigeIgual(fuente.readLine(), linea.linea.toString(), "a line is read as it is copied");
        Exige(!linea.linea.contains(u'\n'), "no line holds another");
        juntas += linea.linea;
        juntas += linea.fin;
        copia.Copiar(linea);
    }
    Exige(fuente.atEnd(), "there are as many lines to read as to copy");
    ExigeIgual(juntas, texto, "the lines and their ends are the text");
    ExigeIgual(copia.Texto(), texto, "a copy is the text");
}

// What stood before is what was read, and what is left.
void campo(host::TextSource &fuente)
{
    const QString antes = fuente.rest().toString();
    const QString campo = fuente.readField();
    const QString quedan = fuente.rest().toString();
    Exige(quedan.size() < antes.size() && antes.endsWith(quedan), "a field takes something", antes, quedan);
    const QString tomado = antes.chopped(quedan.size());
    Exige(tomado.contains(campo), "a field stands in what was taken", tomado, campo);
    qsizetype inicio = 0;
    while (inicio < antes.size() && antes[inicio] == u' ')
        ++inicio;
    if (inicio < antes.size() && antes[inicio] == u'"') {
        Exige(!campo.contains(u'"'), "a quoted field ends at its quote", campo);
        return;
    }
    Exige(!campo.contains(u',') && !campo.contains(u'\n'), "a bare field ends at a comma or a line", campo);
    Exige(!campo.startsWith(u' ') && !campo.endsWith(u' '), "no blanks stand around a bare field", campo);
}

void mezcla(const QString &texto, Entrada &entrada)
{
    host::TextSource fuente(texto);
    while (!fuente.atEnd()) {
        if (entrada.Numero(2) == 0)
            campo(fuente);
        else
            fuente.readLine();
    }
    for (const bool entera : { false, true }) {
        try {
            if (entera)
                fuente.readLine();
            else
                fuente.readField();
            Exige(false, "nothing is read past the end");
        } catch (const host::Failure &fallo) {
            Exige(fallo.number() == host::PastEndOfFile, "reading past the end is that failure");
        }
    }
}

} // namespace

void probarCampos(Bytes bytes)
{
    Entrada entrada(bytes);
    const QByteArray orden = entrada.Campo();
    const QString texto = host::decodeText(entrada.Resto()).text;
    lineas(texto);
    Entrada pasos({ reinterpret_cast<const std::uint8_t *>(orden.constData()), std::size_t(orden.size()) });
    mezcla(texto, pasos);
}

} // namespace pelusa
