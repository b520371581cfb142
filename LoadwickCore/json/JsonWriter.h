#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Loadwick {

/// Pretty-prints one JSON document (RFC 8259): two-space indent, `"key" : value`, one member or
/// element a line, {} and [] when empty, no trailing line feed. The caller must balance the
/// brackets and give every key exactly one value.
class JsonWriter
{
public:
    /// Begins an object "{" or a list "[", as the document, an element or a key's value.
    void open(char bracket);

    /// Ends it: "}" or "]".
    void close(char bracket);

    /// Begins the next member of the open object; its value comes next.
    void key(std::string_view name);

    /// Begins the next element of the open list; its value comes next.
    void element();

    void value(std::int64_t number);

    /// Only the quotation mark, the backslash and control characters are escaped. Ill-formed UTF-8
    /// is written as U+FFFD: a single bad byte would make the document unreadable.
    void value(std::string_view text);

    [[nodiscard]] const std::string &text() const noexcept { return m_text; }

private:
    void startLine();

    std::string m_text;
    std::size_t m_depth = 0;
    bool m_isEmpty = true; ///< nothing was written yet inside the innermost bracket
};

} // namespace Loadwick
