// Every kind of rewrite that the program makes of its four files, and files to make them of.
#pragma once

#include "host/numberedfiles.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace faults {

// One rewrite of one file. Without a change the file is replaced by the text.
struct Step {
    QString file;
    std::function<QString(const QString &)> change;
    QString text;
};

// What one action of the user makes, in its order.
struct Rewrite {
    std::string name;
    std::vector<Step> steps;
};

inline void PrintTo(const Rewrite &rewrite, std::ostream *out)
{
    *out << rewrite.name;
}

std::vector<Rewrite> rewrites();

using Files = std::map<QByteArray, QByteArray>; // bytes by name

// Zembro.cfg, Zembro.sye, Zembro.emu, Zembro.rom.
Files filesToRewrite();

// The program's directory is where it is done.
void make(const Step &step, host::NumberedFiles &files);

} // namespace faults
