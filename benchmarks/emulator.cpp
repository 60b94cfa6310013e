// Stands for an emulator: notes when its main begins and ends, in the file that BENCH_OUT names, and sleeps
// between for BENCH_SLEEP milliseconds.

#include "benchmarks/clock.h"

#include <cstdlib>

#include <unistd.h>

int main()
{
    const double begun = milliseconds();
    const char *pause = std::getenv("BENCH_SLEEP");
    const char *name = std::getenv("BENCH_OUT");
    if (pause)
        usleep(static_cast<useconds_t>(std::atoi(pause)) * 1000);
    std::FILE *out = name ? std::fopen(name, "w") : nullptr;
    if (!out)
        return 1;
    std::fprintf(out, "%.6f %.6f\n", begun, milliseconds());
    std::fclose(out);
    _exit(0);
}
