#pragma once

#include <string>
#include <vector>

namespace Loadwick {

/// What a measurement is asked for: [--check] [ROUNDS [NAME...]].
class FrameArguments
{
public:
    FrameArguments(int argc, char **argv);

    /// Whether the program is to fail when a page takes longer than a reader should wait.
    [[nodiscard]] bool isCheck() const noexcept { return m_isCheck; }

    /// How often each page is measured, at least once.
    [[nodiscard]] int rounds() const noexcept { return m_rounds; }

    /// Without a name everything is.
    [[nodiscard]] bool isWanted(const std::string &name) const;

private:
    bool m_isCheck = false;
    int m_rounds = 10;
    std::vector<std::string> m_names;
};

} // namespace Loadwick
