// Lets one call to the system go wrong in a process of its own: all of the calls that the process makes pass
// here, the libraries' too.
#pragma once

#include <functional>

namespace faults {

enum class Kind {
    Fail, // the call does nothing and fails
    Short, // a reading or writing call takes one byte; where it stays, each takes a hundred
    Nothing, // a call that writes to a file writes nothing, and says so without failing
    KillBefore, // the process is killed in the place of the call
    KillBehind, // the call is made, and then the process is killed
};

struct Fault {
    Kind kind = Kind::Fail;
    int call = 0; // from 0; of all calls but those for memory, signals, threads and time, for Short of those
                  // that read and write, for Nothing of those that write
    int error = 0;
    bool stays = false; // all calls from there on go wrong
};

struct End {
    bool reached = false; // the fault happened
    bool killed = false; // by the fault
    bool hung = false; // the process had to be ended
    int status = 0; // otherwise
    long number = 0; // of the call that went wrong, as the system counts its calls
};

// Whether this machine lets a process be watched so.
bool canTrace();

// Runs the operation; what it returns becomes the status, and 99 for an exception.
End runWith(const Fault &fault, const std::function<int()> &operation);

// How many processes have been run so far.
int runs();

} // namespace faults
