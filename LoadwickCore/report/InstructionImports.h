#pragma once

#include <string_view>
#include <vector>

/// Finds the "@path" imports in the text of an instruction file.
namespace Loadwick::InstructionImports {

/// The import tokens of a whole text, line by line; lines inside a closed code fence (three
/// backticks or tildes) hold none. A byte order mark before the first line is skipped. Views into
/// `text`.
[[nodiscard]] std::vector<std::string_view> tokensIn(std::string_view text);

/// The import tokens of one line: what follows an "@" at its start or after white space, without
/// closing punctuation; web addresses and doubled "@" do not count. Views into `line`.
[[nodiscard]] std::vector<std::string_view> tokensInLine(std::string_view line);

} // namespace Loadwick::InstructionImports
