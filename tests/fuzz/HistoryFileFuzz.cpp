#include <chrono>
#include <string>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "history/ScanHistoryFile.h"
#include "text/DateText.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// A history of one scan whose texts and figures are lines of the input.
ScanHistoryFile historyOf(FuzzInput input)
{
    RecordedScan scan{.id = *Uuid::fromText("00112233-4455-6677-8899-AABBCCDDEEFF"),
                      .repositoryName = std::string(input.takeLine()),
                      .repositoryPath = std::string(input.takeLine()),
                      .date = {},
                      .total = input.takeInteger(FuzzInput::largestLimit),
                      .categories = {}};
    scan.date += std::chrono::seconds(input.takeInteger(200'000'000'000));
    RecordedCategories::List categories;
    while (!input.isAtEnd() && categories.size() < 8) {
        const std::int64_t tokens = input.takeInteger(FuzzInput::largestLimit);
        categories.push_back({.name = std::string(input.takeLine()), .tokens = tokens});
    }
    scan.categories = std::move(categories);
    return {.version = scan.total, .scans = {scan}};
}

/// The part of it that a file can express: texts as UTF-8, and dates in four-digit years.
ScanHistoryFile storable(ScanHistoryFile file)
{
    for (RecordedScan &scan : file.scans) {
        scan.repositoryName = repairedUtf8(scan.repositoryName);
        scan.repositoryPath = repairedUtf8(scan.repositoryPath);
        scan.date = *IsoDate::fromText(IsoDate::text(scan.date));
        RecordedCategories::List categories(scan.categories.begin(), scan.categories.end());
        for (RecordedCategory &category : categories)
            category.name = repairedUtf8(category.name);
        scan.categories = std::move(categories);
    }
    return file;
}

/// The newest scans that fit are kept, and a scan that fits nowhere keeps its total.
void checkLimit(const ScanHistoryFile &file, std::size_t limit)
{
    ScanHistoryFile expected = file;
    for (RecordedScan &scan : expected.scans)
        if (ScanHistoryFile{file.version, {scan}}.encoded().size() > limit)
            scan.categories = {};
    const bool isTooLong = file.encoded().size() > limit;
    while (isTooLong && !expected.scans.empty() && expected.encoded().size() > limit)
        expected.scans.erase(expected.scans.begin());
    ScanHistoryFile kept = file;
    require(kept.encodedWithin(limit) == expected.encoded(), "what is too long is left out");
    require(kept == expected, "what is written is what is kept");
}

void checkFile(std::string_view json)
{
    const auto file = ScanHistoryFile::decoded(json);
    if (!file)
        return;
    const std::string encoded = file->encoded();
    require(ScanHistoryFile::decoded(encoded) == file, "a file round-trips");
    require(ScanHistoryFile::decoded("\uFEFF" + encoded) == file, "a byte order mark is skipped");
    require(JsonOracle::of(encoded).object.has_value(), "a written file is JSON");
    require(isUtf8(encoded), "a written file is UTF-8");
    for (const std::size_t limit : {encoded.size(), encoded.size() - 1, encoded.size() / 2})
        checkLimit(*file, limit);
}

void checkHistory(std::string_view input)
{
    checkFile(input);
    const ScanHistoryFile written = historyOf(FuzzInput(input));
    require(ScanHistoryFile::decoded(written.encoded()) == storable(written),
            "a written file can be read");
}

const FuzzTarget target("HistoryFile", checkHistory);

} // namespace

} // namespace Loadwick
