#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/NamedValue.h"

namespace Loadwick {

struct LocalCategoryEstimate;
struct SelfReportedSlab;
class SelfReportedSlabs;

/// Where the figure of a breakdown row comes from.
class Provenance
{
public:
    enum Value
    {
        claudeReported,
        selfReported,
        localEstimate,
        remainder
    };
    static constexpr std::array all{claudeReported, selfReported, localEstimate, remainder};

    constexpr Provenance(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<Provenance> fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<Provenance>(text);
    }

    /// True only for what the session recorded as its usage.
    [[nodiscard]] bool isAuthoritative() const noexcept { return m_value == claudeReported; }

    /// The phrase printed beside a row.
    [[nodiscard]] std::string_view sourceLabel() const noexcept;

private:
    Value m_value;
};

/// One row of the breakdown.
struct SlabAttribution
{
    std::string name;
    std::int64_t tokens;
    Provenance provenance;
    std::int64_t ordinal; ///< index in the order of creation, kept through sorting

    /// Unique within one outcome: "ordinal|provenance|name".
    [[nodiscard]] std::string id() const;

    friend bool operator==(const SlabAttribution &, const SlabAttribution &) = default;
};

/// A total split into rows.
struct AttributionOutcome
{
    std::vector<SlabAttribution> rows; ///< heaviest first, then by name, then by creation
    std::int64_t remainder;            ///< tokens that no other row explains; 0 or more
    bool overAttributed;               ///< the rows explain more than the total
    bool categoriesSelfReported;

    friend bool operator==(const AttributionOutcome &, const AttributionOutcome &) = default;
};

/// Splits a measured total into rows without counting a token twice: a self-reported category that
/// local estimates cover shows through them, and only its excess becomes a row of its own.
namespace SlabAttributor {

inline constexpr std::string_view remainderLabel = "Unattributed";
inline constexpr std::string_view unreportedCategoriesLabel =
    "Startup context (categories not self-reported)";
inline constexpr std::string_view beyondLocalEstimateSuffix = " (beyond local estimate)";

/// Overflow of a 64-bit sum ends the program; nothing else can fail.
[[nodiscard]] AttributionOutcome attribute(std::int64_t total,
                                           const SelfReportedSlabs &selfReported,
                                           std::span<const LocalCategoryEstimate> localEstimates);

/// A category name in lower case, reduced to its letters and numeric characters (with their marks).
[[nodiscard]] std::string normalize(std::string_view name);

/// One slab for each normalised name, in the position and the spelling of its first occurrence,
/// with the tokens of all.
[[nodiscard]] std::vector<SelfReportedSlab> merged(const SelfReportedSlabs &slabs);

} // namespace SlabAttributor

} // namespace Loadwick
