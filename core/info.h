// From an entry of the list back to its file: the line of facts, and the capture's name.
#pragma once

#include "core/lista.h"
#include "core/modulo.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace core {

// What an entry of the list stands for.
struct FichaDeROM {
    QString nombre; // the note's key in upper case, or the entry's own text
    bool conNota = false;
};

// Gives every note with this text, in the order of the table, to `visita`; without one, the text itself. The
// first note is always tried. Fails with 9 behind a full table.
void BuscaROM(const Modulo &M, const QString &texto, const std::function<void(const FichaDeROM &)> &visita);

// The notes of the tables by their texts, for thousands of entries: as BuscaROM and NotaConTexto, which walk
// through all of them. The notes must stay as they are.
class NotasPorTexto {
public:
    explicit NotasPorTexto(const Modulo &M);

    void Busca(const QString &texto, const std::function<void(const FichaDeROM &)> &visita) const;
    int Primera(const QString &texto) const;

private:
    const Modulo &M;
    QHash<QString, QList<int>> m_notas;
    int m_recorridas = 0;
};

// The file of the ROM directory whose length the line of facts tells; none for a type whose lines tell none.
std::optional<QString> FicheroMedido(int tipo, const FichaDeROM &ficha);

// The line of facts of an emulator type; empty for a type without one. Fails with 13 for a ZIP with a note
// whose size rounds to nothing.
QString LineaDeInfo(int tipo, const FichaDeROM &ficha, qint64 bytes);

// Whether a file is surely there, told without a look at it: false proves nothing.
using EstaSeguro = std::function<bool(const QString &ruta)>;

// The line of the last of the notes with this text, or of the text itself; where a file can't be looked at,
// of the one ahead, and empty where that was the first. Thousands of notes may share a text: only the one
// line is put together, and loose files that surely are there aren't looked at for the others' sake.
QString UltimaLineaDeInfo(const Modulo &M, const QString &texto, int tipo, const QString &directorio,
    const LargosDeFicheros &largos, const EstaSeguro &esta);
QString UltimaLineaDeInfo(const NotasPorTexto &notas, const QString &texto, int tipo,
    const QString &directorio, const LargosDeFicheros &largos, const EstaSeguro &esta);

// What of a line of facts is shown where the whole has no room: letters are left out of the middle of the
// name, and the size and the mark behind it stay. Where not even they fit, the name's ends are gone.
QString InfoQueCabe(const QString &linea, const std::function<bool(const QString &)> &cabe);

// Path of the capture; empty for a type without captures. Fails with 5 for a name without the point at which
// it is cut.
QString RutaDeCaptura(int tipo, const QString &directorio, const FichaDeROM &ficha);

// The captures of the notes with this text, or of the text itself: the one that shows stands last, ahead of
// it stands each other one once; it shows only where they all can be read. None for a type without captures.
// Fails with 5 as RutaDeCaptura does, and with 9 as BuscaROM.
QStringList CapturasDe(const Modulo &M, const QString &texto, int tipo, const QString &directorio);
QStringList CapturasDe(const NotasPorTexto &notas, const QString &texto, int tipo, const QString &directorio);

} // namespace core
