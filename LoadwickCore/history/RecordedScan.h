#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "report/OpinionBand.h"
#include "text/Uuid.h"

namespace Loadwick {

struct ScanReport;

/// One category of a recorded scan.
struct RecordedCategory
{
    std::string name; ///< made safe for storage by `RecordedCategoryName`
    std::int64_t tokens;

    friend bool operator==(const RecordedCategory &, const RecordedCategory &) = default;
};

/// The categories of one scan, immutable. Its copies share them, on any thread, so that copying a
/// scan costs the same whatever it holds.
class RecordedCategories
{
public:
    using List = std::vector<RecordedCategory>;
    using value_type = RecordedCategory;
    using const_iterator = List::const_iterator;

    RecordedCategories() : RecordedCategories(List()) {}
    RecordedCategories(List list) : m_list(std::make_shared<const List>(std::move(list))) {}
    RecordedCategories(std::initializer_list<RecordedCategory> list)
        : RecordedCategories(List(list))
    {}

    [[nodiscard]] const_iterator begin() const noexcept { return m_list->begin(); }
    [[nodiscard]] const_iterator end() const noexcept { return m_list->end(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_list->size(); }
    [[nodiscard]] bool empty() const noexcept { return m_list->empty(); }
    [[nodiscard]] const RecordedCategory &operator[](std::size_t index) const
    {
        return (*m_list)[index];
    }

    friend bool operator==(const RecordedCategories &left, const RecordedCategories &right)
    {
        return left.m_list == right.m_list || *left.m_list == *right.m_list;
    }

private:
    std::shared_ptr<const List> m_list;
};

/// One scan as the history keeps it: totals and category names, never file contents.
struct RecordedScan
{
    Uuid id;
    std::string repositoryName;
    std::string repositoryPath; ///< the key by which scans of one repository belong together
    std::chrono::sys_seconds date;
    std::int64_t total;            ///< tokens
    RecordedCategories categories; ///< in the report's row order

    [[nodiscard]] static RecordedScan fromReport(const ScanReport &report,
                                                 std::chrono::sys_seconds date, const Uuid &id);

    [[nodiscard]] OpinionBand band() const noexcept { return OpinionBand::band(total); }

    friend bool operator==(const RecordedScan &, const RecordedScan &) = default;
};

/// Keeps local paths and file names that a model printed as category names out of the history.
namespace RecordedCategoryName {

inline constexpr std::string_view withheld = "Other (name withheld)";
inline constexpr int limit = 80; ///< user-perceived characters

/// `name` trimmed, or `withheld` when it is then empty, looks like a path, or exceeds `limit`.
[[nodiscard]] std::string storable(std::string_view name);

/// Whether a name holds "/", "\" or "~", or a word that ends like a file name with an extension.
[[nodiscard]] bool looksLikePath(std::string_view name);

} // namespace RecordedCategoryName

} // namespace Loadwick
