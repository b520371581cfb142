#include "shell/AppPage.h"

namespace Loadwick {

namespace {

struct PageWords
{
    std::string_view rawValue;
    std::string_view title;
    std::string_view symbol;
};

PageWords wordsOf(AppPage page) noexcept
{
    switch (page) {
    case AppPage::overview:
        return {"overview", "Overview", "square.grid.2x2"};
    case AppPage::trends:
        return {"trends", "Trends", "chart.line.uptrend.xyaxis"};
    case AppPage::compare:
        break;
    }
    return {"compare", "Compare", "rectangle.split.2x1"};
}

} // namespace

std::string_view AppPage::rawValue() const noexcept
{
    return wordsOf(*this).rawValue;
}

std::string_view AppPage::title() const noexcept
{
    return wordsOf(*this).title;
}

std::string_view AppPage::symbol() const noexcept
{
    return wordsOf(*this).symbol;
}

} // namespace Loadwick
