// What the system tells of many entries of one directory. For the host's own files only.
#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>

struct stat;

namespace host {

class Descriptor;

// Called by several threads, once for each name that can be looked at, with what it leads to; names count
// from 0.
using TellStatus = std::function<void(std::size_t name, const struct stat &status)>;

// Looks at each name, spelled as the entries are. A network's disk may take a millisecond for each: there
// many are looked at at once.
void lookAtEach(const Descriptor &directory, const QStringList &names, const TellStatus &tell);

} // namespace host
