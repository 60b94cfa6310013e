// The converter of captures that the program calls: one argument, the name of a PCX file in the working directory.
// It can't convert yet, says so, and fails.

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: Cvtgif15.exe FILE.PCX\n", stderr);
        return 2;
    }
    std::fprintf(stderr, "Cvtgif15.exe: can't convert %s yet\n", argv[1]);
    return 1;
}
