// Tables of fixed size: an index past the end is a failure, never a wider table.
#pragma once

#include "host/failure.h"

#include <algorithm>
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

// A table of rows: systems by emulators (or by extensions). Both indices count from 0 and are checked.
template <typename Elemento> class Tabla2 {
public:
    Tabla2(int filas, int columnas)
        : m_filas(filas)
        , m_columnas(columnas)
        , m_elementos(filas * columnas)
    {
    }

    Elemento &operator()(int fila, int columna) { return m_elementos(posicion(fila, columna)); }
    const Elemento &operator()(int fila, int columna) const { return m_elementos(posicion(fila, columna)); }
    int columnas() const { return m_columnas; }
    void vacia() { m_elementos.vacia(); }

private:
    int posicion(int fila, int columna) const
    {
        const bool dentro = fila >= 0 && fila < m_filas && columna >= 0 && columna < m_columnas;
        return dentro ? fila * m_columnas + columna : -1;
    }

    int m_filas;
    int m_columnas;
    Tabla<Elemento> m_elementos;
};

} // namespace core
