#include "charts/DateStep.h"

#include <QTest>

#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

using namespace std::chrono;
using Unit = DateStep::Unit;
using Words = std::vector<std::string>;

class DateStepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStepsGrow()
    {
        const auto &steps = DateStep::all();
        for (std::size_t index = 1; index < steps.size(); ++index)
            QVERIFY(steps[index - 1].length() < steps[index].length());
    }

    void includesBothEnds()
    {
        const TimeZone utc("UTC");
        const sys_seconds first = at(2026, 3, 4, 9);
        const std::vector expected = {first, first + 15min, first + 30min};
        QCOMPARE((DateStep{Unit::minute, 15}.moments(first, first + 30min)), expected);
        QCOMPARE((DateStep{Unit::minute, 15}.moments(first + 1s, first + 29min)),
                 std::vector{first + 15min});
        QVERIFY((DateStep{Unit::minute, 15}.moments(first + 1s, first + 2s).empty()));
    }

    void hoursAreThoseOfTheWallClock()
    {
        const TimeZone nepal("Asia/Kathmandu"); // 5:45 ahead
        const auto moments = DateStep{Unit::hour, 6}.moments(at(2026, 3, 4, 0), at(2026, 3, 4, 23));
        QCOMPARE(moments.front(), at(2026, 3, 4, 0) + 15min);
        QCOMPARE(labels({Unit::hour, 6}, moments), (Words{"06:00", "12:00", "18:00", "00:00"}));
    }

    void daysBeginAtMidnightAcrossChangesOfTheClocks()
    {
        const TimeZone berlin("Europe/Berlin"); // forward on March 29, back on October 25
        for (const auto &[first, dayBefore] : {std::pair(at(2026, 3, 27, 23), "28. März"),
                                               std::pair(at(2026, 10, 23, 22), "24. Okt.")}) {
            const auto moments = DateStep{Unit::day, 1}.moments(first, first + days(3));
            QCOMPARE(moments.size(), std::size_t(first == at(2026, 3, 27, 23) ? 4 : 3));
            QCOMPARE(labels({Unit::day, 1}, moments).front(), std::string(dayBefore));
            for (const sys_seconds moment : moments)
                QCOMPARE((DateStep{Unit::minute, 1}.label(moment, false, german)),
                         std::string("00:00"));
        }
    }

    void aSkippedHourHasNoTick()
    {
        const TimeZone berlin("Europe/Berlin"); // 2:00 becomes 3:00 at 1:00 UTC
        const auto moments =
            DateStep{Unit::hour, 1}.moments(at(2026, 3, 28, 23), at(2026, 3, 29, 3));
        QCOMPARE(labels({Unit::hour, 1}, moments),
                 (Words{"00:00", "01:00", "03:00", "04:00", "05:00"}));
    }

    void aRepeatedHourHasOneTick()
    {
        const TimeZone berlin("Europe/Berlin"); // 3:00 becomes 2:00 at 1:00 UTC
        const auto moments =
            DateStep{Unit::hour, 1}.moments(at(2026, 10, 24, 23), at(2026, 10, 25, 3));
        QCOMPARE(labels({Unit::hour, 1}, moments), (Words{"01:00", "02:00", "03:00", "04:00"}));
    }

    void theSecondPassOfARepeatedHourHasTicksToo()
    {
        const TimeZone berlin("Europe/Berlin");
        const sys_seconds first = at(2026, 10, 25, 1) + 10min; // 2:10 for the second time
        const auto moments = DateStep{Unit::minute, 10}.moments(first, first + 20min);
        QCOMPARE(labels({Unit::minute, 10}, moments), (Words{"02:10", "02:20", "02:30"}));
        QCOMPARE(moments.front(), first);
    }

    void aSkippedDayHasNoTick()
    {
        const TimeZone samoa("Pacific/Apia"); // had no December 30, 2011
        const auto moments =
            DateStep{Unit::day, 1}.moments(at(2011, 12, 28, 12), at(2012, 1, 2, 0));
        QCOMPARE(labels({Unit::day, 1}, moments),
                 (Words{"29. Dez.", "31. Dez.", "1. Jan.", "2. Jan."}));
    }

    void aSkippedMidnightMovesToTheNextMoment()
    {
        const TimeZone brazil("America/Sao_Paulo"); // 0:00 became 1:00 on November 4, 2018
        const auto moments =
            DateStep{Unit::day, 1}.moments(at(2018, 11, 3, 12), at(2018, 11, 4, 12));
        QCOMPARE(labels({Unit::minute, 1}, moments), Words{"01:00"});
        QCOMPARE(labels({Unit::day, 1}, moments), Words{"4. Nov."});
    }

    void weeksBeginOnTheSameWeekday()
    {
        const TimeZone utc("UTC");
        for (const int count : {1, 2}) {
            const auto moments =
                DateStep{Unit::week, count}.moments(at(2026, 1, 1, 0), at(2026, 4, 1, 0));
            QVERIFY(moments.size() > 5);
            for (std::size_t index = 1; index < moments.size(); ++index)
                QCOMPARE(moments[index] - moments[index - 1], weeks(count));
        }
    }

    void everySecondDayContinuesAcrossTheEndOfAMonth()
    {
        const TimeZone utc("UTC");
        const auto moments = DateStep{Unit::day, 2}.moments(at(2026, 1, 25, 0), at(2026, 2, 8, 0));
        for (std::size_t index = 1; index < moments.size(); ++index)
            QCOMPARE(moments[index] - moments[index - 1], days(2));
    }

    void monthsAndYearsBeginOnTheirFirstDays()
    {
        const TimeZone utc("UTC");
        QCOMPARE((DateStep{Unit::month, 3}.moments(at(2026, 2, 1, 0), at(2026, 12, 1, 0))),
                 (std::vector{at(2026, 4, 1, 0), at(2026, 7, 1, 0), at(2026, 10, 1, 0)}));
        QCOMPARE((DateStep{Unit::year, 10}.moments(at(1970, 1, 1, 0), at(1999, 1, 1, 0))),
                 (std::vector{at(1970, 1, 1, 0), at(1980, 1, 1, 0), at(1990, 1, 1, 0)}));
    }

    void labelsSayWhatTheStepLeavesOpen()
    {
        const TimeZone utc("UTC");
        const sys_seconds moment = at(2026, 3, 4, 9);
        const auto label = [moment](Unit unit, bool withDay) {
            return QString::fromStdString(DateStep{unit, 1}.label(moment, withDay, german));
        };
        QCOMPARE(label(Unit::second, false), QStringLiteral("09:00:00"));
        QCOMPARE(label(Unit::hour, false), QStringLiteral("09:00"));
        QCOMPARE(label(Unit::hour, true), QStringLiteral("4. März, 09:00"));
        QCOMPARE(label(Unit::week, false), QStringLiteral("4. März"));
        QCOMPARE(label(Unit::month, false), QStringLiteral("März 2026"));
        QCOMPARE(label(Unit::year, false), QStringLiteral("2026"));
    }

private:
    static sys_seconds at(int year, unsigned month, unsigned day, int hour)
    {
        return sys_days(std::chrono::year(year) / std::chrono::month(month) /
                        std::chrono::day(day)) +
               hours(hour);
    }

    static Words labels(const DateStep &step, const std::vector<sys_seconds> &moments)
    {
        Words labels;
        for (const sys_seconds moment : moments)
            labels.push_back(step.label(moment, false, german));
        return labels;
    }

    inline static const TextLocale german{.numbers = "de_DE", .dates = "de_DE"};
};

const RegisteredTest<DateStepTest> registered("DateStep");

} // namespace Loadwick

#include "DateStepTest.moc"
