#include "overview/WeeklyPresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class WeeklyPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_weekly = std::make_unique<WeeklyPresenter>(TextLocale()); }

    void isEmptyAtFirst()
    {
        QVERIFY(!m_weekly->hasLine());
        QCOMPARE(m_weekly->median(), QString());
        QCOMPARE(m_weekly->window(), QString());
    }

    void showsTheLine()
    {
        m_weekly->show(lineOf(27'510'462, 37'681'168));
        QVERIFY(m_weekly->hasLine());
        QCOMPARE(m_weekly->window(), QStringLiteral("Window: 2026-08-17 – 2026-08-23"));
        QCOMPARE(m_weekly->recorded(), QStringLiteral("Recorded: 2026-08-24T06:00:00Z"));
    }

    void namesTheSourceOfTheTargets()
    {
        QCOMPARE(m_weekly->targets(),
                 QStringLiteral("Targets: halden-machine-config docs/data/"
                                "token-kpi-baseline-2026-08-09.json (locked baseline)"));
    }

    void comparesFiguresWithTheirTargets_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<qint64>("change");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("caption");
        const auto row = [](const char *locale, qint64 change, const char *value,
                            const char *caption) {
            QTest::addRow("%s %lld", locale, static_cast<long long>(change))
                << QString::fromLatin1(locale) << change << QString::fromUtf8(value)
                << QString::fromUtf8(caption) + QStringLiteral(" versus target");
        };
        row("en_US", 1'234, "27,511,696", "+1,234");
        row("en_US", 0, "27,510,462", "+0");
        row("en_US", -1'234, "27,509,228", "-1,234");
        row("en_US", -27'510'462, "0", "-27,510,462");
        row("de_DE", 1'234, "27.511.696", "+1.234");
        row("de_DE", -1'234, "27.509.228", "-1.234");
        row("C", 1'234, "27,511,696", "+1,234");
        row("C", -1'234, "27,509,228", "-1,234");
        row("hi_IN", 1'234, "2,75,11,696", "+1,234");
        row("hi_IN", -1'234'567, "2,62,75,895", "-12,34,567");
    }

    void comparesFiguresWithTheirTargets()
    {
        QFETCH(const QString, locale);
        QFETCH(const qint64, change);
        QFETCH(const QString, value);
        QFETCH(const QString, caption);
        WeeklyPresenter weekly(
            TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString() + ".UTF-8"}}));
        weekly.show(lineOf(27'510'462 + change, 37'681'168 + change));
        QCOMPARE(weekly.median(), value);
        QCOMPARE(weekly.medianCaption(), caption);
        QCOMPARE(weekly.tokensPerPRCaption(), caption);
    }

    void showsTokensPerPullRequest()
    {
        m_weekly->show(lineOf(1, 40'000'000));
        QCOMPARE(m_weekly->tokensPerPR(), QStringLiteral("40,000,000"));
        QCOMPARE(m_weekly->tokensPerPRCaption(), QStringLiteral("+2,318,832 versus target"));
    }

    void clearsAWithdrawnLine()
    {
        m_weekly->show(lineOf(1, 1));
        m_weekly->show(std::nullopt);
        QVERIFY(!m_weekly->hasLine());
        QCOMPARE(m_weekly->median(), QString());
        QCOMPARE(m_weekly->medianCaption(), QString());
        QCOMPARE(m_weekly->recorded(), QString());
    }

    void readsTheLogInTheBackground()
    {
        QSignalSpy changed(m_weekly.get(), &WeeklyPresenter::changed);
        m_weekly->load(writeLog(), m_dispatcher);
        QCOMPARE(changed.count(), 0);
        m_dispatcher->runAll();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_weekly->median(), QStringLiteral("7"));
        QCOMPARE(m_weekly->window(), QStringLiteral("Window: unknown – unknown"));
    }

    void isEmptyWithoutALog()
    {
        m_weekly->load(m_folder.path() / "missing", m_dispatcher);
        m_dispatcher->runAll();
        QVERIFY(!m_weekly->hasLine());
    }

    void isEmptyWithoutAThread()
    {
        m_dispatcher->refuseBackground();
        m_weekly->load(writeLog(), m_dispatcher);
        QVERIFY(!m_weekly->hasLine());
    }

    void dropsALateLine()
    {
        m_weekly->load(writeLog(), m_dispatcher);
        m_weekly.reset();
        m_dispatcher->runAll();
    }

private:
    static WeeklyKPILine lineOf(std::int64_t median, std::int64_t tokensPerPR)
    {
        return {.medianTokensPerSession = median,
                .tokensPerPR = tokensPerPR,
                .totalTokens = std::nullopt,
                .mergedPRs = std::nullopt,
                .windowStart = "2026-08-17",
                .windowEnd = "2026-08-23",
                .timestamp = "2026-08-24T06:00:00Z"};
    }

    std::filesystem::path writeLog() const
    {
        return m_folder.write("weekly.jsonl",
                              "{\"median_tokens_per_session\":7,\"tokens_per_pr\":8}\n");
    }

    TemporaryFolder m_folder;
    std::shared_ptr<SteppingDispatcher> m_dispatcher = std::make_shared<SteppingDispatcher>();
    std::unique_ptr<WeeklyPresenter> m_weekly;
};

const RegisteredTest<WeeklyPresenterTest> registered("WeeklyPresenter");

} // namespace Loadwick

#include "WeeklyPresenterTest.moc"
