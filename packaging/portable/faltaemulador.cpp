// FaltaEmulador SCRIPT: shows in a box what a script that stands for an emulator lacks, and how to get it, in
// the language of the program directory in which this stands.

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
    if (argc != 2) {
        std::fputs("usage: FaltaEmulador SCRIPT\n", stderr);
        return 2;
    }
    host::rememberEnvironment();
    if (!host::hasDisplay())
        return 1;
    forms::Application aplicacion(argc, argv);
    const auto M = std::make_unique<core::Modulo>();
    const companion::Palabras palabras = companion::LeeIdioma(*M);
    host::setAnswerWords({ {}, {}, M->TXT_Aceptar, {} });
    for (const companion::Impedimento &falta : companion::LoQueLeFalta(host::nameFromDisk(argv[1]), palabras))
        host::DesktopQuestions().tell(u"Zembrolix"_s, falta.texto);
    return 0;
}
