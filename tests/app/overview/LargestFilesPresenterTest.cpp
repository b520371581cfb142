#include "overview/LargestFilesPresenter.h"

#include <QTest>

#include "samples/SampleReport.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

using Role = InstructionFileRows::Role;

/// Files "/r/0", "/r/1", … of so many tokens each.
ScanReport reportOf(const std::vector<std::int64_t> &tokens)
{
    ScanReport report = sampleReport();
    report.total = 10'000;
    for (std::size_t index = 0; index < tokens.size(); ++index)
        report.fileSet.repositoryFiles.push_back(
            InstructionFileEstimate::fromPath("/r/" + std::to_string(index), tokens[index] * 4));
    return report;
}

QStringList textsOf(const InstructionFileRows *rows, Role role)
{
    QStringList texts;
    for (int row = 0; row < rows->count(); ++row)
        texts.append(rows->index(row).data(role).toString());
    return texts;
}

QStringList words(const char *list)
{
    return QString::fromUtf8(list).split(QLatin1Char(' '));
}

} // namespace

class LargestFilesPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatTheTableHolds()
    {
        QCOMPARE(LargestFilesPresenter::title(), QStringLiteral("Largest instruction files"));
        QCOMPARE(LargestFilesPresenter::detail(),
                 QStringLiteral("The top five by local estimate; every file is listed in the "
                                "section above."));
        QCOMPARE(LargestFilesPresenter::fileHeader(), QStringLiteral("File"));
        QCOMPARE(LargestFilesPresenter::tokensHeader(), QStringLiteral("Tokens"));
        QCOMPARE(LargestFilesPresenter::shareHeader(), QStringLiteral("% of total"));
        QCOMPARE(LargestFilesPresenter::emptyText(),
                 QStringLiteral("No instruction files were found for this scan."));
    }

    void showsTheFiveLargestWithTheLargestFirst()
    {
        LargestFilesPresenter largest({});
        largest.show(reportOf({10, 700, 30, 4'000, 50, 60, 20'000}));
        QCOMPARE(textsOf(largest.rows(), Role::Path), words("/r/6 /r/3 /r/1 /r/5 /r/4"));
        QCOMPARE(textsOf(largest.rows(), Role::Tokens), words("20,000 4,000 700 60 50"));
        QCOMPARE(textsOf(largest.rows(), Role::Share),
                 QStringList({QStringLiteral("100.0% of total"), QStringLiteral("40.0% of total"),
                              QStringLiteral("7.0% of total"), QStringLiteral("0.6% of total"),
                              QStringLiteral("0.5% of total")}));
    }

    void filesOfEqualTokensKeepTheirListingOrder()
    {
        LargestFilesPresenter largest({});
        largest.show(reportOf({5, 7, 5, 7, 5, 5, 5}));
        QCOMPARE(textsOf(largest.rows(), Role::Path), words("/r/1 /r/3 /r/0 /r/2 /r/4"));
    }

    void equalFilesOfAllTiersKeepTheOrderOfTheTiers()
    {
        ScanReport report = reportOf({5});
        report.fileSet.personalFiles = {InstructionFileEstimate::fromPath("/p", 20)};
        report.fileSet.inheritedFiles = {InstructionFileEstimate::fromPath("/i", 20)};
        LargestFilesPresenter largest({});
        largest.show(report);
        QCOMPARE(textsOf(largest.rows(), Role::Path), words("/r/0 /i /p"));
    }

    void fewerThanFiveFilesShowAllOfThem()
    {
        LargestFilesPresenter largest({});
        largest.show(reportOf({1, 2, 3}));
        QCOMPARE(largest.rows()->count(), 3);
    }

    void isEmptyWithoutFiles()
    {
        LargestFilesPresenter largest({});
        largest.show(reportOf({1}));
        largest.show(reportOf({}));
        QCOMPARE(largest.rows()->count(), 0);
    }

    void writesFiguresInTheLocale_data()
    {
        QTest::addColumn<QString>("tokens");
        QTest::newRow("en_US") << QStringLiteral("1,234,567");
        QTest::newRow("C") << QStringLiteral("1,234,567");
        QTest::newRow("de_DE") << QStringLiteral("1.234.567");
        QTest::newRow("hi_IN") << QStringLiteral("12,34,567");
    }

    void writesFiguresInTheLocale()
    {
        LargestFilesPresenter largest(
            TextLocale::fromEnvironment({{"LC_ALL", QTest::currentDataTag()}}));
        ScanReport report = reportOf({1'234'567});
        report.total = 10'000'000;
        largest.show(report);
        QTEST(largest.rows()->index(0).data(Role::Tokens).toString(), "tokens");
        QCOMPARE(textsOf(largest.rows(), Role::Share),
                 QStringList(QStringLiteral("12.3% of total")));
    }
};

const RegisteredTest<LargestFilesPresenterTest> registered("LargestFilesPresenter");

} // namespace Loadwick

#include "LargestFilesPresenterTest.moc"
