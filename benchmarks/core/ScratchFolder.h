#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

/// A folder in the current one for the output of benchmarks; it is kept for the next run.
inline std::filesystem::path scratchFolder(const std::string &name)
{
    return std::filesystem::current_path() / "benchmark-data" / name;
}
