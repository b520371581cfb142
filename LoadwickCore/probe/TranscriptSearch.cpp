#include "probe/TranscriptSearch.h"

#include <chrono>
#include <cmath>

#include "probe/TranscriptLocator.h"
#include "probe/TranscriptReader.h"
#include "text/Fatal.h"

namespace Loadwick {

namespace {

std::optional<ProbeUsage> attempt(const TranscriptSearch &search)
{
    const auto path =
        TranscriptLocator::find(search.sessionID, search.projectsRoot, *search.fileSystem);
    return path ? TranscriptReader::firstAssistantUsageAtPath(*path) : std::nullopt;
}

std::chrono::duration<double> checkedDelay(double seconds)
{
    if (!std::isfinite(seconds) || seconds < 0)
        fatalError("the delay between transcript attempts is no duration");
    return std::chrono::duration<double>(seconds);
}

} // namespace

std::optional<ProbeUsage> TranscriptSearch::run() const
{
    std::optional<ProbeUsage> usage = attempt(*this);
    for (int made = 1; !usage && made < attempts; ++made) {
        if (shutdown->waitFor(checkedDelay(delaySeconds)) ||
            std::chrono::steady_clock::now() >= deadline)
            return std::nullopt;
        usage = attempt(*this);
    }
    return usage;
}

} // namespace Loadwick
