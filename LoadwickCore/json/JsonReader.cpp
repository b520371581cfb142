#include "json/JsonReader.h"

#include <span>
#include <utility>

#include "text/UnicodeText.h"
#include "json/JsonTokens.h"

namespace Loadwick {

namespace {

using Paths = std::span<const std::string_view>;

/// No kept key is spelled with more bytes than this, escapes included.
constexpr std::size_t longestKeptKey = 4096;

enum class PathEnds
{
    anyValue,
    scalar
};

/// Where a value goes; a slot without a value drops it.
struct Slot
{
    JsonValue *value = nullptr;
    std::optional<std::string_view> path =
        std::nullopt; ///< as `pathTo` returns it; none: keep it all
};

/// The beginning of a kept path that leads to the member `key` below `path`: with a dot at its end
/// while it leads on. Nothing if no kept path leads there.
std::optional<std::string_view> pathTo(std::string_view key, std::string_view path, Paths keptPaths)
{
    for (const std::string_view kept : keptPaths) {
        if (!kept.starts_with(path))
            continue;
        const std::string_view rest = kept.substr(path.size());
        if (rest.substr(0, rest.find('.')) == key)
            return kept.substr(0, path.size() + key.size() + 1);
    }
    return std::nullopt;
}

/// One pass over a document.
class JsonReader
{
public:
    JsonReader(std::string_view document, Paths keptPaths, PathEnds ends)
        : m_tokens(document), m_keptPaths(keptPaths), m_ends(ends)
    {}

    /// Call it once.
    [[nodiscard]] std::optional<JsonValue> readObject();

private:
    [[nodiscard]] bool readElement();
    [[nodiscard]] bool readValue(const Slot &slot);
    [[nodiscard]] bool readWord(std::string_view word, JsonValue value, const Slot &slot);
    [[nodiscard]] bool readString(const Slot &slot);
    [[nodiscard]] bool readNumber(const Slot &slot);
    [[nodiscard]] std::optional<Slot> takeKey();
    [[nodiscard]] Slot slotOfMember(std::string_view keyLiteral);
    [[nodiscard]] Slot slotOfItem();

    bool open(char bracket, const Slot &slot);
    void close();
    [[nodiscard]] bool isKeeping() const noexcept { return m_kept.size() == m_isObject.size(); }

    JsonTokens m_tokens;
    Paths m_keptPaths;
    PathEnds m_ends;
    JsonValue m_result;
    std::vector<bool> m_isObject; // for each open container
    std::vector<Slot> m_kept;     // the outermost open containers, as far as they are kept
    bool m_isAtFirst = true;      // nothing was read in the innermost container yet
};

std::optional<JsonValue> JsonReader::readObject()
{
    if (m_tokens.next() != '{')
        return std::nullopt;
    open('{', {&m_result, ""});
    while (!m_isObject.empty())
        if (!readElement())
            return std::nullopt;
    if (!m_tokens.isAtEnd())
        return std::nullopt;
    return std::move(m_result);
}

/// Reads one member or item of the innermost container, or its end.
bool JsonReader::readElement()
{
    m_tokens.skipSpace();
    const bool isObject = m_isObject.back();
    if (m_tokens.take(isObject ? '}' : ']')) {
        close();
        return true;
    }
    if (!std::exchange(m_isAtFirst, false)) {
        if (!m_tokens.take(','))
            return false;
        m_tokens.skipSpace();
    }
    const auto slot = isObject ? takeKey() : slotOfItem();
    return slot && readValue(*slot);
}

bool JsonReader::readValue(const Slot &slot)
{
    switch (m_tokens.next()) {
    case '{':
    case '[':
        return open(m_tokens.next(), slot);
    case '"':
        return readString(slot);
    case 't':
        return readWord("true", JsonValue(true), slot);
    case 'f':
        return readWord("false", JsonValue(false), slot);
    case 'n':
        return readWord("null", JsonValue(), slot);
    default:
        return readNumber(slot);
    }
}

bool JsonReader::readWord(std::string_view word, JsonValue value, const Slot &slot)
{
    if (!m_tokens.takeWord(word))
        return false;
    if (slot.value != nullptr)
        *slot.value = std::move(value);
    return true;
}

bool JsonReader::readString(const Slot &slot)
{
    const auto literal = m_tokens.takeString();
    if (literal && slot.value != nullptr)
        *slot.value = JsonValue(jsonStringText(*literal));
    return literal.has_value();
}

bool JsonReader::readNumber(const Slot &slot)
{
    const auto digits = m_tokens.takeNumber();
    if (digits && slot.value != nullptr)
        *slot.value = jsonNumber(*digits);
    return digits.has_value();
}

std::optional<Slot> JsonReader::takeKey()
{
    const auto literal = m_tokens.takeString();
    m_tokens.skipSpace();
    if (!literal || !m_tokens.take(':'))
        return std::nullopt;
    m_tokens.skipSpace();
    return slotOfMember(*literal);
}

Slot JsonReader::slotOfMember(std::string_view keyLiteral)
{
    if (!isKeeping())
        return {};
    const Slot &container = m_kept.back();
    auto &members = *container.value->as<JsonValue::Object>();
    if (!container.path)
        return {&members.emplace_back(JsonMember{jsonStringText(keyLiteral), {}}).value};
    if (keyLiteral.size() > longestKeptKey)
        return {};
    std::string key = jsonStringText(keyLiteral);
    const auto path = pathTo(key, *container.path, m_keptPaths);
    if (!path)
        return {};
    // A duplicate key drops the earlier member, whatever this one holds.
    std::erase_if(members, [&](const JsonMember &earlier) { return earlier.key == key; });
    const bool leadsOn = path->ends_with('.');
    const bool isObject = m_tokens.next() == '{';
    const bool isContainer = isObject || m_tokens.next() == '[';
    if (leadsOn ? !isObject : isContainer && m_ends == PathEnds::scalar)
        return {};
    JsonValue &value = members.emplace_back(JsonMember{std::move(key), {}}).value;
    return {&value, leadsOn ? path : std::nullopt};
}

Slot JsonReader::slotOfItem()
{
    if (!isKeeping())
        return {};
    return {&m_kept.back().value->as<JsonValue::Array>()->emplace_back()};
}

/// Opens the container that begins here with `bracket`.
bool JsonReader::open(char bracket, const Slot &slot)
{
    const bool isObject = bracket == '{';
    if (slot.value != nullptr) {
        *slot.value = isObject ? JsonValue(JsonValue::Object()) : JsonValue(JsonValue::Array());
        m_kept.push_back(slot);
    }
    m_isObject.push_back(isObject);
    m_isAtFirst = true;
    return m_tokens.take(bracket);
}

void JsonReader::close()
{
    if (isKeeping())
        m_kept.pop_back();
    m_isObject.pop_back();
    m_isAtFirst = false;
}

std::optional<JsonValue> keptPartsOf(std::string_view text, Paths keptPaths, PathEnds ends)
{
    const std::string_view document = trimmed(text);
    if (!isUtf8(document))
        return std::nullopt;
    return JsonReader(document, keptPaths, ends).readObject();
}

} // namespace

std::optional<JsonValue> jsonObject(std::string_view text,
                                    std::initializer_list<std::string_view> keptPaths)
{
    return keptPartsOf(text, {keptPaths.begin(), keptPaths.size()}, PathEnds::anyValue);
}

std::optional<JsonValue> jsonObjectOfScalars(std::string_view text,
                                             std::initializer_list<std::string_view> keptPaths)
{
    return keptPartsOf(text, {keptPaths.begin(), keptPaths.size()}, PathEnds::scalar);
}

} // namespace Loadwick
