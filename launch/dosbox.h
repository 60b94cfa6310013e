// A run in DOSBox: the configuration that is written for it.
#pragma once

#include "launch/carpetadecorrida.h"
#include "launch/encargo.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace launch {

// The text of the configuration: the drives, the emulator's directory, its command, the end.
// The places are said as they are; none of them may hold a double quote or a control character.
QByteArray ConfiguracionDOS(const Encargo &encargo);

// What starts the same run without a file. Places that can't be said there are said as they are; drives that
// show files under other names are made with a run alone.
QStringList ArgumentosDeDOSBox(Encargo encargo);

// The files of one run; they go with it.
class CarpetaDOS {
public:
    explicit CarpetaDOS(Encargo encargo);

    // What is to be started; empty if the files couldn't be written.
    const QStringList &Argumentos() const { return m_argumentos; }

    // At the end of the game.
    Rescate Recoge() { return m_carpeta.Recoge(); }

private:
    bool enlaza(std::vector<UnidadesDOS::Montaje> &montajes);

    CarpetaDeCorrida m_carpeta;
    QStringList m_argumentos;
};

} // namespace launch
