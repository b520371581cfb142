#pragma once

#include <filesystem>
#include <string_view>

namespace Loadwick {

/// Writes a file of the throw-away home, with the folders above it. The program ends when that
/// fails: nothing can be shown on half a home.
void writeSampleFile(const std::filesystem::path &path, std::string_view text);

} // namespace Loadwick
