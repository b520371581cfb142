#include "report/InstructionFileTier.h"

namespace Loadwick {

const std::array<InstructionFileTier, 3> InstructionFileTier::all{
    InstructionFileTier::repository, InstructionFileTier::inherited, InstructionFileTier::personal};

std::string_view InstructionFileTier::rawValue() const noexcept
{
    switch (m_value) {
    case repository:
        return "repository";
    case inherited:
        return "inherited";
    case personal:
        break;
    }
    return "personal";
}

std::optional<InstructionFileTier> InstructionFileTier::fromRawValue(std::string_view text) noexcept
{
    for (const InstructionFileTier tier : all)
        if (tier.rawValue() == text)
            return tier;
    return std::nullopt;
}

} // namespace Loadwick
