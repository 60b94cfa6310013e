// Which line of Zembro.emu gave the tables what they hold of an emulator.
#pragma once

#include <QString>

#include <map>
#include <utility>

namespace companion {

// Numbers counted from 1; 0 where there is no such line. Of a key that comes twice the last stands.
struct LineasDeEmulador {
    int nombre = 0;
    int EXE = 0;
    int XDI = 0;
    int ROM = 0;
    int IMG = 0;
};

class LineasDelCatalogo {
public:
    explicit LineasDelCatalogo(const QString &texto);

    // By the place in the tables: the system from 0, its emulators from 1.
    LineasDeEmulador De(int sistema, int fila) const;

private:
    std::map<std::pair<int, int>, LineasDeEmulador> m_lineas;
};

} // namespace companion
