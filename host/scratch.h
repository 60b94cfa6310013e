// Files on their way: each is written under a hidden name of its own, ".PREFIX-PROCESS-NUMBER", until it gets
// its real one. What a killed run left of them goes with the next. Without Qt.
#pragma once

#include "host/descriptor.h"

#include <string>

namespace host {

struct ScratchFile {
    std::string name;
    Descriptor file;
};

// Makes one in the directory, open for writing, and locked while it stays open. Closed, with errno set, if
// none can be made.
ScratchFile openScratchFile(int directory, const std::string &prefix);

// Removes from the directory what is left of this user's: plain files of such names that nobody holds locked
// and whose process is gone. One whose number another process has by now stays until that one is gone too.
void sweepScratchFiles(int directory, const std::string &prefix);

} // namespace host
