// Random texts of whole characters, for models of their own.
#pragma once

#include <QString>

#include <random>
#include <string>

using Texto = std::u32string;

// Upper case of the few letters that the random texts are made of.
inline Texto mayus(Texto texto)
{
    for (char32_t &letra : texto) {
        if (letra >= U'a' && letra <= U'z')
            letra -= 32;
        else if (letra == U'ñ')
            letra = U'Ñ';
        else if (letra == U'𐐨')
            letra = U'𐐀';
    }
    return texto;
}

class Dado {
public:
    explicit Dado(unsigned semilla)
        : m_azar(semilla)
    {
    }

    int hasta(int maximo) { return std::uniform_int_distribution<int>(0, maximo)(m_azar); }

    Texto palabra(const Texto &letras, int minimo, int maximo)
    {
        Texto palabra;
        for (int resto = minimo + hasta(maximo - minimo); resto > 0; --resto)
            palabra += letras[size_t(hasta(int(letras.size()) - 1))];
        return palabra;
    }

private:
    std::mt19937 m_azar;
};

inline QString texto(const Texto &codigos)
{
    return QString::fromStdU32String(codigos);
}
