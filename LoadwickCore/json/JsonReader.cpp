#include "json/JsonReader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

#include "json/JsonString.h"

namespace Loadwick {

namespace {

/// No selected key is spelled with more bytes than this, escapes included.
constexpr std::size_t longestSelectedKey = 4096;

/// A longer number is none that anybody counts with; it is kept as null.
constexpr std::size_t longestNumber = 4096;

constexpr bool isJsonSpace(char character) noexcept
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// An integer that fits, as nearly every number is. The library's own parser, set up for each
/// number, took a quarter of the time of reading a history.
std::optional<nlohmann::json> plainIntegerOf(std::string_view digits)
{
    std::int64_t integer = 0;
    const char *const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, integer);
    if (error != std::errc() || end != last)
        return std::nullopt;
    if (integer < 0)
        return integer;
    return static_cast<std::uint64_t>(integer); // as the library's parser types it
}

nlohmann::json numberOf(std::string_view digits)
{
    if (auto integer = plainIntegerOf(digits))
        return std::move(*integer);
    if (digits.size() > longestNumber)
        return nullptr;
    nlohmann::json number =
        nlohmann::json::parse(digits.begin(), digits.end(), nullptr, /* allow_exceptions */ false);
    return number.is_discarded() ? nlohmann::json() : number;
}

} // namespace

JsonReader::JsonReader(std::string_view document, const JsonSelection &selection)
    : m_text(document), m_root{&m_result.value(), &selection}
{}

std::optional<JsonTree> JsonReader::readObject()
{
    if (!take('{'))
        return std::nullopt;
    open(true, m_root);
    while (!m_isObject.empty())
        if (!readElement())
            return std::nullopt;
    if (m_index != m_text.size())
        return std::nullopt;
    return std::move(m_result);
}

/// Reads one member or item of the innermost container, or its end.
bool JsonReader::readElement()
{
    skipSpace();
    const bool isObject = m_isObject.back();
    if (take(isObject ? '}' : ']')) {
        close();
        return true;
    }
    if (!std::exchange(m_isAtFirst, false)) {
        if (!take(','))
            return false;
        skipSpace();
    }
    const auto place = isObject ? takeKey() : placeOfItem();
    return place && readValue(*place);
}

bool JsonReader::readValue(const Place &place)
{
    switch (next()) {
    case '{':
    case '[':
        return open(m_text[m_index++] == '{', place);
    case '"':
        return readString(place);
    case 't':
        return readLiteral("true", true, place);
    case 'f':
        return readLiteral("false", false, place);
    case 'n':
        return readLiteral("null", nullptr, place);
    default:
        return readNumber(place);
    }
}

bool JsonReader::readString(const Place &place)
{
    const auto literal = takeStringLiteral();
    if (literal && place.slot != nullptr)
        put(place, jsonStringText(*literal));
    return literal.has_value();
}

bool JsonReader::readLiteral(std::string_view word, nlohmann::json value, const Place &place)
{
    if (m_text.substr(m_index, word.size()) != word)
        return false;
    m_index += word.size();
    put(place, std::move(value));
    return true;
}

bool JsonReader::readNumber(const Place &place)
{
    const std::size_t start = m_index;
    take('-');
    if (!take('0') && !takeDigits())
        return false;
    if (take('.') && !takeDigits())
        return false;
    if (take('e') || take('E')) {
        if (!take('+'))
            take('-');
        if (!takeDigits())
            return false;
    }
    if (place.slot != nullptr)
        put(place, numberOf(m_text.substr(start, m_index - start)));
    return true;
}

/// What stands there already, as of a key that occurs twice, goes first, and without asking for
/// memory.
void JsonReader::put(const Place &place, nlohmann::json value) noexcept
{
    if (place.slot == nullptr)
        return;
    dismantle(*place.slot);
    *place.slot = std::move(value);
}

std::optional<std::string_view> JsonReader::takeStringLiteral()
{
    if (!take('"'))
        return std::nullopt;
    const auto end = jsonStringEnd(m_text, m_index);
    if (!end)
        return std::nullopt;
    const std::string_view literal = m_text.substr(m_index, *end - m_index);
    m_index = *end + 1;
    return literal;
}

std::optional<JsonReader::Place> JsonReader::takeKey()
{
    const auto literal = takeStringLiteral();
    skipSpace();
    if (!literal || !take(':'))
        return std::nullopt;
    skipSpace();
    return placeOfMember(*literal);
}

JsonReader::Place JsonReader::placeOfMember(std::string_view keyLiteral)
{
    if (!isKeeping())
        return {};
    const Place container = m_kept.back();
    if (container.selection == nullptr)
        return {&(*container.slot)[jsonStringText(keyLiteral)], nullptr};
    if (keyLiteral.size() > longestSelectedKey)
        return {};
    const std::string key = jsonStringText(keyLiteral);
    const JsonSelection *const selected = container.selection->member(key);
    if (selected == nullptr)
        return {};
    // The member takes the place of an earlier one of its name, whatever it holds.
    if (const auto earlier = container.slot->find(key); earlier != container.slot->end()) {
        dismantle(*earlier);
        container.slot->erase(earlier);
    }
    const bool isContainer = next() == '{' || next() == '[';
    if (selected->isWhole() && !(selected->isScalar() && isContainer))
        return {&(*container.slot)[key], nullptr};
    if (selected->isWhole() || next() != '{')
        return {};
    return {&(*container.slot)[key], selected};
}

JsonReader::Place JsonReader::placeOfItem()
{
    if (!isKeeping())
        return {};
    nlohmann::json &array = *m_kept.back().slot;
    array.push_back(nullptr);
    return {&array.back(), nullptr};
}

bool JsonReader::open(bool isObject, const Place &place)
{
    if (place.slot != nullptr) {
        put(place, isObject ? nlohmann::json::object() : nlohmann::json::array());
        m_kept.push_back(place);
    }
    m_isObject.push_back(isObject);
    m_isAtFirst = true;
    return true;
}

void JsonReader::close()
{
    if (isKeeping())
        m_kept.pop_back();
    m_isObject.pop_back();
    m_isAtFirst = false;
}

char JsonReader::next() const noexcept
{
    return m_index < m_text.size() ? m_text[m_index] : '\0';
}

bool JsonReader::take(char wanted) noexcept
{
    if (m_index >= m_text.size() || m_text[m_index] != wanted)
        return false;
    ++m_index;
    return true;
}

bool JsonReader::takeDigits() noexcept
{
    const std::size_t start = m_index;
    m_index = std::min(m_text.find_first_not_of("0123456789", m_index), m_text.size());
    return m_index > start;
}

void JsonReader::skipSpace() noexcept
{
    // A plain loop: find_first_not_of calls memchr for each byte, a seventh of a whole reading.
    while (m_index < m_text.size() && isJsonSpace(m_text[m_index]))
        ++m_index;
}

} // namespace Loadwick
