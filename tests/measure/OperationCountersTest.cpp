#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "measure/Measurement.h"
#include "samples/GeneratedFiles.h"
#include "samples/GeneratedText.h"
#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t pieceSize = 65'536;

std::string text(std::int64_t number)
{
    return std::to_string(number);
}

/// The counters of a scan of that many instruction files.
std::map<std::string, std::int64_t> ofInstructions(std::int64_t fileCount,
                                                   GeneratedFiles::Imports imports)
{
    const TemporaryFolder folder;
    GeneratedFiles::instructions(folder.path(), fileCount, imports);
    auto counters = measured({"instructions", folder.path()});
    EXPECT_EQ(counters.at("outcome"), fileCount);
    return counters;
}

/// The counters of some attempts to find a session among 1,100 entries in two folders, on a disk
/// that counts a folder's folders. `inner` are folders to make in each of the two.
std::map<std::string, std::int64_t> ofAttempts(const std::string &session, int attempts,
                                               const std::vector<std::string> &inner = {})
{
    const EnvironmentSwap swap({"TMPDIR=/dev/shm"});
    const TemporaryFolder folder;
    const fs::path root = folder.path() / "projects";
    GeneratedFiles::projects(root, 1'100);
    for (const fs::directory_entry &project : fs::directory_iterator(root))
        for (const std::string &name : inner)
            fs::create_directory(project.path() / name);
    return measured({"attempts", root, session, text(attempts)});
}

std::map<std::string, std::int64_t> ofFirstUsage(const fs::path &file)
{
    auto counters = measured({"first-usage", file});
    EXPECT_EQ(counters.at("outcome"), 42'318);
    return counters;
}

} // namespace

TEST(OperationCountersTest, opensAndReadsEachInstructionFileOnce)
{
    for (const auto imports : {GeneratedFiles::Imports::flat, GeneratedFiles::Imports::crossed}) {
        const auto counters = ofInstructions(80, imports);
        EXPECT_EQ(counters.at("files-opened"), 80);
        EXPECT_EQ(counters.at("reads"), 80);
    }
}

TEST(OperationCountersTest, resolvesTheLinksOfAFolderOnceForAllItsFiles)
{
    const auto few = ofInstructions(20, GeneratedFiles::Imports::crossed);
    const auto many = ofInstructions(80, GeneratedFiles::Imports::crossed);
    EXPECT_EQ(many.at("paths-resolved"), few.at("paths-resolved"));
}

TEST(OperationCountersTest, listsEachFolderWithSubfoldersOncePerAttempt)
{
    const auto once = ofAttempts("nothing", 1, {"inner", "other"});
    EXPECT_EQ(once.at("outcome"), 0);
    EXPECT_EQ(once.at("folders-listed"), 3) << "the root, and the two of the projects";
    EXPECT_EQ(once.at("files-opened"), 0);
    EXPECT_EQ(ofAttempts("nothing", 3, {"inner"}).at("folders-listed"), 9);
}

TEST(OperationCountersTest, listsNoFolderWithoutSubfolders)
{
    const auto thrice = ofAttempts("nothing", 3);
    EXPECT_EQ(thrice.at("folders-listed"), 3) << "the root";
    EXPECT_EQ(thrice.at("entries-seen"), 3 * 4) << "and its entries";
}

TEST(OperationCountersTest, checksEachFolderForTheNameAndSubfoldersAndNoEntry)
{
    EXPECT_EQ(ofAttempts("nothing", 1).at("paths-looked-at"), 4);
}

TEST(OperationCountersTest, opensOneFileOfATranscriptsFolder)
{
    const auto counters = ofAttempts(GeneratedText::sessionName(GeneratedFiles::wantedSession), 3);
    EXPECT_EQ(counters.at("outcome"), 42'318);
    EXPECT_EQ(counters.at("files-opened"), 1);
    EXPECT_EQ(counters.at("folders-listed"), 2) << "the root, and the one that holds it";
}

TEST(OperationCountersTest, readsATranscriptOnlyToItsFirstUsage)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "t.jsonl";
    GeneratedFiles::transcript(file, 10 * pieceSize);
    std::ofstream(file, std::ios::app) << std::string(100 * pieceSize, ' ');
    const auto counters = ofFirstUsage(file);
    EXPECT_EQ(counters.at("files-opened"), 1);
    EXPECT_LE(counters.at("reads"), 12);
    EXPECT_LE(counters.at("bytes-read"), 12 * pieceSize);
}

TEST(OperationCountersTest, readsALongUserLineOnce)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "t.jsonl";
    GeneratedFiles::longLineTranscript(file, 100 * pieceSize);
    EXPECT_EQ(ofFirstUsage(file).at("bytes-read"), static_cast<std::int64_t>(fs::file_size(file)));
}

TEST(OperationCountersTest, parsesOnlyTheAssistantsLineOfATranscript)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "t.jsonl";
    GeneratedFiles::transcript(file, 10 * pieceSize);
    EXPECT_EQ(ofFirstUsage(file).at("lines-parsed"), 1);
}

TEST(OperationCountersTest, parsesEachLineOfAnAnswerOnce)
{
    const TemporaryFolder folder;
    GeneratedFiles::answer(folder.path() / "answer", 300);
    for (const char *verb : {"slab", "attribution"})
        EXPECT_EQ(measured({verb, folder.path() / "answer"}).at("lines-parsed"), 300) << verb;
}

TEST(OperationCountersTest, readsAHistoryOnce)
{
    const TemporaryFolder folder;
    GeneratedFiles::history(folder.path(), 50);
    const auto size = static_cast<std::int64_t>(fs::file_size(folder.path() / "scan-history.json"));
    const auto counters = measured({"history-load", folder.path()});
    EXPECT_EQ(counters.at("outcome"), 50);
    EXPECT_EQ(counters.at("files-opened"), 1);
    EXPECT_EQ(counters.at("bytes-read"), size);
}

TEST(OperationCountersTest, readsEachByteOfACaptureOnce)
{
    const TemporaryFolder folder;
    GeneratedFiles::record(folder.path() / "record", 20 * pieceSize);
    const auto size = static_cast<std::int64_t>(fs::file_size(folder.path() / "record"));
    const auto counters = measured({"capture", "/bin/cat", folder.path() / "record"});
    EXPECT_EQ(counters.at("outcome"), size);
    EXPECT_EQ(counters.at("bytes-read"), size);
}

} // namespace Loadwick
