#pragma once

#include <QString>

namespace Loadwick {

/// A program of its own that a test starts as a child process: the test program, called with its
/// name, runs it instead of a test.
class StandInProgram
{
public:
    using Main = int (*)(int argc, char **argv);

    /// Enters it before main. One constant of it stands in the test's file.
    StandInProgram(const char *name, Main main);

    /// Null for a name that nobody entered.
    [[nodiscard]] static Main find(const QString &name);
};

} // namespace Loadwick
