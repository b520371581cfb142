#pragma once

namespace Loadwick {

/// Lets dates be written in a time zone for as long as it lives; then the system's holds again.
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
