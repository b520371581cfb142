#pragma once

#include <optional>

#include <nlohmann/json.hpp>

#include "probe/ProbeUsage.h"

namespace Loadwick {

/// The usage that a fully parsed value holds, by the rule in words: an object with at least one of
/// the three input counts; nothing for everything else, and for no value at all.
[[nodiscard]] std::optional<ProbeUsage> expectedUsage(const nlohmann::json *value);

} // namespace Loadwick
