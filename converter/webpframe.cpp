#include "converter/webpframe.h"

#include <algorithm>
#include <string_view>

namespace converter {

namespace {

constexpr std::size_t FileHeader = 12;
constexpr std::size_t ChunkHeader = 8;
constexpr std::size_t CanvasHeader = 10;
constexpr std::size_t FrameHeader = 16;
constexpr std::uint8_t IsAnimated = 0x02;
constexpr std::uint8_t HasAlpha = 0x10;

// A chunk's bytes, and all that follows it.
struct Chunk {
    std::string_view name;
    Bytes content;
    Bytes whole; // with its header and padding
    Bytes rest;
};

std::optional<Chunk> chunkAt(Bytes bytes)
{
    if (bytes.size() < ChunkHeader)
        return std::nullopt;
    std::size_t length = 0;
    for (std::size_t i = 0; i < 4; ++i)
        length |= std::size_t(bytes[4 + i]) << (8 * i);
    const std::size_t padded = ChunkHeader + length + length % 2;
    if (padded > bytes.size() && ChunkHeader + length > bytes.size())
        return std::nullopt;
    const std::size_t end = std::min(padded, bytes.size());
    return Chunk { { reinterpret_cast<const char *>(bytes.data()), 4 }, bytes.subspan(ChunkHeader, length),
        bytes.first(end), bytes.subspan(end) };
}

int threeBytes(Bytes bytes, std::size_t place)
{
    return bytes[place] | bytes[place + 1] << 8 | bytes[place + 2] << 16;
}

void append(std::vector<std::uint8_t> &file, std::string_view text)
{
    file.insert(file.end(), text.begin(), text.end());
}

void appendLength(std::vector<std::uint8_t> &file, std::size_t length)
{
    for (int i = 0; i < 4; ++i)
        file.push_back(static_cast<std::uint8_t>(length >> (8 * i) & 0xFF));
}

// The frame's own chunks; those of alpha need a header that says so, with the frame's size.
std::vector<std::uint8_t> fileOf(Bytes frame)
{
    std::vector<std::uint8_t> body;
    const std::optional<Chunk> first = chunkAt(frame.subspan(FrameHeader));
    if (first && first->name == "ALPH") {
        append(body, "VP8X");
        appendLength(body, CanvasHeader);
        body.insert(body.end(), { HasAlpha, 0, 0, 0 });
        body.insert(body.end(), frame.begin() + 6, frame.begin() + 12);
    }
    body.insert(body.end(), frame.begin() + FrameHeader, frame.end());
    std::vector<std::uint8_t> file;
    append(file, "RIFF");
    appendLength(file, body.size() + 4);
    append(file, "WEBP");
    file.insert(file.end(), body.begin(), body.end());
    return file;
}

} // namespace

std::optional<WebPFrame> firstWebPFrame(Bytes file)
{
    std::optional<Chunk> chunk = file.size() < FileHeader ? std::nullopt : chunkAt(file.subspan(FileHeader));
    if (!chunk || chunk->name != "VP8X" || chunk->content.size() < CanvasHeader
        || (chunk->content[0] & IsAnimated) == 0)
        return std::nullopt;
    WebPFrame result;
    result.canvasWidth = threeBytes(chunk->content, 4) + 1;
    result.canvasHeight = threeBytes(chunk->content, 7) + 1;
    while (chunk && chunk->name != "ANMF")
        chunk = chunkAt(chunk->rest);
    if (!chunk || chunk->content.size() < FrameHeader)
        return std::nullopt;
    result.left = 2 * threeBytes(chunk->content, 0);
    result.top = 2 * threeBytes(chunk->content, 3);
    result.file = fileOf(chunk->content);
    return result;
}

} // namespace converter
