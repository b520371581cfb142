#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Loadwick {

/// Writes one JSON document (RFC 8259) for people to read: two blanks an indent, `"key" : value`,
/// every member and element on a line of its own, {} and [] for what is empty, no line feed at the
/// end. The caller sees to it that brackets match and every key gets one value.
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

    /// Only the quotation mark, the backslash and control characters are escaped. What is not UTF-8
    /// is written as U+FFFD: a single such byte would make the document unreadable.
    void value(std::string_view text);

    [[nodiscard]] const std::string &text() const noexcept { return m_text; }

private:
    void startLine();

    std::string m_text;
    std::size_t m_depth = 0;
    bool m_isEmpty = true; ///< nothing was written yet inside the innermost bracket
};

} // namespace Loadwick
