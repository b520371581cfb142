#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// One check of what holds for every input, defined once in its own file with static storage: a
/// fuzzer program holds one of them, the program of the seeds all.
class FuzzTarget
{
public:
    /// Returns if everything held; otherwise ends the program (see `require`).
    using Check = void (*)(std::string_view input);

    FuzzTarget(std::string_view name, Check properties);

    FuzzTarget(const FuzzTarget &) = delete;
    FuzzTarget &operator=(const FuzzTarget &) = delete;

    /// The name of its file without "Fuzz.cpp", and of its folder of seeds.
    [[nodiscard]] const std::string &name() const noexcept { return m_name; }
    void check(std::string_view input) const { m_check(input); }

    /// The targets of this program.
    [[nodiscard]] static const std::vector<const FuzzTarget *> &all();

private:
    std::string m_name;
    Check m_check;
};

/// Ends the program with `property` as the finding unless it holds.
void require(bool holds, std::string_view property);

} // namespace Loadwick
