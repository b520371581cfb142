#include "history/RecordedScan.h"

#include <utility>

#include "report/ScanReport.h"
#include "text/UnicodeText.h"

namespace Loadwick {

RecordedScan RecordedScan::fromReport(const ScanReport &report, std::chrono::sys_seconds date,
                                      const Uuid &id)
{
    RecordedCategories::List categories;
    categories.reserve(report.rows.size());
    for (const SlabAttribution &row : report.rows)
        categories.push_back(
            {.name = RecordedCategoryName::storable(row.name), .tokens = row.tokens});
    return {.id = id,
            .repositoryName = report.repositoryName,
            .repositoryPath = report.repositoryPath,
            .date = date,
            .total = report.total,
            .categories = std::move(categories)};
}

namespace RecordedCategoryName {

namespace {

/// Whether a word's last dot is inside it, followed only by letters (with their marks) and digits.
bool endsLikeFileName(std::string_view word)
{
    const std::size_t dot = word.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == word.size())
        return false;
    return isLettersAndNumbers(word.substr(dot + 1));
}

bool exceedsLimit(std::string_view name)
{
    // A character takes at least a byte, so most names need no search for boundaries.
    return name.size() > limit && byteCountOfCharacters(name, limit) < name.size();
}

} // namespace

std::string storable(std::string_view name)
{
    const std::string_view kept = trimmed(name);
    const bool isWithheld = kept.empty() || looksLikePath(kept) || exceedsLimit(kept);
    return std::string(isWithheld ? withheld : kept);
}

bool looksLikePath(std::string_view name)
{
    if (name.find_first_of("/\\~") != std::string_view::npos)
        return true;
    while (!name.empty()) {
        const std::string_view word = name.substr(0, name.find(' '));
        if (endsLikeFileName(word))
            return true;
        name.remove_prefix(word.size() < name.size() ? word.size() + 1 : name.size());
    }
    return false;
}

} // namespace RecordedCategoryName

} // namespace Loadwick
