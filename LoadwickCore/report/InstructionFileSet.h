#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "text/NamedValue.h"

namespace Loadwick {

/// The owner of an instruction file.
class InstructionFileTier
{
public:
    enum Value
    {
        repository,
        inherited,
        personal
    };
    static constexpr std::array all{repository, inherited, personal};

    constexpr InstructionFileTier(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in persisted data.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<InstructionFileTier>
    fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<InstructionFileTier>(text);
    }

private:
    Value m_value;
};

/// One instruction file on disk and what it probably costs.
struct InstructionFileEstimate
{
    std::string path; ///< as it was reached, as text: standardized, links not resolved
    std::int64_t byteCount;
    std::int64_t estimatedTokens;

    /// Computes the tokens from the bytes.
    [[nodiscard]] static InstructionFileEstimate fromPath(std::string path, std::int64_t byteCount);

    /// Four bytes to a token, rounded up: the ceiling of `byteCount` x 0.25 in double precision;
    /// 0 for a count below 1.
    [[nodiscard]] static std::int64_t estimatedTokensForByteCount(std::int64_t byteCount) noexcept;

    friend bool operator==(const InstructionFileEstimate &,
                           const InstructionFileEstimate &) = default;
};

/// What the instruction files of one tier cost, and the names under which a session may report it.
struct LocalCategoryEstimate
{
    std::string name;
    std::int64_t tokens;
    std::vector<std::string> matchTerms; ///< normalised names of the categories that this covers

    friend bool operator==(const LocalCategoryEstimate &, const LocalCategoryEstimate &) = default;
};

/// The instruction files of one repository, by tier, each tier in order of discovery.
struct InstructionFileSet
{
    std::vector<InstructionFileEstimate> repositoryFiles;
    std::vector<InstructionFileEstimate> inheritedFiles;
    std::vector<InstructionFileEstimate> personalFiles;
    std::vector<std::string> unreadablePaths; ///< ascending, each once
    /// The file whose import led to a file first, by their paths. Nothing for a file that a session
    /// looks for by itself. Part of equality, since it is shown with the files.
    std::unordered_map<std::string, std::string> importers = {};

    static const InstructionFileSet empty;

    [[nodiscard]] const std::vector<InstructionFileEstimate> &files(InstructionFileTier tier) const;
    [[nodiscard]] std::vector<InstructionFileEstimate> &files(InstructionFileTier tier);

    /// Repository, then inherited, then personal files.
    [[nodiscard]] std::vector<InstructionFileEstimate> allFiles() const;

    /// Why a file is loaded: the file that imports it, the one that imports that, and so on up to
    /// one that a session looks for by itself. Empty for such a file.
    [[nodiscard]] std::vector<std::string_view> importChain(const std::string &path) const;

    /// The name of a tier's row in the breakdown.
    [[nodiscard]] static std::string_view categoryName(InstructionFileTier tier) noexcept;

    /// One estimate for each tier whose files cost at least one token, in the tiers' order.
    /// Overflow of a sum ends the program.
    [[nodiscard]] std::vector<LocalCategoryEstimate> localCategories() const;

    friend bool operator==(const InstructionFileSet &, const InstructionFileSet &) = default;
};

} // namespace Loadwick
