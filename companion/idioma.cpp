#include "companion/idioma.h"

#include "core/ajustes.h"
#include "core/textos.h"

#include "host/failure.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Takes the words of a language file. False if there is no such file.
bool LeeFicheroDeIdioma(core::Modulo &M, Palabras &palabras, const QString &fichero)
{
    M.Ficheros.closeAll();
    bool abierto = false;
    try {
        M.Ficheros.openForInput(1, host::programFile(u"LNG/"_s + fichero));
        abierto = true;
        core::LectorDeTextos textos(M, [](const QString &, const QString &) {});
        while (!M.Ficheros.atEnd(1)) {
            const QString linea = M.Ficheros.readLine(1);
            LeePalabra(palabras, linea);
            try {
                textos.Linea(linea);
                core::LeePalabra(M.Palabras, linea);
            } catch (const host::Failure &) {
                // A line without its text: its word stays as it is built in.
            }
        }
    } catch (const host::Failure &) {
        // What was read stands.
    }
    M.Ficheros.closeAll();
    return abierto;
}

} // namespace

Palabras LeeIdioma(core::Modulo &M)
{
    Palabras palabras;
    try {
        core::LeeAjustes(M);
    } catch (const host::Failure &) {
        // What was read stands.
    }
    if (M.LanguageFile.isEmpty() || !LeeFicheroDeIdioma(M, palabras, M.LanguageFile))
        LeeFicheroDeIdioma(M, palabras, u"ZB-ENG.LNG"_s);
    return palabras;
}

} // namespace companion
