#include "model/OnboardingIllustration.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(OnboardingIllustrationTest, isWrittenAsItsCaseIsNamed)
{
    const std::string_view names[] = {"measureIcon", "toolbarPointer", "scanSpinner", "bandLegend"};
    std::size_t place = 0;
    for (const OnboardingIllustration illustration : OnboardingIllustration::all)
        EXPECT_EQ(illustration.rawValue(), names[place++]);
    EXPECT_EQ(place, std::size(names));
}

TEST(OnboardingIllustrationTest, isFoundByThatNameAlone)
{
    for (const OnboardingIllustration illustration : OnboardingIllustration::all)
        EXPECT_EQ(OnboardingIllustration::fromRawValue(illustration.rawValue()), illustration);
    for (const std::string_view unknown : {"", "MeasureIcon", "bandLegend ", "none"})
        EXPECT_FALSE(OnboardingIllustration::fromRawValue(unknown)) << unknown;
}

} // namespace Loadwick
