#include "support/RecordedScanBuilder.h"

#include <utility>

namespace Loadwick {

RecordedScanBuilder::RecordedScanBuilder()
    : m_scan{.id = Uuid::random(),
             .repositoryName = "webshop",
             .repositoryPath = "/home/someone/webshop",
             .date = std::chrono::sys_seconds(std::chrono::seconds(1'772'615'727)),
             .total = 27'654,
             .categories = {}}
{}

RecordedScanBuilder &RecordedScanBuilder::named(std::string repositoryName)
{
    m_scan.repositoryName = std::move(repositoryName);
    return *this;
}

RecordedScanBuilder &RecordedScanBuilder::in(std::string repositoryPath)
{
    m_scan.repositoryPath = std::move(repositoryPath);
    return *this;
}

RecordedScanBuilder &RecordedScanBuilder::at(std::int64_t secondsSince1970)
{
    m_scan.date = std::chrono::sys_seconds(std::chrono::seconds(secondsSince1970));
    return *this;
}

RecordedScanBuilder &RecordedScanBuilder::ofTotal(std::int64_t tokens)
{
    m_scan.total = tokens;
    return *this;
}

RecordedScanBuilder &RecordedScanBuilder::withCategory(std::string name, std::int64_t tokens)
{
    m_categories.push_back({.name = std::move(name), .tokens = tokens});
    return *this;
}

RecordedScan RecordedScanBuilder::build() const
{
    RecordedScan scan = m_scan;
    scan.categories = m_categories;
    return scan;
}

} // namespace Loadwick
