#pragma once

#include <optional>
#include <string_view>

namespace Loadwick {

/// The value of an enumeration class whose `rawValue` is `name`; nothing for any other text. The
/// class lists its values in `all`.
template<typename Enumeration>
[[nodiscard]] std::optional<Enumeration> valueNamed(std::string_view name) noexcept
{
    for (const Enumeration value : Enumeration::all)
        if (value.rawValue() == name)
            return value;
    return std::nullopt;
}

} // namespace Loadwick
