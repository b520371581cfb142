#include "overview/OverviewPresenter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

using State = OverviewPresenter::State;

class OverviewPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_now = {};
        m_scanning = std::make_unique<ScanningModel>();
        m_overview = std::make_unique<OverviewPresenter>(m_scanning->model, TextLocale(),
                                                         [this] { return m_now; });
    }

    void isEmptyBeforeTheFirstScan() { QCOMPARE(m_overview->state(), State::Empty); }

    void showsTheTimeOfAScanAsAStopwatch_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, qint64 milliseconds, const char *text,
                            const char *words) {
            QTest::newRow(name) << milliseconds << QString::fromLatin1(text)
                                << QString::fromLatin1(words);
        };
        row("start", 0, "0:00", "Running for less than a minute");
        row("seconds", 7'900, "0:07", "Running for less than a minute");
        row("minute", 60'000, "1:00", "Running for 1 minute");
        row("long scan", 266'000, "4:26", "Running for 4 minutes");
        row("over an hour", 3'660'000, "61:00", "Running for 61 minutes");
        row("clock set back", -5'000, "0:00", "Running for less than a minute");
    }

    void showsTheTimeOfAScanAsAStopwatch()
    {
        QFETCH(const qint64, milliseconds);
        m_now += std::chrono::hours(1);
        m_scanning->choose();
        m_scanning->model.scan();
        QCOMPARE(m_overview->state(), State::Loading);
        m_now += std::chrono::milliseconds(milliseconds);
        QTEST(m_overview->elapsed(), "text");
        QTEST(m_overview->elapsedWords(), "words");
    }

    void signalsTheTimeEverySecondWhileScanning()
    {
        QSignalSpy elapsed(m_overview.get(), &OverviewPresenter::elapsedChanged);
        m_overview->setTimeShown(true);
        m_scanning->choose();
        m_scanning->model.scan();
        elapsed.clear();
        QVERIFY(elapsed.wait(3000));
        m_scanning->finish();
        elapsed.clear();
        QVERIFY(!elapsed.wait(1200));
    }

    void signalsTheTimeOnTheScansOwnSeconds()
    {
        m_overview->setTimeShown(true);
        m_scanning->choose();
        m_scanning->model.scan();
        m_now += std::chrono::milliseconds(2'950);
        m_overview->setTimeShown(false);
        QSignalSpy elapsed(m_overview.get(), &OverviewPresenter::elapsedChanged);
        m_overview->setTimeShown(true);
        QCOMPARE(elapsed.size(), 1);
        QVERIFY2(elapsed.wait(500), "the third second is over in 50 ms");
    }

    void signalsNoTimeWhileItIsNotShown()
    {
        m_overview->setTimeShown(true);
        m_scanning->choose();
        m_scanning->model.scan();
        m_overview->setTimeShown(false);
        QSignalSpy elapsed(m_overview.get(), &OverviewPresenter::elapsedChanged);
        QVERIFY(!elapsed.wait(1200));
    }

    void saysWhyAScanFailed()
    {
        m_scanning->probe->answer = []() -> ProbeResult { throw ProbeError::notAuthenticated(); };
        m_scanning->scan();
        QCOMPARE(m_overview->state(), State::Failure);
        QCOMPARE(m_overview->headline(), QStringLiteral("Claude Code is not signed in."));
        QCOMPARE(m_overview->detail(),
                 QStringLiteral("Run `claude` in Terminal and sign in, then scan again. This app "
                                "never handles Claude credentials."));
    }

    void saysWhatAFailureMeansOnThisSystem()
    {
        const auto error = ProbeError::repositoryUnreadable("/srv/webshop");
        m_scanning->model.state().set(ScanState::failed(error));
        QCOMPARE(m_overview->platformNote().toStdString(), error.platformNote().value_or(""));
        m_scanning->model.state().set(ScanState::failed(ProbeError::timedOut()));
        QCOMPARE(m_overview->platformNote(), QString());
    }

    void showsTheReport()
    {
        m_scanning->scan();
        QCOMPARE(m_overview->state(), State::Report);
        QCOMPARE(m_overview->band()->total(), QStringLiteral("27,654"));
        QCOMPARE(m_overview->band()->title(), QStringLiteral("Lean startup context"));
        QCOMPARE(m_overview->repositoryPath().toStdString(), m_scanning->folder.path().string());
    }

    void choosingAgainEmptiesThePage()
    {
        m_scanning->scan();
        m_scanning->choose();
        QCOMPARE(m_overview->state(), State::Empty);
    }

    void copiesTheSummary()
    {
        m_scanning->scan();
        m_overview->copySummary();
        QCOMPARE(QGuiApplication::clipboard()->text(), m_overview->summary());
    }

    void showsTheStateAtItsStart()
    {
        m_scanning->scan();
        OverviewPresenter late(m_scanning->model, TextLocale());
        QCOMPARE(late.state(), State::Report);
        QCOMPARE(late.band()->total(), QStringLiteral("27,654"));
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        OverviewPresenter german(m_scanning->model, {.numbers = "de_DE", .dates = "de_DE"});
        show(sampleReport());
        QVERIFY(german.summary().contains(QStringLiteral("Total: 27.654 tokens")));
    }

    void listsTheSessionDetails()
    {
        ScanReport report = sampleReport();
        report.duration = 1234.56;
        report.answerLines = {.read = 1'007, .unread = 2};
        const QList<QStringList> expected = {
            {QStringLiteral("Repository path"), QStringLiteral("/home/someone/webshop")},
            {QStringLiteral("Claude executable"), QStringLiteral("/usr/local/bin/claude")},
            {QStringLiteral("Session ID"), QStringLiteral("0b8e6c1e-5f0a-4a57-9f0c-0c9d5f1e7a11")},
            {QStringLiteral("Duration"), QStringLiteral("1234.6 seconds")},
            {QStringLiteral("Answer lines"), QStringLiteral("1,007 read as categories, 2 not")},
        };
        show(report);
        const QAbstractItemModel &details = *m_overview->sessionDetails();
        QCOMPARE(details.rowCount(), expected.size());
        for (int row = 0; row < details.rowCount(); ++row)
            for (int role = 0; role < 2; ++role)
                QCOMPARE(details.index(row, 0).data(Qt::UserRole + role).toString(),
                         expected[row][role]);
    }

    void explainsTheFigures()
    {
        const QStringList expected = {
            QStringLiteral("Measured: one headless `claude -p` session (model sonnet) started in "
                           "this folder; the number includes the probe prompt."),
            QStringLiteral("The category and file splits below are estimates derived locally; only "
                           "the total above is authoritative."),
            QStringLiteral("Total: authoritative — reported by Claude (source: session transcript: "
                           "first assistant message usage)."),
        };
        show(sampleReport());
        QCOMPARE(m_overview->notes(), expected);
    }

    void joinsTheSummaryByLineFeeds()
    {
        show(sampleReport());
        const QString summary = m_overview->summary();
        QCOMPARE(summary.count(QLatin1Char('\n')), 5);
        QVERIFY(summary.startsWith(QStringLiteral("Repository: webshop\nTotal: 27,654 tokens")));
        QVERIFY(summary.endsWith(QStringLiteral("Claude executable: /usr/local/bin/claude")));
    }

private:
    void show(const ScanReport &report)
    {
        m_scanning->model.state().set(ScanState::result(report));
    }

    std::chrono::steady_clock::time_point m_now;
    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<OverviewPresenter> m_overview;
};

const RegisteredTest<OverviewPresenterTest> registered("OverviewPresenter");

} // namespace Loadwick

#include "OverviewPresenterTest.moc"
