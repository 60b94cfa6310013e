// Finding an entry of a list by a part of its name, without regard to case and accents.
#pragma once

#include <QString>
#include <QStringList>

namespace core {

enum class Sentido { Adelante, Atras };

// The first entry that begins with the text; where none does, the first that holds it. -1: none, or no text.
int EntradaQueBusca(const QStringList &entradas, const QString &texto);

// The next entry that holds the text, from `desde` on without that one (-1: none stands selected), round the
// ends. -1: none, or no text.
int SiguienteEntrada(const QStringList &entradas, const QString &texto, int desde, Sentido sentido);

} // namespace core
