#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "history/RecordedScan.h"

namespace Loadwick {

/// Builds recorded scans; a test sets only the fields that matter to it. Identifiers are random.
class RecordedScanBuilder
{
public:
    RecordedScanBuilder();

    RecordedScanBuilder &named(std::string repositoryName);
    RecordedScanBuilder &in(std::string repositoryPath);
    RecordedScanBuilder &at(std::int64_t secondsSince1970);
    RecordedScanBuilder &ofTotal(std::int64_t tokens);
    RecordedScanBuilder &withCategory(std::string name, std::int64_t tokens);

    [[nodiscard]] RecordedScan build() const;

private:
    RecordedScan m_scan;
    RecordedCategories::List m_categories;
};

} // namespace Loadwick
