// The topics that are fuzzed: what each takes, and how it says that a property doesn't hold.
#pragma once

#include <QString>

#include <cstdint>
#include <span>
#include <stdexcept>

namespace pelusa {

using Bytes = std::span<const std::uint8_t>;

// A topic looks at whatever the bytes stand for. It throws Incumplido for a property that doesn't hold.
using Prueba = void (*)(Bytes bytes);

struct Tema {
    const char *nombre; // of its directories of inputs too
    Prueba probar;
};

std::span<const Tema> Temas();

class Incumplido : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// `propiedad` says in words what should hold; the texts are what it was looked at with.
void Exige(bool cierto, const char *propiedad, const QString &una = {}, const QString &otra = {});

// Both must be equal.
void ExigeIgual(const QString &es, const QString &seria, const char *propiedad);

} // namespace pelusa
