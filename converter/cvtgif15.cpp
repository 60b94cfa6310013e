// The converter of captures that the program calls: one argument, the name of a PCX file in the working
// directory, beside which it writes the GIF. The name is always a file's, whatever characters it begins with.

#include "converter/capturefiles.h"
#include "converter/gif.h"
#include "converter/pcx.h"

#include <cstdio>
#include <exception>
#include <new>
#include <string>

namespace {

constexpr int WrongCall = 2;

void convert(const std::string &name)
{
    const std::vector<std::uint8_t> bytes = converter::readCapture(name);
    const std::string gif = converter::writeGif(converter::readPcx(bytes));
    converter::replaceFile(converter::gifNameFor(name), gif);
}

// Whatever a name or a library's words hold stays one line.
int fail(const std::string &name, const std::string &why)
{
    std::string line = "Cvtgif15.exe: can't convert " + name + ": " + why;
    for (char &character : line) {
        if (static_cast<unsigned char>(character) < ' ' || character == '\x7F')
            character = '?';
    }
    std::fprintf(stderr, "%s\n", line.c_str());
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: Cvtgif15.exe FILE.PCX\n", stderr);
        return WrongCall;
    }
    try {
        convert(argv[1]);
    } catch (const std::bad_alloc &) {
        return fail(argv[1], "there is not enough memory");
    } catch (const std::exception &failure) {
        return fail(argv[1], failure.what());
    }
    return 0;
}
