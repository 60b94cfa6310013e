// A run in DOSBox: the configuration that is written for it.
#pragma once

#include "launch/apodos.h"
#include "launch/carpetadecorrida.h"
#include "launch/encargo.h"

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <vector>

namespace launch {

// The text of the configuration: the drives, the emulator's directory, its command, the end.
// The places are said as they are; none of them may hold a double quote or a control character.
QByteArray ConfiguracionDOS(const Encargo &encargo);

// What starts the same run without a file. Places that can't be said there are said as they are.
QStringList ArgumentosDeDOSBox(const Encargo &encargo);

// The files of one run; they go with it.
class CarpetaDOS {
public:
    explicit CarpetaDOS(Encargo encargo);

    // What is to be started; empty if the files couldn't be written.
    const QStringList &Argumentos() const { return m_argumentos; }

private:
    bool enlaza(std::vector<UnidadesDOS::Montaje> &montajes);

    CarpetaDeCorrida m_carpeta;
    std::vector<std::unique_ptr<CarpetaDeApodos>> m_apodos;
    QStringList m_argumentos;
};

} // namespace launch
