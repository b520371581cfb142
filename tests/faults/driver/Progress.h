#pragma once

#include <atomic>
#include <string>

#include <sys/types.h>

namespace Faults {

/// What a process is about, as another one sees it that was forked from the same program: so that
/// a wait without an end can be said to be one in a place.
class Progress
{
public:
    Progress();
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// From now on the process is `step`, a literal.
    void begin(const char *step) noexcept;

    /// "performing; threads in futex_wait, do_poll", of the process that began the last step. The
    /// system may keep to itself where threads are.
    [[nodiscard]] std::string of(pid_t processID) const;

private:
    std::atomic<const char *> *m_step;
};

} // namespace Faults
