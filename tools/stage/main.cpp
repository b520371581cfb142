// Shows the program, its pages and its components with made-up data, off screen too.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include <QApplication>

#include "shell/ApplicationSetup.h"
#include "stage/Subcommand.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

namespace {

struct Subcommand
{
    std::string_view name;
    std::string_view usage;
    int (*run)(const Invocation &invocation);
};

// A release is built without the subcommands for developers.
constexpr std::array subcommands{
    Subcommand{"demo", "FOLDER", demo},
#ifdef LOADWICK_WHOLE_STAGE
    Subcommand{"window",
               "[--platform-dialog] [--timeout SECONDS] [--beside-others] [--follow-desktop]",
               window},
    Subcommand{"gallery", "[FOLDER]", gallery},
    Subcommand{"pictures", "FOLDER [NAME...]", pictures},
    Subcommand{"looks", "FOLDER", looks},
    Subcommand{"frames", "[--check] [--size WIDTHxHEIGHT] [ROUNDS [NAME...]]", frames},
    Subcommand{"scans", "[ROUNDS]", scans},
    Subcommand{"actions", "[CATEGORIES]", actions},
#endif
};

int printUsage(std::ostream &stream)
{
    for (const Subcommand &subcommand : subcommands)
        stream << "loadwick-stage " << subcommand.name << ' ' << subcommand.usage << '\n';
    return &stream == &std::cout ? 0 : 2;
}

} // namespace

int runOffScreen(const Invocation &invocation, const std::function<int()> &work)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ApplicationSetup::prepare();
    QApplication application(invocation.argc, invocation.argv);
    ApplicationSetup::apply();
    ApplicationStyle::applyFont(application);
    return work();
}

int wrongCall(const std::string &line)
{
    std::cerr << line << '\n';
    return 2;
}

} // namespace Loadwick

int main(int argc, char **argv)
{
    using namespace Loadwick;

    const std::vector<std::string> words(argv + 1, argv + argc);
    if (!words.empty() && words.front() == "--help")
        return printUsage(std::cout);
    const auto chosen = std::find_if(subcommands.begin(), subcommands.end(),
                                     [&words](const Subcommand &subcommand) {
                                         return !words.empty() && words.front() == subcommand.name;
                                     });
    if (chosen == subcommands.end())
        return printUsage(std::cerr);
    return chosen->run({argc, argv, {words.begin() + 1, words.end()}});
}
