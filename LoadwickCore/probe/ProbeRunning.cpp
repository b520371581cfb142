#include "probe/ProbeRunning.h"

namespace Loadwick {

namespace {

struct SourceWords
{
    std::string_view rawValue;
    std::string_view label;
};

SourceWords wordsOf(TotalSource source) noexcept
{
    switch (source) {
    case TotalSource::transcript:
        return {"transcript", "session transcript: first assistant message usage"};
    case TotalSource::cliUsage:
        break;
    }
    return {"cliUsage", "CLI result usage block (no transcript found)"};
}

} // namespace

std::string_view TotalSource::rawValue() const noexcept
{
    return wordsOf(*this).rawValue;
}

std::string_view TotalSource::label() const noexcept
{
    return wordsOf(*this).label;
}

} // namespace Loadwick
