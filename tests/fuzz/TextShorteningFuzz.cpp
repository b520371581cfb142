#include <cstddef>
#include <cstdlib>
#include <string>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "history/RecordedScan.h"
#include "probe/ProbeError.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// Characters of `text`, one at a time, and no more than `limit` of them.
std::size_t charactersIn(std::string_view text, std::size_t limit)
{
    std::size_t count = 0;
    for (; !text.empty() && count < limit; ++count)
        text.remove_prefix(byteCountOfCharacters(text, 1));
    return count;
}

void checkShortening(std::string_view text, std::size_t limit)
{
    const std::string shown = ProbeError::bounded(text, limit);
    const std::string_view content = trimmed(text);
    const std::size_t kept = byteCountOfCharacters(content, limit);
    const std::string beginning(content.substr(0, kept));
    require(shown == (content.empty()          ? "(no output)"
                      : kept == content.size() ? beginning
                                               : beginning + "…"),
            "what is shown is the beginning, and the ellipsis says that it was cut");
    require(!isUtf8(text) || isUtf8(shown), "no character is cut in two");
    require(charactersIn(beginning, limit + 1) <= limit, "no more than the limit");
    require(kept == content.size() || charactersIn(beginning, limit) == limit,
            "no less than the limit");
}

void checkCategoryName(std::string_view name)
{
    const std::string stored = RecordedCategoryName::storable(name);
    require(!stored.empty() && trimmed(stored) == stored, "a stored name is trimmed and not empty");
    require(byteCountOfCharacters(stored, RecordedCategoryName::limit) == stored.size(),
            "a stored name is short");
    require(stored.find_first_of("/\\~") == std::string::npos, "a stored name is not a path");
    require(RecordedCategoryName::storable(stored) == stored, "storing a name is idempotent");
    require(stored == RecordedCategoryName::withheld || stored == trimmed(name),
            "a stored name is the whole name or none of it");
    for (const char *ending : {" a.md", "/", " \\", " ~"})
        require(RecordedCategoryName::storable(std::string(name) + ending) ==
                    RecordedCategoryName::withheld,
                "a name with a file's name or a path in it is withheld");
}

void checkTexts(std::string_view bytes)
{
    FuzzInput input(bytes);
    const auto limit = static_cast<std::size_t>(std::abs(input.takeInteger(15)));
    checkShortening(input.rest(), limit);
    checkCategoryName(input.rest());
}

const FuzzTarget target("TextShortening", checkTexts);

} // namespace

} // namespace Loadwick
