// zembro check in a program directory in which it finds nothing.
#pragma once

#include "mesadepruebas.h"

class Check : public MesaConJuegos {
protected:
    Check();

    // The kinds of what is found. Fails the test where the status isn't that of the answer.
    QStringList clases(const QStringList &argumentos = { QStringLiteral("check") }) const;
    // The answer.
    QByteArray dicho() const;

    // The pair that most tests are about.
    const QStringList SisUno { QStringLiteral("check"), QStringLiteral("Sis"), QStringLiteral("Uno") };
};
