#include "probe/TranscriptReader.h"

#include <array>
#include <cstddef>

#include "probe/RegularFile.h"
#include "probe/TextLines.h"
#include "probe/TranscriptPieces.h"

namespace Loadwick::TranscriptReader {

namespace {

constexpr std::size_t pieceSize = 65536;

} // namespace

std::optional<ProbeUsage> firstAssistantUsageAtPath(const std::filesystem::path &path)
{
    auto file = RegularFile::open(path);
    if (!file)
        return std::nullopt;
    TranscriptPieces pieces;
    std::array<char, pieceSize> buffer;
    for (;;) {
        const auto count = file->read(buffer);
        if (!count)
            return std::nullopt;
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
