// Becomes another program, which gets the time of the clock as its last argument: bench_since PROGRAM
// ARGUMENT...

#include "benchmarks/clock.h"

#include <string>

#include <unistd.h>

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    std::vector<char *> arguments(argv + 1, argv + argc);
    std::string now = std::to_string(milliseconds());
    arguments.push_back(now.data());
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    return 1;
}
