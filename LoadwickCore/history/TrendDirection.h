#pragma once

namespace Loadwick {

/// How a repository's total changed from one scan to the next. One token counts already.
enum class TrendDirection
{
    up,
    down,
    flat
};

} // namespace Loadwick
