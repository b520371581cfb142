#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "json/JsonSelection.h"
#include "json/JsonTree.h"

namespace Loadwick {

/// One pass over a JSON document (RFC 8259) that keeps what a selection names. What is not selected
/// costs no memory but one bit for each level of nesting, and no stack; a selected string is copied
/// once. (The event interface of nlohmann-json buffers each token twice, and whatever stands
/// between two strings or numbers once more.)
class JsonReader
{
public:
    /// Both must outlive the reader. `document` must be UTF-8 and without white space at its ends.
    JsonReader(std::string_view document, const JsonSelection &selection);

    /// The selected parts of the document; nothing when it is not JSON or no object. Call it once.
    [[nodiscard]] std::optional<JsonTree> readObject();

private:
    /// Where a value goes, and what is wanted of it; a place without a slot drops it.
    struct Place
    {
        nlohmann::json *slot = nullptr;
        const JsonSelection *selection = nullptr; // null: all of it
    };

    [[nodiscard]] bool readElement();
    [[nodiscard]] bool readValue(const Place &place);
    [[nodiscard]] bool readString(const Place &place);
    [[nodiscard]] bool readLiteral(std::string_view word, nlohmann::json value, const Place &place);
    [[nodiscard]] bool readNumber(const Place &place);
    static void put(const Place &place, nlohmann::json value) noexcept;
    [[nodiscard]] std::optional<std::string_view> takeStringLiteral();
    [[nodiscard]] std::optional<Place> takeKey();
    [[nodiscard]] Place placeOfMember(std::string_view keyLiteral);
    [[nodiscard]] Place placeOfItem();

    bool open(bool isObject, const Place &place);
    void close();
    [[nodiscard]] bool isKeeping() const noexcept { return m_kept.size() == m_isObject.size(); }

    [[nodiscard]] char next() const noexcept;
    bool take(char wanted) noexcept;
    bool takeDigits() noexcept;
    void skipSpace() noexcept;

    std::string_view m_text;
    std::size_t m_index = 0;
    JsonTree m_result;
    Place m_root;
    std::vector<bool> m_isObject; // of every open container
    std::vector<Place> m_kept;    // the outermost open containers, as far as they are selected
    bool m_isAtFirst = true;      // nothing was read in the innermost container yet
};

} // namespace Loadwick
