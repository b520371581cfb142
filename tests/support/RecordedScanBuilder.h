#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "history/RecordedScan.h"

namespace Loadwick {

/// Makes recorded scans of which a test names only what it cares for. Identifiers are random.
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
};

} // namespace Loadwick
