// What shells and man need to know of the commands, made from their table, in English.
#pragma once

#include <QString>

namespace companion {

QString ParaBash();
QString ParaZsh();
QString ParaFish();
QString PaginaMan();

} // namespace companion
