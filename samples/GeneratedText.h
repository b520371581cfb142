#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Generated input of any size, the same on every machine and in every run.
namespace Loadwick::GeneratedText {

/// An answer with `lineCount` lines of categories, rotating through a thousand names.
[[nodiscard]] std::string answer(std::int64_t lineCount);

/// One line of a user's message of about 2 KB, line feed included; no two neighbours are equal.
[[nodiscard]] std::string userLine(std::int64_t number);

/// A user's message in one line of `byteCount` bytes (at least 200), line feed included.
[[nodiscard]] std::string longUserLine(std::int64_t byteCount);

/// The line of an assistant's message that holds a usage, line feed included.
[[nodiscard]] std::string assistantLine();

/// A session name of 36 characters, different for each number.
[[nodiscard]] std::string sessionName(std::int64_t number);

/// `count` weights between 1 and 50,000.
[[nodiscard]] std::vector<double> weights(std::int64_t count);

} // namespace Loadwick::GeneratedText
