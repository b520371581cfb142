#include "charts/TrendLine.h"

#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

class TrendLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhenAScanWasAndWhatItMeasured()
    {
        const TimeZone utc("UTC");
        TrendLine line({.numbers = "de_DE", .dates = "de_DE"});
        line.setSamples(std::vector<LineSample>{{.date = m_morning, .total = 27'654}});
        QCOMPARE(line.date(0), QStringLiteral("4. März 2026, 09:15"));
        QCOMPARE(line.total(0), QStringLiteral("27.654 tokens"));
    }

    void countsItsScansByDate()
    {
        TrendLine line{TextLocale()};
        line.setSamples(
            std::vector<LineSample>{{.date = m_morning + std::chrono::hours(1), .total = 2},
                                    {.date = m_morning, .total = 1}});
        QCOMPARE(line.total(0), QStringLiteral("1 tokens"));
        QCOMPARE(line.total(1), QStringLiteral("2 tokens"));
    }

    void tellsOfOtherScansOnly()
    {
        TrendLine line{TextLocale()};
        QSignalSpy changed(&line, &TrendLine::changed);
        const std::vector<LineSample> samples = {{.date = m_morning, .total = 1}};
        line.setSamples(samples);
        QCOMPARE(changed.count(), 1);
        line.setSamples(samples);
        QCOMPARE(changed.count(), 1);
        line.setSamples({});
        QCOMPARE(changed.count(), 2);
    }

private:
    const std::chrono::sys_seconds m_morning{std::chrono::seconds(1'772'615'727)};
};

const RegisteredTest<TrendLineTest> registered("TrendLine");

} // namespace Loadwick

#include "TrendLineTest.moc"
