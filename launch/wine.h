// Paths as Windows programs read them under Wine.
#pragma once

#include "launch/carpetadecorrida.h"
#include "launch/encargo.h"

#include "host/drives.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace launch {

// False of a path with a sign that Windows has no names with, or a part that is a device, or ends in a blank
// or a point.
bool SeDiceEnWindows(const QString &ruta);

// "Z:\home\ana\roms\game.nes" of an absolute path in its spelling on the disk: on the drive that lies nearest
// above it. As it is where it lies on none, or has a name that Windows can't say.
QString RutaDeWindows(const QString &enDisco, const std::vector<host::Drive> &unidades);

// The drives that a Wine prefix has: of one that isn't made yet, those that it will have.
std::vector<host::Drive> UnidadesDeWine();

// The files of a line that Windows can't open by their names, each as a place of its own that shows it under
// another one.
std::vector<UnidadesDOS::Montaje> ApodosDeWindows(const LineaDeOrden &orden);

// What is to be started, where each path of the line lies at `lugarDe` it.
QStringList ArgumentosDeWine(const Encargo &encargo, const std::function<QString(const QString &)> &lugarDe);

// The files under other names of one run; they go with it.
class CarpetaDeWine {
public:
    explicit CarpetaDeWine(const Encargo &encargo);

    // What is to be started; empty if the files couldn't be made.
    const QStringList &Argumentos() const { return m_argumentos; }

    // At the end of the game.
    Rescate Recoge() { return m_carpeta ? m_carpeta->Recoge() : Rescate(); }

private:
    std::optional<CarpetaDeCorrida> m_carpeta;
    QStringList m_argumentos;
};

} // namespace launch
