#pragma once

#include <QString>

namespace Loadwick {

/// A separate program that a test starts as a child process: the test program, called with its
/// name, runs it instead of a test.
class StandInProgram
{
public:
    using Main = int (*)(int argc, char **argv);

    /// Registers it before main, as a constant of the test's file.
    StandInProgram(const char *name, Main main);

    /// Null for an unregistered name.
    [[nodiscard]] static Main find(const QString &name);
};

} // namespace Loadwick
