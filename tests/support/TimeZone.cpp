#include "support/TimeZone.h"

#include <unicode/timezone.h>

namespace Loadwick {

TimeZone::TimeZone(const char *name)
{
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(name));
}

TimeZone::~TimeZone()
{
    icu::TimeZone::adoptDefault(icu::TimeZone::detectHostTimeZone());
}

} // namespace Loadwick
