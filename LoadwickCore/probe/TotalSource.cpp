#include "probe/TotalSource.h"

#include "text/Fatal.h"

namespace Loadwick {

std::string_view TotalSource::rawValue() const noexcept
{
    switch (m_value) {
    case transcript:
        return "transcript";
    case cliUsage:
        return "cliUsage";
    }
    fatalError("no such source of a total");
}

std::optional<TotalSource> TotalSource::fromRawValue(std::string_view text) noexcept
{
    for (const TotalSource source : {transcript, cliUsage})
        if (source.rawValue() == text)
            return source;
    return std::nullopt;
}

std::string_view TotalSource::label() const noexcept
{
    switch (m_value) {
    case transcript:
        return "session transcript: first assistant message usage";
    case cliUsage:
        return "CLI result usage block (no transcript found)";
    }
    fatalError("no such source of a total");
}

} // namespace Loadwick
