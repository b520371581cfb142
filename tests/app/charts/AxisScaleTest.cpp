#include "charts/AxisScale.h"

#include <limits>
#include <random>
#include <set>

#include <QTest>

#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

using namespace std::chrono;
using Ticks = std::vector<std::int64_t>;

class AxisScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreOneTwoOrFiveTimesAPowerOfTen()
    {
        QCOMPARE(AxisScale(69'000, 4).ticks(), (Ticks{0, 20'000, 40'000, 60'000}));
        QCOMPARE(AxisScale(115'000, 4).ticks(), (Ticks{0, 50'000, 100'000}));
        QCOMPARE(AxisScale(207'000, 4).ticks()[1], 100'000);
        QCOMPARE(AxisScale(10'350'000, 4).ticks()[1], 5'000'000);
        QCOMPARE(AxisScale(100, 5).ticks()[1], 20);
        QCOMPARE(AxisScale(101, 5).ticks()[1], 50);
    }

    void aRoundUpperBoundHasATick()
    {
        QCOMPARE(AxisScale(40, 4).ticks(), (Ticks{0, 10, 20, 30, 40}));
    }

    void aTinyAxisHasWholeSteps()
    {
        QCOMPARE(AxisScale(3, 4).ticks(), (Ticks{0, 1, 2, 3}));
        QCOMPARE(AxisScale(1, 4).ticks(), (Ticks{0, 1}));
    }

    void anAxisWithoutLengthIsOneLong()
    {
        QCOMPARE(AxisScale(0, 4).ticks(), (Ticks{0, 1}));
        QCOMPARE(AxisScale(-7, 0).ticks(), (Ticks{0, 1}));
    }

    void theLargestAxisHasTicksThatFit()
    {
        constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
        const Ticks ticks = AxisScale(largest, 4).ticks();
        QCOMPARE(ticks.front(), 0);
        QVERIFY(ticks.size() >= 2);
        QVERIFY(std::is_sorted(ticks.begin(), ticks.end()));
        QVERIFY(AxisScale(largest, 1).ticks().back() <= largest);
    }

    void neverExceedsTheMaximumOfSteps()
    {
        for (std::int64_t upper = 1; upper < 5'000; upper += 7)
            for (const int most : {1, 2, 3, 4, 7}) {
                const Ticks ticks = AxisScale(upper, most).ticks();
                QVERIFY(static_cast<int>(ticks.size()) <= most + 1);
                QVERIFY(ticks.back() <= upper);
            }
    }

    void mapsValuesBetweenItsEnds()
    {
        const AxisScale axis(200, 4);
        QCOMPARE(axis.position(0), 0.0);
        QCOMPARE(axis.position(50), 0.25);
        QCOMPARE(axis.position(200), 1.0);
        QCOMPARE(axis.position(-5), 0.0);
        QCOMPARE(axis.position(201), 1.0);
    }

    void theTicksSuitTheSpan_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        const auto row = [](const char *name, seconds span, const char *first, const char *second) {
            QTest::newRow(name) << qint64(span.count()) << QString::fromUtf8(first)
                                << QString::fromUtf8(second);
        };
        row("four seconds", 4s, "09:00:00", "09:00:01");
        row("five minutes", 5min, "09:00", "09:01");
        row("an hour", 1h, "09:00", "09:10");
        row("six hours", 6h, "09:00", "10:00");
        row("till midnight", 15h - 1s, "10:00", "12:00");
        row("till past midnight", 18h, "4. März, 09:00", "4. März, 12:00");
        row("two days", 48h, "4. März, 12:00", "5. März, 00:00");
        row("a week", days(7), "5. März", "6. März");
        row("a month", days(30), "9. März", "16. März");
        row("half a year", days(180), "Apr. 2026", "Mai 2026");
        row("two years", days(730), "Juli 2026", "Jan. 2027");
        row("six years", days(2'200), "2027", "2028");
        row("a century", days(36'500), "2040", "2060");
    }

    void theTicksSuitTheSpan()
    {
        const TimeZone utc("UTC");
        QFETCH(const qint64, seconds);
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        const auto ticks =
            DateAxisScale(m_morning, m_morning + std::chrono::seconds(seconds)).ticks(7, m_german);
        QVERIFY(ticks.size() >= 2);
        QCOMPARE(QString::fromStdString(ticks[0].label), first);
        QCOMPARE(QString::fromStdString(ticks[1].label), second);
    }

    void oneMomentHasOneTick()
    {
        const TimeZone utc("UTC");
        const auto ticks = DateAxisScale(m_morning, m_morning).ticks(7, m_german);
        QCOMPARE(ticks,
                 (std::vector<DateTick>{{.moment = m_morning, .label = "4. März 2026, 09:00"}}));
    }

    void showsOneTickIfNoMoreFit()
    {
        const TimeZone utc("UTC");
        QVERIFY(DateAxisScale(m_morning, m_morning + days(400)).ticks(1, m_german).size() <= 1);
    }

    void ticksStayInsideInOrderAndApart_data()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char *zone : {"UTC", "Europe/Berlin", "America/New_York", "Asia/Kathmandu",
                                 "Australia/Lord_Howe", "Pacific/Apia", "America/Sao_Paulo"})
            QTest::newRow(zone) << QByteArray(zone);
    }

    void ticksStayInsideInOrderAndApart()
    {
        QFETCH(const QByteArray, zone);
        const TimeZone here(zone.constData());
        std::mt19937 random(7);
        for (int round = 0; round < 200; ++round) {
            // Spans of every order of magnitude, from seconds to decades.
            const double exponent = std::uniform_real_distribution<>(0, 9)(random);
            const sys_seconds first(
                seconds(std::uniform_int_distribution<>(0, 1'900'000'000)(random)));
            const sys_seconds last = first + seconds(std::llround(std::pow(10, exponent)));
            const int most = std::uniform_int_distribution<>(1, 12)(random);
            const auto ticks = DateAxisScale(first, last).ticks(most, m_german);
            QVERIFY(static_cast<int>(ticks.size()) <= most);
            std::set<std::string> labels;
            for (std::size_t index = 0; index < ticks.size(); ++index) {
                QVERIFY(ticks[index].moment >= first && ticks[index].moment <= last);
                QVERIFY(index == 0 || ticks[index - 1].moment < ticks[index].moment);
                QVERIFY(labels.insert(ticks[index].label).second);
            }
        }
    }

    void labelsDoNotOverlap_data()
    {
        QTest::addColumn<double>("width");
        for (const double width : {0.0, 30.0, 120.0, 400.0, 900.0, 2'000.0})
            QTest::addRow("%.0f", width) << width;
    }

    void labelsDoNotOverlap()
    {
        QFETCH(const double, width);
        const TimeZone utc("UTC");
        for (const auto span : {hours(1), hours(30), hours(24 * 20), hours(24 * 400)}) {
            const DateAxisScale axis(m_morning, m_morning + span);
            double end = -16;
            for (const DateTick &tick : axis.fittingTicks(width, 16, m_german, measure)) {
                const double start = axis.labelStart(tick.moment, measure(tick.label), width);
                QVERIFY(start >= end + 16);
                end = start + measure(tick.label);
                QVERIFY(start >= 0 && end <= width);
            }
        }
    }

    void aWiderAxisHasMoreTicks()
    {
        const TimeZone utc("UTC");
        const DateAxisScale axis(m_morning, m_morning + days(90));
        const auto count = [&](double width) {
            return axis.fittingTicks(width, 16, m_german, measure).size();
        };
        QVERIFY(count(300) >= 2);
        QVERIFY(count(900) > count(300));
    }

    void mapsMomentsBetweenItsEnds()
    {
        const DateAxisScale axis(m_morning, m_morning + 100s);
        QCOMPARE(axis.position(m_morning), 0.0);
        QCOMPARE(axis.position(m_morning + 25s), 0.25);
        QCOMPARE(axis.position(m_morning + 100s), 1.0);
        QCOMPARE(axis.position(m_morning - 1s), 0.0);
        QCOMPARE(axis.position(m_morning + 101s), 1.0);
        QCOMPARE(DateAxisScale(m_morning, m_morning).position(m_morning), 0.5);
    }

    void labelsAreCentredExceptAtTheEnds()
    {
        const DateAxisScale axis(m_morning, m_morning + 100s);
        QCOMPARE(axis.labelStart(m_morning + 50s, 20, 200), 90.0);
        QCOMPARE(axis.labelStart(m_morning, 20, 200), 0.0);
        QCOMPARE(axis.labelStart(m_morning + 100s, 20, 200), 180.0);
        QCOMPARE(axis.labelStart(m_morning + 100s, 300, 200), 0.0);
    }

    void namesMonthsInTheLocale()
    {
        const TimeZone utc("UTC");
        const auto firstLabel = [this](const char *dates) {
            const auto ticks = DateAxisScale(m_morning, m_morning + days(180))
                                   .ticks(7, {.numbers = dates, .dates = dates});
            return QString::fromStdString(ticks.front().label);
        };
        QCOMPARE(firstLabel("en_US"), QStringLiteral("Apr 2026"));
        QCOMPARE(firstLabel("hi_IN"), QStringLiteral("अप्रैल 2026"));
    }

private:
    static double measure(std::string_view label)
    {
        return 7.0 * static_cast<double>(label.size());
    }

    const sys_seconds m_morning = sys_days(year(2026) / 3 / 4) + hours(9);
    const TextLocale m_german{.numbers = "de_DE", .dates = "de_DE"};
};

const RegisteredTest<AxisScaleTest> registered("AxisScale");

} // namespace Loadwick

#include "AxisScaleTest.moc"
