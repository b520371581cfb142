#include "json/JsonWriter.h"

#include <algorithm>

#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

bool needsEscape(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

void appendEscape(std::string &text, char character)
{
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view letters = "\"\\bfnrt";
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    const std::size_t index = named.find(character);
    if (index != std::string_view::npos) {
        text += '\\';
        text += letters[index];
    } else {
        const auto code = static_cast<unsigned char>(character);
        text += "\\u00";
        text += hexadecimal[code >> 4U];
        text += hexadecimal[code & 0x0FU];
    }
}

void appendLiteral(std::string &text, std::string_view content)
{
    text += '"';
    for (auto rest = content.begin(); rest != content.end();) {
        const auto special = std::find_if(rest, content.end(), needsEscape);
        text.append(rest, special);
        rest = special;
        if (rest != content.end())
            appendEscape(text, *rest++);
    }
    text += '"';
}

} // namespace

void JsonWriter::open(char bracket)
{
    m_text += bracket;
    ++m_depth;
    m_isEmpty = true;
}

void JsonWriter::close(char bracket)
{
    --m_depth;
    if (!m_isEmpty)
        startLine();
    m_text += bracket;
    m_isEmpty = false;
}

void JsonWriter::key(std::string_view name)
{
    element();
    value(name);
    m_text += " : ";
}

void JsonWriter::element()
{
    if (!m_isEmpty)
        m_text += ',';
    m_isEmpty = false;
    startLine();
}

void JsonWriter::value(std::int64_t number)
{
    m_text += std::to_string(number);
}

void JsonWriter::value(std::string_view text)
{
    if (isUtf8(text))
        appendLiteral(m_text, text);
    else
        appendLiteral(m_text, repairedUtf8(text));
}

void JsonWriter::startLine()
{
    m_text += '\n';
    m_text.append(2 * m_depth, ' ');
}

} // namespace Loadwick
