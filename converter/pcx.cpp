#include "converter/pcx.h"

#include "converter/pcxpalette.h"

#include <algorithm>
#include <string>

namespace converter {

namespace {

constexpr std::size_t HeaderSize = 128;
constexpr std::size_t ColoursOffset = 16;
constexpr std::uint8_t Maker = 10;
constexpr std::uint8_t RunMark = 0xC0;
constexpr int LongestRun = 63;
constexpr int GreyFlag = 2;

[[noreturn]] void failCutShort()
{
    throw Unreadable("the file ends before the picture does");
}

int word(Bytes file, std::size_t offset)
{
    return file[offset] | file[offset + 1] << 8;
}

bool isKnownKind(int bits, int planes)
{
    switch (bits) {
    case 1:
        return planes >= 1 && planes <= 4;
    case 2:
        return planes == 1;
    case 4:
    case 8:
        return planes == 1 || planes == 3 || planes == 4;
    default:
        return false;
    }
}

void checkKind(const PcxHeader &header, int encoding)
{
    if (header.version > 5 || header.version == 1 || encoding > 1)
        throw Unreadable("it is no PCX picture, or of an unknown version");
    if (!isKnownKind(header.bits, header.planes)) {
        throw Unreadable("no PCX picture has " + std::to_string(header.bits) + " bits in "
            + std::to_string(header.planes) + " planes");
    }
}

void checkSize(const PcxHeader &header)
{
    if (header.width <= 0 || header.height <= 0)
        throw Unreadable("its header says that it has no pixels");
    if (std::max(header.width, header.height) > MostSide
        || std::uint64_t(header.width) * std::uint64_t(header.height) > MostPixels) {
        throw Unreadable("it is too large: " + std::to_string(header.width) + " by "
            + std::to_string(header.height) + " pixels");
    }
    if (header.bytesPerLine * 8 < header.width * header.bits)
        throw Unreadable("its lines are shorter than its width");
}

PcxHeader readHeader(Bytes file)
{
    if (file.empty())
        throw Unreadable("it is empty");
    if (file[0] != Maker)
        throw Unreadable("it is no PCX picture");
    if (file.size() < HeaderSize)
        failCutShort();
    PcxHeader header;
    header.version = file[1];
    header.packed = file[2] == 1;
    header.bits = file[3];
    header.width = word(file, 8) - word(file, 4) + 1;
    header.height = word(file, 10) - word(file, 6) + 1;
    for (std::size_t i = 0; i < header.colours.size(); ++i) {
        const Bytes colour = file.subspan(ColoursOffset + 3 * i, 3);
        header.colours[i] = { colour[0], colour[1], colour[2] };
    }
    header.planes = file[65];
    header.bytesPerLine = word(file, 66);
    header.grey = word(file, 68) == GreyFlag;
    checkKind(header, file[2]);
    checkSize(header);
    return header;
}

// Yields the bytes of the lines one after the other. A run may go on in the next line, as some programs
// packed so, and the last one behind the last pixel, where nothing is lost.
class Unpacker {
public:
    Unpacker(Bytes file, bool packed)
        : m_file(file)
        , m_packed(packed)
    {
    }

    std::size_t place() const { return m_place; }

    void read(std::span<std::uint8_t> line)
    {
        for (std::uint8_t &byte : line) {
            while (m_run == 0)
                startRun();
            --m_run;
            byte = m_value;
        }
    }

private:
    void startRun()
    {
        m_value = next();
        m_run = 1;
        if (m_packed && m_value >= RunMark) {
            m_run = m_value - RunMark; // 0 says nothing, and takes its byte along
            m_value = next();
        }
    }

    std::uint8_t next()
    {
        if (m_place >= m_file.size())
            failCutShort();
        return m_file[m_place++];
    }

    Bytes m_file;
    bool m_packed;
    std::size_t m_place = HeaderSize;
    int m_run = 0;
    std::uint8_t m_value = 0;
};

// What a few bytes can't yield takes no memory.
void checkLength(const PcxHeader &header, Bytes file)
{
    const std::uint64_t needed =
        std::uint64_t(header.bytesPerLine) * std::uint64_t(header.planes) * std::uint64_t(header.height);
    const std::uint64_t stored = file.size() - HeaderSize;
    if (needed > (header.packed ? stored * LongestRun / 2 + 1 : stored))
        failCutShort();
}

// The leftmost pixel is in a byte's upper bits.
int valueAt(const PcxHeader &header, Bytes line, int plane, int x)
{
    const int bit = x * header.bits;
    const std::uint8_t byte =
        line[std::size_t(plane) * std::size_t(header.bytesPerLine) + std::size_t(bit / 8)];
    return byte >> (8 - header.bits - bit % 8) & ((1 << header.bits) - 1);
}

void appendIndices(const PcxHeader &header, Bytes line, std::vector<std::uint8_t> &pixels)
{
    for (int x = 0; x < header.width; ++x) {
        int index = 0;
        for (int plane = 0; plane < header.planes; ++plane)
            index |= valueAt(header, line, plane, x) << (plane * header.bits);
        pixels.push_back(static_cast<std::uint8_t>(index));
    }
}

// A fourth plane is how much shows of what lies behind, which a capture has nothing of.
void appendColours(const PcxHeader &header, Bytes line, std::vector<std::uint8_t> &pixels)
{
    const int full = (1 << header.bits) - 1;
    for (int x = 0; x < header.width; ++x) {
        for (int plane = 0; plane < 3; ++plane)
            pixels.push_back(static_cast<std::uint8_t>(valueAt(header, line, plane, x) * 255 / full));
    }
}

} // namespace

Picture readPcx(Bytes file)
{
    const PcxHeader header = readHeader(file);
    checkLength(header, file);
    Picture picture { header.width, header.height, {}, {} };
    const std::size_t bytesPerPixel = header.hasPalette() ? 1 : 3;
    picture.pixels.reserve(std::size_t(header.width) * std::size_t(header.height) * bytesPerPixel);
    std::vector<std::uint8_t> line(std::size_t(header.bytesPerLine) * std::size_t(header.planes));
    Unpacker unpacker(file, header.packed);
    for (int y = 0; y < header.height; ++y) {
        unpacker.read(line);
        if (header.hasPalette())
            appendIndices(header, line, picture.pixels);
        else
            appendColours(header, line, picture.pixels);
    }
    if (header.hasPalette())
        picture.palette = paletteOf(header, file, unpacker.place());
    return picture;
}

} // namespace converter
