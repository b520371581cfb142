#pragma once

#include <filesystem>

namespace Loadwick {

/// A repository with instruction files at all three tiers, as a small team might keep them.
namespace SampleRepository {

/// Writes the repository, the files that it inherits and the personal ones below `home`; returns
/// the repository's folder.
std::filesystem::path writeInto(const std::filesystem::path &home);

/// Writes a repository with one instruction file into `folder`, unless the folder exists.
void writeSmallInto(const std::filesystem::path &folder);

} // namespace SampleRepository
} // namespace Loadwick
