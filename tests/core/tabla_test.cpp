#include "directoriodeprograma.h"

#include "core/tabla.h"

using namespace Qt::StringLiterals;
using core::Tabla;
using core::Tabla2;

TEST(Tabla, EntriesFromZeroToTheLastAreThere)
{
    Tabla<int> tabla(3);
    tabla(0) = 10;
    tabla(2) = 12;
    EXPECT_EQ(tabla(0), 10);
    EXPECT_EQ(tabla(1), 0);
    EXPECT_EQ(tabla(2), 12);
    EXPECT_EQ(tabla.tamaño(), 3);
}

TEST(Tabla, FailsAsOutOfRange_ForAnIndexOutsideTheTable)
{
    Tabla<int> tabla(3);
    const Tabla<int> &fija = tabla;
    for (const int indice : { -1, 3, 4, 1000000 }) {
        EXPECT_EQ(NumeroDeFallo([&] { tabla(indice) = 1; }), host::OutOfRange) << indice;
        EXPECT_EQ(NumeroDeFallo([&] { static_cast<void>(fija(indice)); }), host::OutOfRange) << indice;
    }
    EXPECT_EQ(tabla.tamaño(), 3);
}

TEST(Tabla, HoldsNothing_AfterClearing)
{
    Tabla<QString> tabla(2);
    tabla(0) = u"a"_s;
    tabla(1) = u"b"_s;
    tabla.vacia();
    EXPECT_EQ(tabla(0), QString());
    EXPECT_EQ(tabla(1), QString());
    EXPECT_EQ(tabla.tamaño(), 2);
}

TEST(Tabla2, EntriesAreToldByBothIndices)
{
    Tabla2<int> tabla(2, 3);
    for (int fila = 0; fila < 2; ++fila) {
        for (int columna = 0; columna < 3; ++columna)
            tabla(fila, columna) = 10 * fila + columna;
    }
    EXPECT_EQ(tabla(0, 2), 2);
    EXPECT_EQ(tabla(1, 0), 10);
    EXPECT_EQ(tabla(1, 2), 12);
    EXPECT_EQ(tabla.columnas(), 3);
    tabla.vacia();
    EXPECT_EQ(tabla(1, 2), 0);
}

TEST(Tabla2, RowsThatNothingWasPutIntoAreEmptyAndStaySo)
{
    Tabla2<int> tabla(3, 2);
    const Tabla2<int> &fija = tabla;
    EXPECT_EQ(fija(1, 1), 0);
    EXPECT_EQ(tabla(2, 0), 0);
    tabla(0, 1) = 5;
    EXPECT_EQ(fija(0, 1), 5);
    EXPECT_EQ(fija(0, 0), 0);
    EXPECT_EQ(fija(1, 1), 0);
    EXPECT_EQ(fija(2, 0), 0);
}

TEST(Tabla2, FailsAsOutOfRange_ForAnyIndexOutsideItsOwnBound)
{
    Tabla2<int> tabla(2, 3);
    const Tabla2<int> &fija = tabla;
    const int fuera[][2] = { { -1, 0 }, { 2, 0 }, { 0, -1 }, { 0, 3 }, { 1, 3 }, { 1, -1 }, { -1, 5 } };
    for (const auto &[fila, columna] : fuera) {
        EXPECT_EQ(NumeroDeFallo([&] { tabla(fila, columna) = 1; }), host::OutOfRange)
            << fila << ' ' << columna;
        EXPECT_EQ(NumeroDeFallo([&] { static_cast<void>(fija(fila, columna)); }), host::OutOfRange)
            << fila << ' ' << columna;
    }
}
