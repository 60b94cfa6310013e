// A directory for one run of a program of another system, among the temporary ones.
#pragma once

#include <QByteArray>
#include <QString>

namespace launch {

// It and the files in it go with the object; what killed runs left goes with the next one.
class CarpetaDeCorrida {
public:
    CarpetaDeCorrida();
    ~CarpetaDeCorrida();
    CarpetaDeCorrida(const CarpetaDeCorrida &) = delete;
    CarpetaDeCorrida &operator=(const CarpetaDeCorrida &) = delete;

    const QString &Ruta() const { return m_ruta; } // empty if it couldn't be made

    bool Escribe(const QByteArray &nombre, const QByteArray &bytes) const;

private:
    QString m_ruta;
};

} // namespace launch
