#pragma once

namespace Loadwick {

/// While it is there, a display that does not answer, or a platform that Qt does not have, ends the
/// program with status 1 and one line on standard error. Qt itself aborts, and takes the
/// installation for broken.
class DisplayFailure final
{
public:
    DisplayFailure();
    ~DisplayFailure();
    DisplayFailure(const DisplayFailure &) = delete;
    DisplayFailure &operator=(const DisplayFailure &) = delete;
};

} // namespace Loadwick
