#include "shell/AppPage.h"

namespace Loadwick {

const std::array<AppPage, 3> AppPage::all = {overview, trends, compare};

std::string_view AppPage::rawValue() const noexcept
{
    switch (m_value) {
    case overview:
        return "overview";
    case trends:
        return "trends";
    case compare:
        return "compare";
    }
    return {};
}

std::optional<AppPage> AppPage::fromRawValue(std::string_view text) noexcept
{
    for (const AppPage page : all)
        if (page.rawValue() == text)
            return page;
    return std::nullopt;
}

std::string_view AppPage::title() const noexcept
{
    switch (m_value) {
    case overview:
        return "Overview";
    case trends:
        return "Trends";
    case compare:
        return "Compare";
    }
    return {};
}

std::string_view AppPage::symbol() const noexcept
{
    switch (m_value) {
    case overview:
        return "square.grid.2x2";
    case trends:
        return "chart.line.uptrend.xyaxis";
    case compare:
        return "rectangle.split.2x1";
    }
    return {};
}

} // namespace Loadwick
