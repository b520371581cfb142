#pragma once

#include <cstdint>
#include <string>

#include "report/InstructionFileSet.h"

/// Made-up instruction files of a repository that lies below /home/someone. Inherited files lie
/// above the repository, personal ones in /home/someone/.claude.
namespace Loadwick::SampleFiles {

/// Three files, all of which could be read.
[[nodiscard]] InstructionFileSet few(const std::string &repository);

/// Eleven files in all tiers, and one more that could not be read.
[[nodiscard]] InstructionFileSet some(const std::string &repository);

/// Thirty-one files of very different sizes, one of them far down; one path of each tier that could
/// not be read, and one that is both: estimated and then out of reach.
[[nodiscard]] InstructionFileSet many(const std::string &repository);

/// `count` files, spread evenly over the tiers.
[[nodiscard]] InstructionFileSet numbered(const std::string &repository, std::int64_t count);

} // namespace Loadwick::SampleFiles
