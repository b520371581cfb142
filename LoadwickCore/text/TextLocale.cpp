#include "text/TextLocale.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <unicode/locid.h>
#include <unicode/ures.h>

namespace Loadwick {

namespace {

constexpr std::string_view english = "en_US";

/// The modifiers of the C library that name a script, as ICU names it.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> scripts{
    {{"latin", "Latn"}, {"cyrillic", "Cyrl"}, {"devanagari", "Deva"}}};

bool isLetter(char character) noexcept
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Two or three letters; "C", "POSIX" and stray values are not languages.
bool isLanguage(std::string_view text) noexcept
{
    return (text.size() == 2 || text.size() == 3) &&
           std::all_of(text.begin(), text.end(), isLetter);
}

std::string_view scriptOf(std::string_view value) noexcept
{
    const std::size_t at = value.find('@');
    if (at == std::string_view::npos)
        return {};
    const std::string_view modifier = value.substr(at + 1);
    for (const auto &[name, script] : scripts)
        if (name == modifier)
            return script;
    return {};
}

/// ICU falls back to a locale of its own, which it takes from the environment and copies into a
/// fixed buffer, however long it is. The constants of icu::Locale ask for it too.
void makeEnglishTheFallback()
{
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("en", "US"), status);
}

/// Whether ICU has words of the locale's language, or of one that it derives from.
bool isKnown(const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    ures_close(ures_open(nullptr, locale.getBaseName(), &status));
    return status == U_ZERO_ERROR || status == U_USING_FALLBACK_WARNING;
}

/// "sr_RS.UTF-8@latin" becomes "sr_Latn_RS".
std::string icuName(std::string_view value)
{
    const std::string_view region = value.substr(0, value.find_first_of(".@"));
    const std::size_t languageEnd = std::min(region.find('_'), region.size());
    std::string name(region.substr(0, languageEnd));
    if (!isLanguage(name))
        return std::string(english);
    if (const std::string_view script = scriptOf(value); !script.empty())
        name.append("_").append(script);
    name.append(region.substr(languageEnd));
    // What becomes of a longer name differs between versions of ICU.
    if (name.size() >= ULOC_FULLNAME_CAPACITY)
        return std::string(english);
    const icu::Locale locale(name.c_str());
    // The base name excludes settings, such as a numbering system that does not exist.
    return isKnown(locale) ? std::string(locale.getBaseName()) : std::string(english);
}

std::string localeFor(const std::string &category, const Environment &environment)
{
    for (const std::string &key : {std::string("LC_ALL"), category, std::string("LANG")}) {
        const auto found = environment.find(key);
        if (found != environment.end() && !found->second.empty())
            return icuName(found->second);
    }
    return std::string(english);
}

} // namespace

TextLocale TextLocale::fromEnvironment(const Environment &environment)
{
    makeEnglishTheFallback();
    return {.numbers = localeFor("LC_NUMERIC", environment),
            .dates = localeFor("LC_TIME", environment)};
}

} // namespace Loadwick
