#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// Moments as ISO 8601 text in UTC with whole seconds: 2026-03-04T09:15:27Z.
namespace Loadwick::IsoDate {

/// A moment outside the years 0 to 9999, which this form cannot express, gives the nearest one
/// inside.
[[nodiscard]] std::string text(std::chrono::sys_seconds moment);

/// Reads exactly that form; a day or an hour that does not exist gives nothing.
[[nodiscard]] std::optional<std::chrono::sys_seconds> fromText(std::string_view text) noexcept;

} // namespace Loadwick::IsoDate
