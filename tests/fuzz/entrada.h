// Bytes taken apart into the values that a topic works on. Fields end at a null byte, and numbers count from
// the digit '0', so that an input can be written by hand.
#pragma once

#include "tema.h"

#include <QByteArray>
#include <QStringList>

namespace pelusa {

class Entrada {
public:
    explicit Entrada(Bytes bytes);

    bool Acabada() const { return m_resto.isEmpty(); }

    // From 0 to total - 1, made of one byte; 0 at the end.
    int Numero(int total);

    QByteArray Campo(); // up to the next null byte, which goes
    QString Texto(); // a field, as a text file holds it
    QString Nombre(); // a field, as the name of a file
    QString UnoDe(const QStringList &textos); // one of them, or a text that the input brings
    QByteArray Resto(); // all that is left

private:
    QByteArray m_resto;
};

} // namespace pelusa
