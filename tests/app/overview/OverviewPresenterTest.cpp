#include "overview/OverviewPresenter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

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

    void showsThatTimePasses()
    {
        m_now += std::chrono::hours(1);
        m_scanning->choose();
        m_scanning->model.scan();
        QCOMPARE(m_overview->state(), State::Loading);
        QCOMPARE(m_overview->elapsed(), QStringLiteral("0:00"));
        m_now += std::chrono::milliseconds(67'900);
        QCOMPARE(m_overview->elapsed(), QStringLiteral("1:07"));
    }

    void tellsOfTheTimeEverySecondWhileScanning()
    {
        QSignalSpy elapsed(m_overview.get(), &OverviewPresenter::elapsedChanged);
        m_scanning->choose();
        m_scanning->model.scan();
        elapsed.clear();
        QVERIFY(elapsed.wait(3000));
        m_scanning->finish();
        elapsed.clear();
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

    void showsTheReport()
    {
        m_scanning->scan();
        QCOMPARE(m_overview->state(), State::Report);
        QCOMPARE(m_overview->band()->total(), QStringLiteral("27,654"));
        QCOMPARE(m_overview->band()->title(), QStringLiteral("Lean startup context"));
        QCOMPARE(m_overview->sessionDetails()->rowCount(), 4);
        QCOMPARE(m_overview->notes().size(), 3);
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
        QCOMPARE(m_overview->summary().count(QLatin1Char('\n')), 5);
    }

    void showsTheStateThatItFinds()
    {
        m_scanning->scan();
        OverviewPresenter late(m_scanning->model, TextLocale());
        QCOMPARE(late.state(), State::Report);
        QCOMPARE(late.band()->total(), QStringLiteral("27,654"));
    }

private:
    std::chrono::steady_clock::time_point m_now;
    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<OverviewPresenter> m_overview;
};

const RegisteredTest<OverviewPresenterTest> registered("OverviewPresenter");

} // namespace Loadwick

#include "OverviewPresenterTest.moc"
