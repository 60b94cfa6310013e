// A directory for one run of a program of another system, among the temporary ones.
#pragma once

#include "launch/rescate.h"

#include <QByteArray>
#include <QString>

namespace launch {

// What earlier runs left is brought back as it is made. It goes with the object, unless its game goes on.
class CarpetaDeCorrida {
public:
    CarpetaDeCorrida();
    ~CarpetaDeCorrida();
    CarpetaDeCorrida(const CarpetaDeCorrida &) = delete;
    CarpetaDeCorrida &operator=(const CarpetaDeCorrida &) = delete;

    const QString &Ruta() const { return m_corrida.ruta; } // empty if it couldn't be made

    bool Escribe(const QByteArray &nombre, const QByteArray &bytes) const;

    // What couldn't be brought back of earlier runs.
    const std::vector<Pendiente> &DeAntes() const { return m_deAntes.pendientes; }

    // At the end of the game: what it saved goes to its place. What can't is told.
    Rescate Recoge();

private:
    Rescate m_deAntes;
    Corrida m_corrida;
    bool m_recogida = false;
};

} // namespace launch
