#include "compare/ComparePresenter.h"

#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class ComparePresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scanning = std::make_unique<ScanningModel>();
        m_compare = std::make_unique<ComparePresenter>(m_scanning->model, TextLocale());
    }

    void saysThatNoScanIsRecorded()
    {
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("No recorded scans yet"));
        QCOMPARE(m_compare->emptyText(),
                 QStringLiteral("Scan two repositories and their latest results appear here side "
                                "by side."));
    }

    void saysThatOnlyOneRepositoryIsRecordedHoweverManyScansItHas()
    {
        record({RecordedScanBuilder().at(1).ofTotal(31'000).build(),
                RecordedScanBuilder().at(2).build()});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("Only one repository recorded"));
        QCOMPARE(m_compare->emptyText(),
                 QStringLiteral("webshop measured 27,654 tokens. Choose a second repository and "
                                "scan it to compare the two."));
    }

    void claimsNothingWithTwoRepositories()
    {
        record({RecordedScanBuilder().build(), RecordedScanBuilder().in("/srv/webshop").build()});
        QCOMPARE(m_compare->emptyTitle(), QString());
        QCOMPARE(m_compare->emptyText(), QString());
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        const ComparePresenter german(m_scanning->model, {.numbers = "de_DE"});
        record({RecordedScanBuilder().build()});
        QVERIFY(german.emptyText().startsWith(QStringLiteral("webshop measured 27.654 tokens. ")));
    }

    void isEmptyAgainWhenTheHistoryIsCleared()
    {
        record({RecordedScanBuilder().build()});
        record({});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("No recorded scans yet"));
    }

private:
    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
    }

    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<ComparePresenter> m_compare;
};

const RegisteredTest<ComparePresenterTest> registered("ComparePresenter");

} // namespace Loadwick

#include "ComparePresenterTest.moc"
