// Texts that emulators come with.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "core/documentos.h"

#include "host/encoding.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

void candidatos(const QString &exe)
{
    const QString directorio = core::DirectorioDe(exe);
    Exige(exe.startsWith(directorio), "the program lies in its directory", exe, directorio);
    for (const QStringList &nombres : { core::CandidatosDeAyuda(exe), core::CandidatosDeConfiguracion(exe) }) {
        for (const QString &nombre : nombres)
            Exige(nombre.startsWith(directorio) && nombre.size() > directorio.size(),
                "a text lies beside the program", exe, nombre);
    }
}

// The bytes, and as many more as lead past the greatest length where `veces` asks for it.
void documento(const QByteArray &bytes, int veces)
{
    QByteArray todo = bytes;
    if (!bytes.isEmpty() && veces > 0)
        todo = bytes.repeated(core::LargoDeDocumento / bytes.size() + veces);
    PonFichero("texto.txt", todo);
    const core::Documento leido = core::LeeDocumento(host::nameFromDisk(Rincon() + "program/texto.txt"));
    Exige(leido.cortado == (todo.size() > core::LargoDeDocumento), "a text that is too long is cut");
    Exige(!leido.texto.endsWith(u' '), "no blank stands at the end");
    QString entero = host::decodeText(todo.left(core::LargoDeDocumento)).text;
    while (entero.endsWith(u' '))
        entero.chop(1);
    if (!leido.cortado)
        ExigeIgual(leido.texto, entero, "a short text is whole");
    else
        Exige(leido.texto.size() + 3 >= core::LargoDeDocumento / 4, "a long text keeps what fits");
}

} // namespace

void probarDocumentos(Bytes bytes)
{
    Entrada entrada(bytes);
    const int veces = entrada.Numero(3);
    candidatos(entrada.Nombre());
    documento(entrada.Resto(), veces);
}

} // namespace pelusa
