// Counts the lines that the core parses. The linker leads `takeLine` and `jsonObjectOfScalars`
// through here, as CallCounters.cpp has it lead calls of the system.
#include "measure/CallCounters.h"
#include "text/TextLines.h"
#include "json/JsonReader.h"

namespace Loadwick {

namespace {

using Paths = std::initializer_list<std::string_view>;

} // namespace

std::optional<std::string_view> realTakeLine(std::string_view &rest) noexcept
    asm("__real_" LOADWICK_TAKE_LINE);
std::optional<std::string_view> countedTakeLine(std::string_view &rest) noexcept
    asm("__wrap_" LOADWICK_TAKE_LINE);
std::optional<JsonValue> realJsonObject(std::string_view text,
                                        Paths keptPaths) asm("__real_" LOADWICK_JSON_OBJECT);
std::optional<JsonValue> countedJsonObject(std::string_view text,
                                           Paths keptPaths) asm("__wrap_" LOADWICK_JSON_OBJECT);

std::optional<std::string_view> countedTakeLine(std::string_view &rest) noexcept
{
    const auto line = realTakeLine(rest);
    if (line)
        ++CallCounters::ofProcess().linesParsed;
    return line;
}

std::optional<JsonValue> countedJsonObject(std::string_view text, Paths keptPaths)
{
    ++CallCounters::ofProcess().linesParsed;
    return realJsonObject(text, keptPaths);
}

} // namespace Loadwick
