// Parameters of a game, as the file gives them back.
#pragma once

#include <QString>

namespace pelusa {

// What is read of a text that was written: with double quotes in it, it loses the blanks at its ends.
inline QString ParametrosLeidos(QStringView texto)
{
    if (!texto.contains(u'"'))
        return texto.toString();
    while (texto.startsWith(u' '))
        texto = texto.sliced(1);
    while (texto.endsWith(u' '))
        texto.chop(1);
    return texto.toString();
}

} // namespace pelusa
