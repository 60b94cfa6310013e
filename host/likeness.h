// What a new file takes over from the one whose place it is to take. For the host's own files only.
#pragma once

#include <QString>

namespace host {

struct PlainFile;

// Gives the new file the old one's attributes of the user, owner, access list and mode, as far as this user
// may and the file system can. Where the owner or the group can't be given, nobody gets more rights through
// that. Yields what failed, with errno; empty if nothing did.
QString makeAlike(const PlainFile &old, int fresh);

} // namespace host
