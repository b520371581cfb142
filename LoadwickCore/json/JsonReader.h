#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>

#include "json/JsonValue.h"

namespace Loadwick {

/// Reads `text` as one JSON document (RFC 8259, strict UTF-8; white space around it is allowed) and
/// returns its top-level object, reduced to the members named by `keptPaths`. A path is one key, or
/// keys joined by dots ("message.usage"), and no path may lead through the end of another. The
/// value at the end of a path is kept whole. Everything else is validated and dropped, at a cost of
/// one bit for each level of nesting. A kept string is copied once; half a surrogate pair in it
/// becomes U+FFFD. The last of duplicate keys wins. Nothing if the text is not JSON or its top
/// level is not an object.
[[nodiscard]] std::optional<JsonValue>
jsonObject(std::string_view text, std::initializer_list<std::string_view> keptPaths);

/// The same for paths that end at strings, numbers and Booleans: an array or object there counts as
/// absent, and is dropped too.
[[nodiscard]] std::optional<JsonValue>
jsonObjectOfScalars(std::string_view text, std::initializer_list<std::string_view> keptPaths);

} // namespace Loadwick
