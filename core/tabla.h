// Tables of fixed size: an index past the end is a failure, never a wider table.
#pragma once

#include "host/failure.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace core {

// Indices count from 0; one out of range fails with 9.
template <typename Elemento> class Tabla {
public:
    explicit Tabla(int tamaño)
        : m_elementos(static_cast<size_t>(tamaño))
    {
    }

    Elemento &operator()(int i) { return m_elementos[posicion(i)]; }
    const Elemento &operator()(int i) const { return m_elementos[posicion(i)]; }
    int tamaño() const { return static_cast<int>(m_elementos.size()); }
    void vacia() { std::fill(m_elementos.begin(), m_elementos.end(), Elemento {}); }

private:
    size_t posicion(int i) const
    {
        if (i < 0 || i >= tamaño())
            throw host::Failure(
                host::OutOfRange, QStringLiteral("use an entry of a table"), QString::number(i));
        return static_cast<size_t>(i);
    }

    std::vector<Elemento> m_elementos;
};

// A table of rows: systems by emulators (or by extensions). Both indices count from 0 and are checked. A row
// takes memory once something was looked for in it, as most systems aren't there.
template <typename Elemento> class Tabla2 {
public:
    Tabla2(int filas, int columnas)
        : m_vacia(columnas)
        , m_filas(filas)
    {
    }

    Elemento &operator()(int fila, int columna)
    {
        std::optional<Tabla<Elemento>> &elementos = m_filas(fila);
        if (!elementos)
            elementos.emplace(columnas());
        return (*elementos)(columna);
    }
    const Elemento &operator()(int fila, int columna) const
    {
        const std::optional<Tabla<Elemento>> &elementos = m_filas(fila);
        return elementos ? (*elementos)(columna) : m_vacia(columna);
    }
    int columnas() const { return m_vacia.tamaño(); }
    void vacia()
    {
        for (int fila = 0; fila < m_filas.tamaño(); ++fila) {
            if (m_filas(fila))
                m_filas(fila)->vacia();
        }
    }

private:
    Tabla<Elemento> m_vacia; // a row in which nothing was looked for
    Tabla<std::optional<Tabla<Elemento>>> m_filas;
};

} // namespace core
