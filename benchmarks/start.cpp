// The start of the program, step by step as its main does it, until the filled list is painted.
// bench_start DIRECTORY BEGUN

#include "benchmarks/clock.h"

#include "core/modulo.h"

#include "forms/application.h"

#include "host/desktopquestions.h"
#include "host/display.h"
#include "host/paths.h"
#include "host/process.h"

#include "mainscreen/portada.h"

#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    host::rememberEnvironment();
    if (!host::hasDisplay())
        return 1;
    host::DesktopQuestions preguntas;
    host::setQuestions(&preguntas);
    forms::Application aplicacion(argc, argv);
    host::setProgramDirectory(QString::fromLocal8Bit(argv[1]));
    core::Modulo M;
    mainscreen::Portada portada(M);
    portada.Carga();
    portada.Lista1->repaint();
    QCoreApplication::processEvents();
    printStart(std::atof(argv[2]));
    const bool filled = portada.Lista1->ListCount() > 0;
    std::fflush(stdout);
    host::endProcess(filled ? 0 : 1);
}
