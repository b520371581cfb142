#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// Files of a made-up user, for operations that read them.
namespace Faults::SampleHome {

inline constexpr std::string_view sessionID = "0b8f8f3e-6f2a-4f0e-9f55-1c1f5f0f7a11";
inline constexpr std::int64_t transcriptTotal = 24'310;
inline constexpr std::int64_t resultTotal = 24'311; ///< of the command's own usage block

void write(const std::filesystem::path &path, std::string_view text);
void writeProgram(const std::filesystem::path &path, std::string_view text);

/// A repository with three instruction files, one inherited and one personal. Returns its path.
std::filesystem::path writeRepository(const std::filesystem::path &home);

/// Writes a session's transcript. Returns the projects root above it.
std::filesystem::path writeTranscript(const std::filesystem::path &home);

/// Writes a program that prints one result, as the `claude` command does. Returns its path.
std::filesystem::path writeCommand(const std::filesystem::path &home);

/// A login shell that answers with the path of that command. Returns its path.
std::filesystem::path writeShell(const std::filesystem::path &home);

} // namespace Faults::SampleHome
