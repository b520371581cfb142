#include "measure/Measurement.h"

#include <sstream>

#include "probe/ProbeRunner.h"
#include "text/Fatal.h"

namespace Loadwick {

namespace {

constexpr const char *valgrind = "/usr/bin/valgrind";

Execution run(const std::string &program, std::vector<std::string> arguments)
{
    Execution execution = ProbeRunner::execute({.cli = program,
                                                .repository = "/",
                                                .environment = currentEnvironment(),
                                                .arguments = std::move(arguments),
                                                .shutdown = nullptr});
    if (execution.exitCode != 0)
        fatalError("a measured operation failed");
    return execution;
}

} // namespace

std::map<std::string, std::int64_t> measured(const std::vector<std::string> &words)
{
    std::istringstream lines(run(LOADWICK_MEASURE, words).standardOutput);
    std::map<std::string, std::int64_t> values;
    std::string name;
    for (std::int64_t value = 0; lines >> name >> value;)
        values[name] = value;
    return values;
}

std::int64_t instructionsOf(const std::vector<std::string> &words)
{
    std::vector<std::string> arguments{"--tool=callgrind", "--callgrind-out-file=/dev/null",
                                       LOADWICK_MEASURE};
    arguments.insert(arguments.end(), words.begin(), words.end());
    const std::string report = run(valgrind, arguments).standardError;
    constexpr std::string_view label = "Collected : ";
    const std::size_t position = report.find(label);
    if (position == std::string::npos)
        fatalError("callgrind reported no number of instructions");
    return std::stoll(report.substr(position + label.size()));
}

} // namespace Loadwick
