#include "overview/HeadroomScore.h"

#include <algorithm>

#include "report/OpinionBand.h"

namespace Loadwick {

int headroomScore(std::int64_t total) noexcept
{
    return std::clamp(static_cast<int>((1 - BandScale::position(total)) * 100), 0, 100);
}

} // namespace Loadwick
