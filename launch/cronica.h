// What became of a launch, as it is told while it goes on, and read again afterwards.
//
// A line is "zembrolix", the time, the process and the number of its launch, what happened, and what belongs
// to it, quoted as for a shell: "game" system emulator entry; "start" arguments; "directory" where; "notice"
// what was told ahead of the start; "failed" why; "status" or "signal" number "after" seconds.
#pragma once

#include "host/process.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace launch {

// How the reason begins where there is no executable, its path behind it, and where it didn't start.
inline const QString SinEjecutable = QStringLiteral("There is no executable ");
inline const QString NoArranco = QStringLiteral("Failed to start a program: ");

struct Partida {
    QString momento; // the local time of its beginning
    QString sistema;
    QString emulador;
    QString entrada;
    QStringList argumentos; // as the emulator got them; empty if it came to no start
    QString directorio;
    QString aviso; // what was told ahead of the start; empty for nothing
    QString fallo; // why it didn't start; empty if it did
    bool acabada = false; // it was seen to end, also where how isn't known
    host::ProcessEnd final; // how the emulator ended, if it has
    double segundos = 0; // that it ran
};

// Takes a line.
using Voz = std::function<void(const QString &linea)>;

// Tells of one launch, and remembers it.
class Cronica {
public:
    explicit Cronica(Voz voz);

    void Juego(const QString &sistema, const QString &emulador, const QString &entrada);
    void Orden(const QStringList &argumentos, const QString &directorio);
    void Aviso(const QString &texto);
    void Fallo(const QString &motivo);
    void Final(const host::ProcessEnd &final, double segundos);

    const Partida &LaPartida() const { return m_partida; }

private:
    void Di(const QStringList &partes);

    Voz m_voz;
    QString m_numero;
    Partida m_partida;
};

// The last launch that these lines tell of; none if there is none. Other lines are passed over.
std::optional<Partida> UltimaPartida(const QString &texto);

} // namespace launch
