#include "trends/TrendSummaryPresenter.h"

#include <QTest>

#include <csignal>
#include <cstdio>
#include <limits>

#include <sys/wait.h>
#include <unistd.h>

#include "support/TestRegistry.h"

namespace Loadwick {

class TrendSummaryPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNothingToSayWithoutAScan()
    {
        TrendSummaryPresenter summary{TextLocale()};
        QVERIFY(!summary.hasScans());
        summary.show({});
        QVERIFY(!summary.hasScans());
    }

    void saysWhichBandTheLatestTotalIsIn_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("latest");
        QTest::addColumn<int>("band");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("range");
        const auto row = [](qint64 total, const char *latest, int band, const char *title,
                            const char *range) {
            QTest::newRow(latest) << total << QString::fromUtf8(latest) << band
                                  << QString::fromUtf8(title) << QString::fromUtf8(range);
        };
        row(29'999, "29,999", 0, "Lean", "under 30,000");
        row(30'000, "30,000", 1, "Heavy", "30,000–60,000");
        row(60'000, "60,000", 1, "Heavy", "30,000–60,000");
        row(60'001, "60,001", 2, "Excessive", "over 60,000");
    }

    void saysWhichBandTheLatestTotalIsIn()
    {
        QFETCH(const qint64, total);
        TrendSummaryPresenter summary{TextLocale()};
        summary.show(samplesOf({5, total}));
        QVERIFY(summary.hasScans());
        QTEST(summary.latest(), "latest");
        QTEST(summary.band(), "band");
        QTEST(summary.bandTitle(), "title");
        QTEST(summary.range(), "range");
    }

    void writesTheDriftWithItsSign_data()
    {
        QTest::addColumn<qint64>("first");
        QTest::addColumn<qint64>("last");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("drift");
        const auto row = [](qint64 first, qint64 last, const char *locale, const char *drift) {
            QTest::addRow("%s in %s", drift, locale)
                << first << last << QString::fromUtf8(locale) << QString::fromUtf8(drift);
        };
        row(31'000, 28'500, "en_US", "-2,500");
        row(28'500, 31'000, "en_US", "+2,500");
        row(30'000, 30'000, "en_US", "+0");
        row(31'000, 28'500, "de_DE", "-2.500");
        row(31'000, 28'500, "C", "-2,500");
        row(0, 9'000'000, "hi_IN", "+90,00,000");
        row(31'000, 28'500, "sv_SE", "−2 500");
    }

    void writesTheDriftWithItsSign()
    {
        QFETCH(const qint64, first);
        QFETCH(const qint64, last);
        QFETCH(const QString, locale);
        QFETCH(const QString, drift);
        TrendSummaryPresenter summary(
            TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString()}}));
        summary.show(samplesOf({first, 99'999, last}));
        QCOMPARE(summary.drift().replace(QChar(0xA0), QLatin1Char(' ')), drift);
        QCOMPARE(summary.driftCaption(), QStringLiteral("3 recorded scans"));
    }

    void oneScanHasNotDrifted()
    {
        TrendSummaryPresenter summary{TextLocale()};
        summary.show(samplesOf({30'000}));
        QCOMPARE(summary.drift(), QStringLiteral("+0"));
        QCOMPARE(summary.driftCaption(), QStringLiteral("1 recorded scans"));
    }

    void aDriftThatDoesNotFitEndsTheProgram()
    {
        constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
        QCOMPARE(signalThatEnds(samplesOf({-1, largest - 1})), 0);
        QCOMPARE(signalThatEnds(samplesOf({-1, largest})), SIGABRT);
    }

private:
    /// The signal that ends a program showing these samples; 0 if it survives.
    static int signalThatEnds(const std::vector<LineSample> &samples)
    {
        const pid_t child = fork();
        if (child == 0) {
            std::signal(SIGABRT, SIG_DFL); // Qt Test's own handler looks for a debugger
            close(STDERR_FILENO);
            TrendSummaryPresenter(TextLocale()).show(samples);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    static std::vector<LineSample> samplesOf(const std::vector<std::int64_t> &totals)
    {
        std::vector<LineSample> samples;
        for (const std::int64_t total : totals)
            samples.push_back({.date = {}, .total = total});
        return samples;
    }
};

const RegisteredTest<TrendSummaryPresenterTest> registered("TrendSummaryPresenter");

} // namespace Loadwick

#include "TrendSummaryPresenterTest.moc"
