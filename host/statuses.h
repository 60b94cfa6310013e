// What the system tells of many entries of one directory. For the host's own files only.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include <sys/types.h>

namespace host {

class Descriptor;

struct Status {
    mode_t mode = 0; // 0 where the entry can't be looked at
    qint64 size = 0; // in bytes
};

// Of what each name leads to, spelled as the entries are, in their order. A network's disk may take a
// millisecond for each: there many are asked for at once.
std::vector<Status> statusesIn(const Descriptor &directory, const QStringList &names);

} // namespace host
