// The lock on a directory, by which copies of the program wait for one another. For the host's own files
// only.
#pragma once

#include <QString>

namespace host {

// Takes the lock for as long as the descriptor lives. Some network file systems can't lock a directory: that
// passes for taken, as rewriting without a lock is better than never. False, with errno, if another has it:
// ETIMEDOUT where it keeps it for more than ten seconds.
bool lockDirectory(int directory);

// Who has the lock, as "program, process 12"; empty where the system doesn't tell.
QString lockHolder(int directory);

} // namespace host
