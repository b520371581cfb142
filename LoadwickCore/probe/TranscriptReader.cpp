#include "probe/TranscriptReader.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "posix/RegularFile.h"
#include "probe/TranscriptPieces.h"
#include "text/TextLines.h"

namespace Loadwick::TranscriptReader {

namespace {

constexpr std::size_t pieceSize = 65536;

} // namespace

std::optional<ProbeUsage> firstAssistantUsageAtPath(const std::filesystem::path &path)
{
    auto file = RegularFile::open(path);
    if (!file)
        return std::nullopt;
    std::int64_t position = 0;
    TranscriptPieces pieces([&](std::int64_t begin, std::size_t size) {
        auto line = file->skipTo(begin) ? file->readUpTo(size) : std::nullopt;
        return file->skipTo(position) ? line : std::nullopt;
    });
    std::array<char, pieceSize> buffer;
    for (;;) {
        const auto count = file->read(buffer);
        if (!count)
            return std::nullopt;
        position += static_cast<std::int64_t>(*count);
        if (*count == 0)
            return pieces.finish();
        if (const auto usage = pieces.take({buffer.data(), *count}))
            return usage;
    }
}

std::optional<ProbeUsage> firstAssistantUsageIn(std::string_view text)
{
    while (const auto line = takeLine(text))
        if (const auto usage = TranscriptPieces::usageInLine(*line))
            return usage;
    return std::nullopt;
}

} // namespace Loadwick::TranscriptReader
