#include "samples/GeneratedFiles.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <numeric>

#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "samples/GeneratedText.h"
#include "samples/SampleHistories.h"
#include "text/Fatal.h"

namespace Loadwick::GeneratedFiles {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t filesInFolder = 1'000;
constexpr std::int64_t importsOfFile = 4;
constexpr std::int64_t repositoryCount = 40;
constexpr std::chrono::sys_seconds lastScan(std::chrono::seconds(1'772'615'727)); // 4 March 2026

/// Lets `fill` write under a temporary name first, so that no partial file is reused.
template<typename Fill>
void make(const fs::path &file, Fill fill)
{
    if (fs::exists(file))
        return;
    fs::create_directories(file.parent_path());
    const fs::path unfinished = file.native() + ".part";
    std::ofstream stream(unfinished, std::ios::binary);
    fill(stream);
    stream.close();
    if (!stream)
        fatalError("a generated file could not be written");
    fs::rename(unfinished, file);
}

fs::path projectIn(const fs::path &root, std::int64_t number)
{
    return root / ("-home-someone-projects-" + std::to_string(number));
}

fs::path instructionPath(const fs::path &repository, std::int64_t number)
{
    return number == 0 ? repository / "CLAUDE.md"
                       : repository / "docs" / ("rule-" + std::to_string(number) + ".md");
}

/// The numbers of the files that a file imports.
std::vector<std::int64_t> importsOf(std::int64_t number, std::int64_t fileCount, Imports imports)
{
    std::vector<std::int64_t> numbers;
    if (imports == Imports::crossed) {
        for (std::int64_t child = 1; child <= importsOfFile; ++child)
            numbers.push_back(number * importsOfFile + child);
        numbers.insert(numbers.end(), {number + 1, (number - 1) / importsOfFile});
    } else if (number == 0) {
        numbers.resize(static_cast<std::size_t>(fileCount));
        std::iota(numbers.begin(), numbers.end(), 0);
    }
    std::erase_if(numbers, [&](std::int64_t other) {
        return other <= 0 || other >= fileCount || other == number;
    });
    return numbers;
}

void writeInstructions(std::ostream &stream, std::int64_t number,
                       const std::vector<std::int64_t> &imports)
{
    constexpr int lineCount = 40;
    stream << "# Rule " << number << "\n\n";
    for (int line = 0; line < lineCount; ++line)
        stream << "Say what you see, and nothing that you did not.\n";
    for (const std::int64_t other : imports)
        stream << "See @" << (number == 0 ? "docs/" : "") << "rule-" << other << ".md.\n";
}

Uuid identifier(std::int64_t number)
{
    const std::string digits = std::to_string(number);
    const std::string text = "6F1C2B0A-8E55-4C2D-9A61-" + std::string(12 - digits.size(), '0');
    return Uuid::fromText(text + digits).value();
}

RecordedScan scan(std::int64_t number, std::int64_t scanCount)
{
    const std::int64_t repository = number * 7 % repositoryCount;
    const std::int64_t total = 18'000 + number * 2'917 % 61'000;
    RecordedCategories::List categories;
    for (std::size_t rank = 0; rank < SampleHistories::categoryNames.size(); ++rank)
        categories.push_back({.name = std::string(SampleHistories::categoryNames[rank]),
                              .tokens = total / static_cast<std::int64_t>(rank + 2)});
    return {.id = identifier(number),
            .repositoryName = "repository-" + std::to_string(repository),
            .repositoryPath = "/home/someone/projects/repository-" + std::to_string(repository),
            .date = lastScan - std::chrono::hours(scanCount - number),
            .total = total,
            .categories = std::move(categories)};
}

} // namespace

void projects(const fs::path &root, std::int64_t entryCount)
{
    const std::int64_t folderCount = (entryCount + filesInFolder - 1) / filesInFolder;
    const fs::path finished = root.native() + ".finished";
    if (fs::exists(finished))
        return;
    for (std::int64_t folder = 0; folder < folderCount; ++folder)
        fs::create_directories(projectIn(root, folder));
    for (std::int64_t entry = 0; entry < entryCount; ++entry)
        std::ofstream(projectIn(root, entry / filesInFolder) /
                      (GeneratedText::sessionName(entry) + ".jsonl"));
    transcript(projectIn(root, folderCount / 2) /
                   (GeneratedText::sessionName(wantedSession) + ".jsonl"),
               8'192);
    make(finished, [](std::ostream &) {});
}

void transcript(const fs::path &file, std::int64_t headBytes)
{
    make(file, [headBytes](std::ostream &stream) {
        std::int64_t written = 0;
        for (std::int64_t number = 0; written < headBytes; ++number) {
            const std::string line = GeneratedText::userLine(number);
            stream << line;
            written += static_cast<std::int64_t>(line.size());
        }
        stream << GeneratedText::assistantLine();
    });
}

void longLineTranscript(const fs::path &file, std::int64_t lineBytes)
{
    make(file, [lineBytes](std::ostream &stream) {
        stream << GeneratedText::longUserLine(lineBytes) << GeneratedText::assistantLine();
    });
}

void instructions(const fs::path &folder, std::int64_t fileCount, Imports imports)
{
    const std::vector<fs::path> paths = instructionPaths(folder, fileCount);
    for (std::int64_t number = 0; number < fileCount; ++number)
        make(paths[static_cast<std::size_t>(number)], [&](std::ostream &stream) {
            writeInstructions(stream, number, importsOf(number, fileCount, imports));
        });
}

std::vector<fs::path> instructionPaths(const fs::path &folder, std::int64_t fileCount)
{
    std::vector<fs::path> paths;
    for (std::int64_t number = 0; number < fileCount; ++number)
        paths.push_back(instructionPath(folder / "home/repository", number));
    return paths;
}

void answer(const fs::path &file, std::int64_t lineCount)
{
    make(file, [lineCount](std::ostream &stream) { stream << GeneratedText::answer(lineCount); });
}

void record(const fs::path &file, std::int64_t byteCount)
{
    make(file, [byteCount](std::ostream &stream) {
        stream << R"({"type":"result","is_error":false,"num_turns":1,"session_id":"s","result":")";
        std::int64_t written = 0;
        for (std::int64_t line = 0; written < byteCount; ++line) {
            const std::string text = "SLAB System tools TOKENS " + std::to_string(line) + "\\n";
            stream << text;
            written += static_cast<std::int64_t>(text.size());
        }
        stream << R"(","usage":{"input_tokens":3}})";
    });
}

std::vector<RecordedScan> scans(std::int64_t scanCount)
{
    std::vector<RecordedScan> scans;
    for (std::int64_t number = 0; number < scanCount; ++number)
        scans.push_back(scan(number, scanCount));
    return scans;
}

void history(const fs::path &folder, std::int64_t scanCount)
{
    make(folder / ScanHistoryStore::fileName, [scanCount](std::ostream &stream) {
        stream << ScanHistoryFile{.version = 1, .scans = scans(scanCount)}.encoded();
    });
}

void comparedHistory(const fs::path &folder, std::int64_t categoryCount)
{
    make(folder / ScanHistoryStore::fileName, [categoryCount](std::ostream &stream) {
        constexpr std::int64_t comparedScans = 200;
        constexpr std::int64_t comparedRepositories = 50;
        ScanHistoryFile file{
            .version = 1,
            .scans = SampleHistories::ofSize(comparedScans, comparedRepositories, categoryCount)};
        stream << file.encodedWithin(ScanHistoryStore::maximumBytes);
    });
}

} // namespace Loadwick::GeneratedFiles
