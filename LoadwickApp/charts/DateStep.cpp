#include "charts/DateStep.h"

#include <array>
#include <cstddef>
#include <memory>

#include <unicode/gregocal.h>

#include "text/DateText.h"
#include "text/Fatal.h"

namespace Loadwick {
namespace {

using std::chrono::seconds;
using std::chrono::sys_seconds;
using Unit = DateStep::Unit;

constexpr int daysOfWeek = 7;

/// What one unit means to the wall clock.
struct ClockUnit
{
    seconds length;    ///< approximate
    std::size_t field; ///< the index of what it counts among year, month, day, hour, minute, second
    int count;         ///< how many of that field
};

ClockUnit clockUnit(Unit unit)
{
    using namespace std::chrono;
    static constexpr std::array units = {
        ClockUnit{.length = seconds(1), .field = 5, .count = 1},
        ClockUnit{.length = minutes(1), .field = 4, .count = 1},
        ClockUnit{.length = hours(1), .field = 3, .count = 1},
        ClockUnit{.length = days(1), .field = 2, .count = 1},
        ClockUnit{.length = weeks(1), .field = 2, .count = daysOfWeek},
        ClockUnit{.length = duration_cast<seconds>(months(1)), .field = 1, .count = 1},
        ClockUnit{.length = duration_cast<seconds>(years(1)), .field = 0, .count = 1}};
    return units.at(static_cast<std::size_t>(unit));
}

/// Reads and makes moments by the wall clock.
class WallClock
{
public:
    WallClock()
    {
        UErrorCode status = U_ZERO_ERROR;
        m_calendar = std::make_unique<icu::GregorianCalendar>(status);
        if (U_FAILURE(status))
            fatalError("ICU has no calendar");
        m_calendar->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
        m_calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    }

    void set(sys_seconds moment)
    {
        const std::chrono::duration<UDate, std::milli> sinceEpoch = moment.time_since_epoch();
        UErrorCode status = U_ZERO_ERROR;
        m_calendar->setTime(sinceEpoch.count(), status);
    }

    int field(UCalendarDateFields name) const
    {
        UErrorCode status = U_ZERO_ERROR;
        return m_calendar->get(name, status);
    }

    /// Makes an ambiguous wall-clock time, which a day has twice, mean the later one.
    void preferLaterPass() { m_calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_LAST); }

    /// Fields out of range carry over into the next larger one.
    sys_seconds moment(const std::vector<int> &fields)
    {
        m_calendar->clear();
        m_calendar->set(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]);
        UErrorCode status = U_ZERO_ERROR;
        const std::chrono::duration<UDate, std::milli> sinceEpoch(m_calendar->getTime(status));
        return sys_seconds(std::chrono::floor<seconds>(sinceEpoch));
    }

    /// Days since the start of a span of that many weeks; weeks begin on Mondays (ISO 8601).
    int daysIntoWeek(int weeks) const
    {
        const int weekday = field(UCAL_DAY_OF_WEEK) - UCAL_MONDAY;
        const int intoWeek = (weekday + daysOfWeek) % daysOfWeek;
        const int week = (field(UCAL_JULIAN_DAY) - intoWeek) / daysOfWeek;
        return intoWeek + week % weeks * daysOfWeek;
    }

private:
    std::unique_ptr<icu::GregorianCalendar> m_calendar;
};

/// The wall clock's year, month, day, hour, minute and second at the last round moment not after
/// the one that `clock` shows.
std::vector<int> roundedDown(const WallClock &clock, const DateStep &step)
{
    const auto rounded = [&](UCalendarDateFields name, Unit unit) {
        const int value = clock.field(name);
        return unit < step.unit ? 0 : unit == step.unit ? value - value % step.count : value;
    };
    int day = clock.field(UCAL_DATE);
    if (step.unit == Unit::week)
        day -= clock.daysIntoWeek(step.count);
    else if (step.unit == Unit::day)
        day -= clock.field(UCAL_JULIAN_DAY) % step.count;
    else if (step.unit > Unit::week)
        day = 1;
    return {rounded(UCAL_EXTENDED_YEAR, Unit::year),
            rounded(UCAL_MONTH, Unit::month),
            day,
            rounded(UCAL_HOUR_OF_DAY, Unit::hour),
            rounded(UCAL_MINUTE, Unit::minute),
            rounded(UCAL_SECOND, Unit::second)};
}

} // namespace

const std::vector<DateStep> &DateStep::all()
{
    static const std::vector<DateStep> steps = {
        {Unit::second, 1},  {Unit::second, 2},  {Unit::second, 5},   {Unit::second, 10},
        {Unit::second, 15}, {Unit::second, 30}, {Unit::minute, 1},   {Unit::minute, 2},
        {Unit::minute, 5},  {Unit::minute, 10}, {Unit::minute, 15},  {Unit::minute, 30},
        {Unit::hour, 1},    {Unit::hour, 2},    {Unit::hour, 3},     {Unit::hour, 6},
        {Unit::hour, 12},   {Unit::day, 1},     {Unit::day, 2},      {Unit::week, 1},
        {Unit::week, 2},    {Unit::month, 1},   {Unit::month, 2},    {Unit::month, 3},
        {Unit::month, 6},   {Unit::year, 1},    {Unit::year, 2},     {Unit::year, 5},
        {Unit::year, 10},   {Unit::year, 20},   {Unit::year, 50},    {Unit::year, 100},
        {Unit::year, 200},  {Unit::year, 500},  {Unit::year, 1'000}, {Unit::year, 10'000}};
    return steps;
}

seconds DateStep::length() const noexcept
{
    return clockUnit(unit).length * count;
}

std::vector<sys_seconds> DateStep::moments(sys_seconds first, sys_seconds last) const
{
    WallClock clock;
    clock.set(first);
    if (clock.moment(roundedDown(clock, {.unit = Unit::second, .count = 1})) < first)
        clock.preferLaterPass();
    clock.set(first);
    const ClockUnit step = clockUnit(unit);
    std::vector<int> fields = roundedDown(clock, *this);
    std::vector<sys_seconds> found;
    for (sys_seconds moment = clock.moment(fields); moment <= last; moment = clock.moment(fields)) {
        if (moment >= first && (found.empty() || moment > found.back()))
            found.push_back(moment);
        fields[step.field] += count * step.count;
    }
    return found;
}

std::string DateStep::label(sys_seconds moment, bool withDay, const TextLocale &locale) const
{
    switch (unit) {
    case Unit::second:
        return dateText(moment, DateForm::secondOfDay, locale);
    case Unit::minute:
    case Unit::hour:
        return withDay ? dateText(moment, DateForm::dayOfYearAndTime, locale)
                       : dateText(moment, DateForm::timeOfDay, locale);
    case Unit::day:
    case Unit::week:
        return dateText(moment, DateForm::dayOfYear, locale);
    case Unit::month:
        return dateText(moment, DateForm::month, locale);
    case Unit::year:
        break;
    }
    return dateText(moment, DateForm::year, locale);
}

} // namespace Loadwick
