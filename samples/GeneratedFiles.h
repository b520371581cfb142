#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "history/RecordedScan.h"

/// Generated files, the same on every machine and in every run except for their modification times.
/// The program ends when one cannot be written. Existing files are kept unchanged.
namespace Loadwick::GeneratedFiles {

/// The session for which `projects` holds a transcript.
inline constexpr std::int64_t wantedSession = 999'999'999;

/// A transcripts folder with `entryCount` empty files, 1,000 to a folder, and in the middle one the
/// transcript of `wantedSession`.
void projects(const std::filesystem::path &root, std::int64_t entryCount);

/// A transcript with about `headBytes` of user messages and then a usage.
void transcript(const std::filesystem::path &file, std::int64_t headBytes);

/// A transcript whose head is one line of `lineBytes`.
void longLineTranscript(const std::filesystem::path &file, std::int64_t lineBytes);

/// How instruction files import each other.
enum class Imports
{
    flat,   ///< the first one imports all the others
    crossed ///< each imports four others, the next one, and its own importer
};

/// A home folder with a repository "home/repository" that has `fileCount` instruction files of
/// about 2 KB.
void instructions(const std::filesystem::path &folder, std::int64_t fileCount, Imports imports);

/// The instruction files that `instructions` writes.
[[nodiscard]] std::vector<std::filesystem::path>
instructionPaths(const std::filesystem::path &folder, std::int64_t fileCount);

/// An answer of `lineCount` categories as a file.
void answer(const std::filesystem::path &file, std::int64_t lineCount);

/// The command's record as a file: its result is an answer of about `byteCount` bytes.
void record(const std::filesystem::path &file, std::int64_t byteCount);

/// A history of `scanCount` scans of forty repositories, nine categories in each scan.
[[nodiscard]] std::vector<RecordedScan> scans(std::int64_t scanCount);

/// The same as a history file in `folder`.
void history(const std::filesystem::path &folder, std::int64_t scanCount);

/// A history file in `folder`: 200 scans of fifty repositories with that many categories in each
/// scan, as many of the scans as the store allows.
void comparedHistory(const std::filesystem::path &folder, std::int64_t categoryCount);

} // namespace Loadwick::GeneratedFiles
