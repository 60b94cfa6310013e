#include "core/romelegida.h"

#include "core/lista.h"
#include "core/notas.h"

#include "host/letters.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int LargoDeTerminacion = 4; // ".zip"

} // namespace

QString FicheroDeEntrada(const Modulo &M, int tipo, const QString &entrada)
{
    return FicheroDeEntrada(M, tipo, entrada, NotaConTexto(M, entrada));
}

QString FicheroDeEntrada(const Modulo &M, int tipo, const QString &entrada, int nota)
{
    if (nota < 0)
        return entrada;
    return host::upper(M.Nota_Clave(nota)) + (UnZipPorJuego(tipo) ? u".zip"_s : QString());
}

QString ClaveNueva(int tipo, const QString &entrada)
{
    const QString clave = host::upper(entrada);
    return UnZipPorJuego(tipo) ? clave.first(host::startOfLast(clave, LargoDeTerminacion)) : clave;
}

QString ClaveDeParametros(const Modulo &M, const QString &entrada)
{
    const int nota = NotaConTexto(M, entrada);
    return nota < 0 ? entrada : M.Nota_Clave(nota);
}

bool SeEncuentranSusParametros(const Modulo &M, const QString &entrada)
{
    return NotaConTexto(M, entrada) >= 0 || (!entrada.contains(u' ') && entrada.count(u'.') <= 1);
}

QString ParametrosEscritos(
    host::TextSource &fuente, const QString &clave, const QString &sistema, const QString &emulador)
{
    while (!fuente.readLine().startsWith(CabeceraParametros)) { }
    for (;;) {
        const QString claveLeida = fuente.readField();
        if (claveLeida == u"'")
            return {};
        const QString sistemaLeido = CampoOVacio(fuente);
        const QString emuladorLeido = CampoOVacio(fuente);
        const QString parametros = CampoOVacio(fuente);
        if (host::sameName(claveLeida, clave) && host::sameName(sistemaLeido, sistema)
            && host::sameName(emuladorLeido, emulador))
            return parametros;
    }
}

} // namespace core
