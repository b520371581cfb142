#pragma once

namespace Loadwick {

/// While it lives, dates are written in this time zone instead of the system's.
class TimeZone
{
public:
    /// An IANA name, such as "Europe/Berlin".
    explicit TimeZone(const char *name);
    ~TimeZone();

    TimeZone(const TimeZone &) = delete;
    TimeZone &operator=(const TimeZone &) = delete;
};

} // namespace Loadwick
