#pragma once

#include <atomic>
#include <string>

#include <sys/types.h>

namespace Faults {

/// The progress of a process that was forked from this program, so that an endless wait can be
/// reported with its kernel functions.
class Progress
{
public:
    Progress();
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// Records the step that the process has begun, a string literal.
    void begin(const char *step) noexcept;

    /// "performing; threads in futex_wait, do_poll", for the process that began the last step. The
    /// system may conceal the functions.
    [[nodiscard]] std::string of(pid_t processID) const;

private:
    std::atomic<const char *> *m_step;
};

} // namespace Faults
