// The bytes of files and names as text and back, and what is done to the letters.
#include "entrada.h"
#include "temas.h"

#include "host/encoding.h"
#include "host/letters.h"

namespace pelusa {

namespace {

void ficheros(const QByteArray &bytes, const QString &nuevo)
{
    const host::DecodedText texto = host::decodeText(bytes);
    Exige(host::encodeText(texto) == bytes, "a file comes back byte for byte");

    host::DecodedText cambiado = texto;
    cambiado.text.prepend(u'x' + nuevo + u'x');
    const host::DecodedText leido = host::decodeText(host::encodeText(cambiado));
    ExigeIgual(leido.text, cambiado.text, "a text that was put in is read back");
    Exige(leido.endMark == texto.endMark, "the mark at the end stays");
}

void nombres(const QByteArray &bytes)
{
    const QString nombre = host::nameFromDisk(bytes);
    Exige(host::nameToDisk(nombre) == bytes, "a name on the disk comes back byte for byte");
    Exige(nombre.isValidUtf16(), "a name on the disk is a text");
}

qsizetype puntos(const QString &texto)
{
    return texto.toUcs4().size();
}

int signo(int numero)
{
    return (numero > 0) - (numero < 0);
}

void letras(const QString &a, const QString &b, const QString &c)
{
    const QString mayus = host::upper(a);
    Exige(puntos(mayus) == puntos(a), "one character in, one out", a, mayus);
    Exige(puntos(host::lower(a)) == puntos(a), "one character in, one out", a, host::lower(a));
    ExigeIgual(host::upper(mayus), mayus, "upper case has no further one");
    Exige(host::sameName(a, mayus), "a name is the same in upper case", a, mayus);
    Exige(host::sameName(a, b) == (mayus == host::upper(b)), "names are compared in upper case", a, b);
    Exige(signo(host::compareCodes(a, b)) == -signo(host::compareCodes(b, a)), "the order has two directions",
        a, b);
    Exige((host::compareCodes(a, b) == 0) == (a == b), "only equal texts are equal in their order", a, b);
    if (host::compareCodes(a, b) <= 0 && host::compareCodes(b, c) <= 0)
        Exige(host::compareCodes(a, c) <= 0, "the order is one", a, c);
}

} // namespace

void probarCodificacion(Bytes bytes)
{
    Entrada entrada(bytes);
    const QString a = entrada.Texto();
    const QString b = entrada.Nombre();
    const QString c = entrada.Texto();
    letras(a, b, c);
    const QByteArray resto = entrada.Resto();
    ficheros(resto, a);
    nombres(resto);
}

} // namespace pelusa
