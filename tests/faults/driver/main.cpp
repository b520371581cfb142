// Makes every call of the core that can fail do so, and checks what is left.
//
//   loadwick-faults                       the whole matrix
//   loadwick-faults --sample SEED         a part of it, the same for the same seed
//   loadwick-faults --operation NAME      one operation
//   loadwick-faults --call NAME           one kind of call (both: that call in that operation)
//   loadwick-faults --conditions          every operation under adverse conditions
//   loadwick-faults --record-in FOLDER    one scan; what became of the history there
//   loadwick-faults --replay OPERATION,CALL,ERRNO,NUMBER,once|always|burst

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/statvfs.h>

#include "faults/driver/Conditions.h"
#include "faults/driver/HistoryFixture.h"
#include "faults/driver/Matrix.h"
#include "faults/driver/Shim.h"
#include "history/ScanHistoryStore.h"
#include "samples/TemporaryFolder.h"

namespace {

using Faults::Matrix;

/// Creating and removing a thousand homes takes a third of the time in memory, if programs may run
/// from there.
void preferMemoryForFiles()
{
    struct statvfs memory = {};
    if (statvfs("/dev/shm", &memory) == 0 && (memory.f_flag & (ST_NOEXEC | ST_RDONLY)) == 0)
        setenv("TMPDIR", "/dev/shm", /* overwrite */ 0);
}

int usage()
{
    std::cerr << "usage: loadwick-faults [--sample SEED] [--operation NAME] [--call NAME]\n"
                 "       loadwick-faults --conditions\n"
                 "       loadwick-faults --replay OPERATION,CALL,ERRNO,NUMBER,MODE\n";
    return 2;
}

int replay(const std::string &text)
{
    const auto fault = Faults::Fault::fromText(text);
    if (!fault)
        return usage();
    const Loadwick::TemporaryFolder folder;
    return Matrix(folder.path()).replay(*fault) ? 0 : 1;
}

std::optional<std::string> bytesOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return file ? std::optional(std::string(std::istreambuf_iterator<char>(file), {}))
                : std::nullopt;
}

int recordIn(const std::filesystem::path &folder)
{
    Loadwick::ScanHistoryStore store(folder);
    const auto before = bytesOf(store.fileURL());
    const auto list = store.append(Faults::sampleScan(1));
    if (bytesOf(store.fileURL()) == before)
        std::cout << "kept\n";
    else
        std::cout << (store.load() == list ? "recorded\n" : "torn\n");
    return 0;
}

int checkConditions()
{
    const Loadwick::TemporaryFolder folder;
    return Faults::runUnderConditions(folder.path()) == 0 ? 0 : 1;
}

int runMatrix(const Matrix::Extent &extent)
{
    const Loadwick::TemporaryFolder folder;
    const auto start = std::chrono::steady_clock::now();
    const Matrix::Score score = Matrix(folder.path()).run(extent);
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
    for (const std::string &problem : score.problems)
        std::cout << "PROBLEM " << problem << '\n';
    if (extent.sampleSeed)
        std::cout << "sample with seed " << *extent.sampleSeed << ": ";
    std::cout << score.failedCalls << " calls failed in " << score.trials << " trials, "
              << score.problems.size() << " problems, " << static_cast<int>(duration.count())
              << " s\n";
    return score.problems.empty() && score.failedCalls > 0 ? 0 : 1;
}

} // namespace

int main(int count, char **texts)
{
    Faults::Shim::require(texts);
    preferMemoryForFiles();
    const std::vector<std::string> arguments(texts + 1, texts + count);
    Matrix::Extent extent;
    if (arguments == std::vector<std::string>{"--conditions"})
        return checkConditions();
    if (arguments.size() % 2 != 0)
        return usage();
    for (std::size_t index = 0; index < arguments.size(); index += 2) {
        const std::string &value = arguments[index + 1];
        if (arguments[index] == "--replay")
            return replay(value);
        if (arguments[index] == "--sample")
            extent.sampleSeed = static_cast<unsigned>(std::stoul(value));
        else if (arguments[index] == "--operation")
            extent.operation = value;
        else if (arguments[index] == "--call")
            extent.call = value;
        else if (arguments[index] == "--record-in")
            return recordIn(value);
        else
            return usage();
    }
    return runMatrix(extent);
}
