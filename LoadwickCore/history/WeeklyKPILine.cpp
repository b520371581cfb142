#include "history/WeeklyKPILine.h"

#include "history/WeeklyKPIReader.h"
#include "text/CheckedSum.h"

namespace Loadwick {

std::int64_t WeeklyKPILine::medianDelta() const noexcept
{
    return checkedDifference(medianTokensPerSession, WeeklyKPIReader::medianTokensPerSessionTarget);
}

std::int64_t WeeklyKPILine::tokensPerPRDelta() const noexcept
{
    return checkedDifference(tokensPerPR, WeeklyKPIReader::tokensPerPRTarget);
}

} // namespace Loadwick
