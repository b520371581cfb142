#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "text/TextLocale.h"

/// What is said of one bar.
namespace Loadwick::BarText {

/// The figure beside the bar; a dash where the category was not recorded.
[[nodiscard]] QString value(std::optional<std::int64_t> tokens, const TextLocale &locale);

/// The whole bar for someone who does not see it, with `name` for what it is the bar of.
[[nodiscard]] QString spoken(const QString &name, std::optional<std::int64_t> tokens,
                             const TextLocale &locale);

} // namespace Loadwick::BarText
