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
    /// A path is one key, or keys joined by dots.
    [[nodiscard]] static JsonSelection ofPaths(std::initializer_list<std::string_view> paths);

    /// Whether all that stands here is wanted.
    [[nodiscard]] bool isWhole() const noexcept { return m_isWhole; }

    /// What is wanted of the member `key`; null when nothing is.
    [[nodiscard]] const JsonSelection *member(std::string_view key) const;

private:
    void add(std::string_view path);

    std::map<std::string, JsonSelection, std::less<>> m_members;
    bool m_isWhole = false;
};

} // namespace Loadwick
