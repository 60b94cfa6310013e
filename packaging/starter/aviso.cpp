// Aviso TEXT: shows it in a box, as whoever starts from a menu sees no terminal. Aviso --missing SCRIPT: what
// a script that stands for an emulator lacks, and how to get it, in the language of the program directory in
// which this stands.

#include "companion/idioma.h"
#include "companion/impedimento.h"

#include "core/modulo.h"

#include "forms/application.h"

#include "host/desktopquestions.h"
#include "host/display.h"
#include "host/encoding.h"
#include "host/process.h"

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const bool deEmulador = argc == 3 && qstrcmp(argv[1], "--missing") == 0;
    if (argc != 2 && !deEmulador) {
        std::fputs("usage: Aviso TEXT | Aviso --missing SCRIPT\n", stderr);
        return 2;
    }
    const QString dado = host::nameFromDisk(argv[argc - 1]);
    host::rememberEnvironment();
    if (!host::hasDisplay())
        return 1;
    forms::Application aplicacion(argc, argv);
    const auto M = std::make_unique<core::Modulo>();
    const companion::Palabras palabras = companion::LeeIdioma(*M);
    host::setAnswerWords({ {}, {}, M->TXT_Aceptar, {} });
    QStringList textos;
    if (deEmulador) {
        for (const companion::Impedimento &falta : companion::LoQueLeFalta(dado, palabras))
            textos += falta.texto;
    } else {
        textos += dado;
    }
    for (const QString &texto : textos)
        host::DesktopQuestions().tell(u"Zembrolix"_s, texto);
    return 0;
}
