#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// One verb of the tool.
struct Operation
{
    using Words = std::span<const std::string>;

    std::string_view verb;
    std::string_view usage; ///< its words, as a reader writes them
    std::size_t wordCount;  ///< the fewest that it takes
    /// Does the work; gives how much of what it made or found there was.
    std::int64_t (*run)(Words words);

    /// All of them.
    [[nodiscard]] static const std::vector<Operation> &all();
};

} // namespace Loadwick
