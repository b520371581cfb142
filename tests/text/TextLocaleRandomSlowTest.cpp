#include <array>
#include <cerrno>
#include <clocale>
#include <random>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/EnvironmentSwap.h"
#include "text/DateText.h"
#include "text/NumberText.h"
#include "text/TextLocale.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// Values of environment variables: as intended, nearly so, and nonsense.
class RandomValues
{
public:
    explicit RandomValues(std::uint32_t seed) : m_numbers(seed) {}

    std::string locale()
    {
        static constexpr std::array languages{"de",  "ar", "fil", "sr", "zh",
                                              "got", "iw", "xx",  "C"};
        static constexpr std::array territories{
            "",           "_DE", "_EG",           "_Hans_CN", "_419", "_u_nu_none",
            "-u-ca-none", "_ZZ", "@numbers=none", "_",        "__"};
        static constexpr std::array ends{"", ".UTF-8", ".", "@latin", "@calendar=none", "@"};
        if (below(3) == 0)
            return nonsense();
        return oneOf(languages) + oneOf(territories) + (below(4) == 0 ? "_" + nonsense() : "") +
               oneOf(ends);
    }

    std::string timeZone()
    {
        static constexpr std::array zones{"Europe/Berlin",
                                          ":Asia/Tokyo",
                                          "posix/UTC",
                                          "CET-1CEST,M3.5.0,M10.5.0/3",
                                          "<+03>-3",
                                          "X-999999999",
                                          "/etc/group",
                                          "../../../../etc/group",
                                          ":",
                                          "GMT+25:61",
                                          "/",
                                          "."};
        return below(2) == 0 ? oneOf(zones) : oneOf(zones) + nonsense();
    }

private:
    std::size_t below(std::size_t limit) { return m_numbers() % limit; }

    template<typename Texts>
    std::string oneOf(const Texts &texts)
    {
        return texts.at(below(texts.size()));
    }

    std::string nonsense()
    {
        static constexpr std::array longest{3U, 12U, 200U, 100'000U};
        static constexpr std::string_view likely = "aZ09_-@.=;:/+,";
        const bool isLikely = below(2) == 0;
        std::string text(below(longest.at(below(longest.size()))), '\0');
        for (char &character : text)
            character = isLikely ? likely[below(likely.size())]
                                 : static_cast<char>(1 + below(255)); // all but NUL
        return text;
    }

    std::mt19937 m_numbers;
};

std::vector<std::string> randomEnvironment(std::uint32_t seed)
{
    RandomValues values(seed);
    std::vector<std::string> environment{
        "LC_NUMERIC=" + values.locale(), "LC_TIME=" + values.locale(),
        "LC_MESSAGES=" + values.locale(), "LANG=" + values.locale(), "TZ=" + values.timeZone()};
    if (seed % 4 == 0)
        environment.push_back("LC_ALL=" + values.locale());
    return environment;
}

bool isText(const std::string &text)
{
    return !text.empty() && isUtf8(text);
}

bool writesFiguresAndDates()
{
    std::setlocale(LC_ALL, ""); // as the window does
    const TextLocale locale = TextLocale::fromEnvironment(currentEnvironment());
    bool writes = isText(NumberText::groupedChange(-1'234'567, locale));
    for (int form = 0; form <= static_cast<int>(DateForm::secondOfDay); ++form)
        writes = writes && isText(dateText({}, static_cast<DateForm>(form), locale));
    return writes;
}

/// The status of a process of its own: what the first use of ICU finds counts for all later ones.
int statusIn(std::vector<std::string> environment)
{
    const pid_t child = fork();
    if (child == 0) {
        const EnvironmentSwap swap(std::move(environment));
        _exit(writesFiguresAndDates() ? 0 : 1);
    }
    int status = -1;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

} // namespace

TEST(TextLocaleRandomSlowTest, writesFiguresAndDatesWhateverTheEnvironmentSays)
{
    for (std::uint32_t seed = 1; seed <= 2000; ++seed) {
        const std::vector<std::string> environment = randomEnvironment(seed);
        EXPECT_EQ(statusIn(environment), 0) << "seed " << seed;
    }
}

} // namespace Loadwick
