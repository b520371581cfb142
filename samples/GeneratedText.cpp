#include "samples/GeneratedText.h"

#include <array>
#include <cstddef>
#include <random>
#include <string_view>

namespace Loadwick::GeneratedText {

namespace {

constexpr std::int64_t nameCount = 1'000;
constexpr std::size_t userLineSize = 2'048;
constexpr std::array<std::string_view, 8> subjects{
    "System prompt", "System tools",   "MCP tools", "Memory files",
    "Custom agents", "Slash commands", "Messages",  "Skills"};
constexpr std::array<std::string_view, 12> words{
    "please ", "look ",  "at the harbour ", "module, ", "and tell me\\n", "why ",
    "its ",    "tests ", "need so long: ",  "a\\tb ",   "thank you. ",    "further "};
constexpr std::string_view userHead =
    R"({"parentUuid":null,"isSidechain":false,"type":"user","message":{"role":"user","content":")";
constexpr std::string_view userTail =
    R"("},"uuid":"6f1c2b0a-8e55-4c2d-9a61-3b7d1e0f4a92","timestamp":"2026-03-04T09:15:27.123Z"})"
    "\n";

std::string prose(std::int64_t start, std::size_t byteCount)
{
    std::string text;
    text.reserve(byteCount + 16);
    for (auto index = static_cast<std::size_t>(start); text.size() < byteCount; index += 7)
        text += words[(index + text.size() / 97) % words.size()];
    return text;
}

} // namespace

std::string answer(std::int64_t lineCount)
{
    std::string text;
    for (std::int64_t line = 0; line < lineCount; ++line) {
        const std::int64_t name = line * 7'919 % nameCount;
        text += "SLAB ";
        text += subjects[static_cast<std::size_t>(name) % subjects.size()];
        text.append(" ").append(std::to_string(name)).append(" TOKENS ");
        text.append(std::to_string(line * 37 % 4'001)).append("\n");
    }
    return text;
}

std::string userLine(std::int64_t number)
{
    return std::string(userHead) + prose(number, userLineSize) + std::string(userTail);
}

std::string longUserLine(std::int64_t byteCount)
{
    const std::size_t frame = userHead.size() + userTail.size();
    std::string content = prose(0, static_cast<std::size_t>(byteCount) - frame - 16);
    content.append(static_cast<std::size_t>(byteCount) - frame - content.size(), 'x');
    return std::string(userHead) + content + std::string(userTail);
}

std::string assistantLine()
{
    return R"({"type":"assistant","message":{"role":"assistant","usage":{"input_tokens":3,)"
           R"("cache_creation_input_tokens":24369,"cache_read_input_tokens":17946,)"
           R"("output_tokens":164}}})"
           "\n";
}

std::string sessionName(std::int64_t number)
{
    const std::string digits = std::to_string(number);
    return "6f1c2b0a-8e55-4c2d-9a61-" + std::string(12 - digits.size(), '0') + digits;
}

std::vector<double> weights(std::int64_t count)
{
    std::mt19937_64 random(7);
    std::vector<double> weights;
    for (std::int64_t index = 0; index < count; ++index)
        weights.push_back(1.0 + static_cast<double>(random() % 49'999'000) / 1'000.0);
    return weights;
}

} // namespace Loadwick::GeneratedText
