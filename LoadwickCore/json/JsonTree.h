#pragma once

#include <nlohmann/json.hpp>

namespace Loadwick {

/// Takes a JSON value apart, down to null. Unlike the value's own end it asks for no memory,
/// however large and deep it is: without any to be had, that end would end the program.
void dismantle(nlohmann::json &value) noexcept;

/// The one owner of a JSON value that was read from outside, which is taken apart at its end.
class JsonTree
{
public:
    JsonTree() noexcept = default;
    ~JsonTree() { dismantle(m_value); }

    JsonTree(JsonTree &&other) noexcept { m_value.swap(other.m_value); }
    JsonTree &operator=(JsonTree &&other) noexcept;
    JsonTree(const JsonTree &) = delete;
    JsonTree &operator=(const JsonTree &) = delete;

    [[nodiscard]] nlohmann::json &value() noexcept { return m_value; }
    [[nodiscard]] const nlohmann::json &value() const noexcept { return m_value; }

    /// It is read like the value that it holds.
    operator const nlohmann::json &() const noexcept { return m_value; }

    friend bool operator==(const JsonTree &tree, const nlohmann::json &value)
    {
        return tree.m_value == value;
    }

private:
    nlohmann::json m_value;
};

} // namespace Loadwick
