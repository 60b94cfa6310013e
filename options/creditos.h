// What the program is, and where its authors are reached.
#pragma once

#include <QStringView>

namespace options::creditos {

inline constexpr QStringView Programa = u"Zembrolix";
inline constexpr QStringView Version = u"V" ZEMBROLIX_VERSION;
inline constexpr QStringView Licencia = u"(FreeWare)";

// What a link shows, and what it opens.
struct Direccion {
    QStringView texto;
    QStringView destino;
};
inline constexpr Direccion Correo { u"zembrolix@example.org", u"mailto:zembrolix@example.org" };
inline constexpr Direccion Web { u"www.example.org/zembrolix", u"https://www.example.org/zembrolix" };
inline constexpr Direccion Redireccion { u"go.example.org/zembrolix", u"https://go.example.org/zembrolix" };

} // namespace options::creditos
