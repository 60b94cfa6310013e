// The program's own sort.
#pragma once

#include <QString>

#include <vector>

namespace core {

// Sorts the elements from `Desde` to `Hasta` (counted from 0, both included) in place, ascending, code by
// code. The passes are counted against `Hasta`, not against the number of elements: a table that is used from
// 1 on comes out sorted, one that is used from 0 on gets one pass too few. Fails with 9 for bounds past the
// table.
void Ordenar(std::vector<QString> &Tabla, int Desde, int Hasta);

} // namespace core
