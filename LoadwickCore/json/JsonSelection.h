#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

namespace Loadwick {

/// The parts of a JSON object that a reader is asked to keep: a tree of keys.
class JsonSelection
{
public:
    /// What is wanted at the end of a path.
    enum class Values
    {
        all,
        scalars ///< a text, number, Boolean or null; an array or object counts as absent
    };

    /// A path is one key, or keys joined by dots.
    [[nodiscard]] static JsonSelection ofPaths(std::initializer_list<std::string_view> paths,
                                               Values values = Values::all);

    /// Whether all that stands here is wanted.
    [[nodiscard]] bool isWhole() const noexcept { return m_isWhole; }

    /// Whether an array or object that stands here is unwanted.
    [[nodiscard]] bool isScalar() const noexcept { return m_isScalar; }

    /// What is wanted of the member `key`; null when nothing is.
    [[nodiscard]] const JsonSelection *member(std::string_view key) const;

private:
    void add(std::string_view path, Values values);

    std::map<std::string, JsonSelection, std::less<>> m_members;
    bool m_isWhole = false;
    bool m_isScalar = false;
};

} // namespace Loadwick
