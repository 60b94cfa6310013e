// Makes captures of pictures of many kinds. From the standard input it takes pairs of names, each name closed
// by a zero: the picture, and the GIF that it becomes. Of each pair it writes a line, in whatever order they
// end: the pair's number, from 0, a tab, and nothing, or what kept it: a code, a tab, and more of it.

#include "converter/anypicture.h"
#include "converter/apart.h"
#include "converter/capturefiles.h"
#include "converter/gif.h"
#include "converter/magick.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <thread>
#include <vector>

namespace {

using converter::Outcome;

constexpr int WrongCall = 2;
constexpr int MostWide = 640;
constexpr unsigned MostAtOnce = 4;

struct Pair {
    std::string picture;
    std::string gif;
};

std::vector<Pair> pairsIn(std::FILE *file)
{
    std::vector<std::string> names(1);
    for (int letter = std::fgetc(file); letter != EOF; letter = std::fgetc(file)) {
        if (letter == 0)
            names.emplace_back();
        else
            names.back() += static_cast<char>(letter);
    }
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i + 2 < names.size(); i += 2)
        pairs.push_back({ names[i], names[i + 1] });
    return pairs;
}

// What `step` throws is why it didn't do.
template <typename Step> Outcome tried(const char *code, Step &&step)
{
    try {
        step();
        return {};
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const converter::TooLarge &failure) {
        return { "too-large", failure.what() };
    } catch (const std::exception &failure) {
        return { code, failure.what() };
    }
}

Outcome convert(const Pair &pair)
{
    std::vector<std::uint8_t> bytes;
    Outcome outcome = tried("unreadable", [&] { bytes = converter::readCapture(pair.picture); });
    if (!outcome.code.empty())
        return outcome;
    const std::size_t telling = std::min(bytes.size(), converter::TellingBytes);
    const converter::Kind kind = converter::kindOf(std::span(bytes).first(telling));
    if (kind == converter::Kind::None)
        return { "no-picture", {} };
    std::string gif;
    outcome =
        tried("damaged", [&] { gif = converter::writeGif(converter::readPicture(bytes, kind, MostWide)); });
    if (!outcome.code.empty())
        return outcome;
    return tried("not-written", [&] { converter::replaceFile(pair.gif, gif); });
}

// Whatever a library's words hold stays one line.
void tell(std::size_t number, const Outcome &outcome)
{
    std::string line = outcome.code;
    if (!outcome.detail.empty())
        line += '\t' + outcome.detail;
    for (char &letter : line) {
        if (letter != '\t' && (static_cast<unsigned char>(letter) < ' ' || letter == '\x7F'))
            letter = '?';
    }
    std::printf("%zu\t%s\n", number, line.c_str());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **)
{
    if (argc != 1) {
        std::fputs("usage: Cvtcap.exe, with pairs of names on the standard input\n", stderr);
        return WrongCall;
    }
    const std::vector<Pair> pairs = pairsIn(stdin);
    // Once, and not in each of the processes.
    converter::startLibrary();
    converter::limitLibrary();
    const unsigned processors = std::clamp(std::thread::hardware_concurrency(), 1U, MostAtOnce);
    converter::doApart(
        pairs.size(), processors, {}, [&](std::size_t i) { return convert(pairs[i]); }, tell);
    return 0;
}
