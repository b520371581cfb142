#pragma once

#include <string>
#include <string_view>

/// Keeps local paths and file names that a model printed as category names out of the history.
namespace Loadwick::RecordedCategoryName {

inline constexpr std::string_view withheld = "Other (name withheld)";
inline constexpr int limit = 80; ///< user-perceived characters

/// `name` trimmed, or `withheld` when it is then empty, looks like a path, or exceeds `limit`.
[[nodiscard]] std::string storable(std::string_view name);

/// Whether a name holds "/", "\" or "~", or a word that ends like a file name with an extension.
[[nodiscard]] bool looksLikePath(std::string_view name);

} // namespace Loadwick::RecordedCategoryName
