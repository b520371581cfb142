#include "overview/InstructionFilesPresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "samples/SampleScans.h"
#include "support/Stopwatch.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

InstructionFileEstimate file(const char *path, std::int64_t byteCount)
{
    return InstructionFileEstimate::fromPath(path, byteCount);
}

ScanReport reportOf(InstructionFileSet files)
{
    ScanReport report = sampleReport();
    report.repositoryPath = "/home/ada/app";
    report.total = 1'000'000;
    report.fileSet = std::move(files);
    return report;
}

InstructionFileSet threeTiers()
{
    return {.repositoryFiles = {file("/home/ada/app/CLAUDE.md", 4'938'264),
                                file("/home/ada/app/AGENTS.md", 4)},
            .inheritedFiles = {file("/home/ada/CLAUDE.md", 4'000)},
            .personalFiles = {file("/home/ada/.claude/CLAUDE.md", 8)},
            .unreadablePaths = {}};
}

std::shared_ptr<const ScanReport> shared(ScanReport report)
{
    return std::make_shared<const ScanReport>(std::move(report));
}

TextLocale localeNamed(const char *name)
{
    return TextLocale::fromEnvironment({{"LC_ALL", name}});
}

/// Files "/r/0", "/r/1", … with these tokens, in a total of 10,000.
ScanReport reportOfTokens(const std::vector<std::int64_t> &tokens)
{
    ScanReport report = reportOf({});
    report.total = 10'000;
    for (std::size_t index = 0; index < tokens.size(); ++index)
        report.fileSet.repositoryFiles.push_back(
            InstructionFileEstimate::fromPath("/r/" + std::to_string(index), tokens[index] * 4));
    return report;
}

QStringList words(const char *list)
{
    return QString::fromUtf8(list).split(QLatin1Char(' '));
}

QStringList textsOf(const RowList *rows, const char *role)
{
    QStringList texts;
    for (int row = 0; row < rows->count(); ++row)
        texts.append(rows->text(row, QString::fromLatin1(role)));
    return texts;
}

} // namespace

class InstructionFilesPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEachTiersFiles()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf(threeTiers())));
        QCOMPARE(textsOf(files.repositoryRows(), "path"),
                 QStringList({QStringLiteral("/home/ada/app/CLAUDE.md"),
                              QStringLiteral("/home/ada/app/AGENTS.md")}));
        QCOMPARE(files.inheritedRows()->text(0, QStringLiteral("path")),
                 QStringLiteral("/home/ada/CLAUDE.md"));
        QCOMPARE(files.personalRows()->text(0, QStringLiteral("path")),
                 QStringLiteral("/home/ada/.claude/CLAUDE.md"));
        QCOMPARE(files.tiles()->count(), 4);
        QCOMPARE(files.tiles()->text(2, QStringLiteral("path")),
                 QStringLiteral("/home/ada/CLAUDE.md"));
    }

    void sharesTheReport()
    {
        auto report = shared(reportOf(threeTiers()));
        const std::weak_ptr<const ScanReport> shown = report;
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(report);
        report.reset();
        QVERIFY(!shown.expired());
        files.show(shared(reportOf({})));
        QVERIFY(shown.expired());
    }

    void writesFiguresInTheLocale_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("figures");
        const auto row = [](const char *locale, const char *bytes, const char *tokens) {
            QTest::newRow(locale) << QString::fromUtf8(bytes) +
                                         QStringLiteral(" bytes on disk · local estimate at 4 "
                                                        "bytes/token")
                                  << QString::fromUtf8(tokens) + QStringLiteral(" tokens")
                                  << QString::fromUtf8(tokens) +
                                         QStringLiteral(" estimated tokens · 100.0% of total");
        };
        row("en_US.UTF-8", "4,938,264", "1,234,566");
        row("C", "4,938,264", "1,234,566");
        row("de_DE.UTF-8", "4.938.264", "1.234.566");
        row("hi_IN", "49,38,264", "12,34,566");
    }

    void writesFiguresInTheLocale()
    {
        InstructionFilesPresenter files(localeNamed(QTest::currentDataTag()), "/home/ada");
        files.show(shared(reportOf(threeTiers())));
        QTEST(files.repositoryRows()->text(0, QStringLiteral("size")), "size");
        QTEST(files.repositoryRows()->text(0, QStringLiteral("amount")), "amount");
        QTEST(files.tiles()->text(0, QStringLiteral("figures")), "figures");
        QTEST(files.largestRows()->text(0, QStringLiteral("figures")), "figures");
        // With a decimal point whatever the locale.
        QCOMPARE(files.inheritedRows()->value(0, QStringLiteral("share")).toString(),
                 QStringLiteral("0.1% of total"));
    }

    void everyListNamesTheImporter()
    {
        InstructionFileSet set = threeTiers();
        set.importers = {{"/home/ada/app/CLAUDE.md", "/home/ada/.claude/CLAUDE.md"}};
        InstructionFilesPresenter files({}, "/home/ada");
        QVERIFY(!files.hasImports());
        files.show(shared(reportOf(set)));
        QVERIFY(files.hasImports());
        for (const RowList *rows : {files.repositoryRows(), files.tiles(), files.largestRows()})
            QVERIFY(rows->text(0, QStringLiteral("words"))
                        .endsWith(QStringLiteral(". imported by ~/.claude/CLAUDE.md.")));
        files.show(shared(reportOf(threeTiers())));
        QVERIFY(!files.hasImports());
    }

    void anUnreadableFileIsInTheTierOfItsPath()
    {
        InstructionFileSet set = threeTiers();
        set.unreadablePaths = {"/home/ada/.claude/notes.md", "/home/ada/CLAUDE.local.md",
                               "/home/ada/app/docs/a.md"};
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf(set)));
        QCOMPARE(files.repositoryRows()->text(2, QStringLiteral("path")),
                 QStringLiteral("/home/ada/app/docs/a.md"));
        QCOMPARE(files.inheritedRows()->text(1, QStringLiteral("path")),
                 QStringLiteral("/home/ada/CLAUDE.local.md"));
        QCOMPARE(files.personalRows()->text(1, QStringLiteral("path")),
                 QStringLiteral("/home/ada/.claude/notes.md"));
        QCOMPARE(textsOf(files.personalRows(), "size").at(1), QStringLiteral("Could not be read"));
        QCOMPARE(files.tiles()->count(), 4);
    }

    void aTierOfUnreadableFilesIsNotCalledEmpty()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf({.repositoryFiles = {},
                                    .inheritedFiles = {},
                                    .personalFiles = {},
                                    .unreadablePaths = {"/home/ada/.claude/CLAUDE.md"}})));
        QCOMPARE(files.personalRows()->count(), 1);
        QCOMPARE(files.repositoryRows()->count(), 0);
        QCOMPARE(files.inheritedRows()->count(), 0);
    }

    void aPathInBothListsAppearsOnceWithItsFigures()
    {
        InstructionFileSet set = threeTiers();
        set.unreadablePaths = {"/home/ada/CLAUDE.md"};
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf(set)));
        QCOMPARE(files.inheritedRows()->count(), 1);
        QVERIFY(files.inheritedRows()->value(0, QStringLiteral("isReadable")).toBool());
    }

    void summarizesTheSizesForAScreenReader_data()
    {
        QTest::addColumn<QString>("summary");
        const auto row = [](const char *locale, const char *all, const char *largest) {
            QTest::newRow(locale) << QStringLiteral("Relative size of 4 instruction files, ") +
                                         QString::fromUtf8(all) +
                                         QStringLiteral(" estimated tokens together. The largest: "
                                                        "/home/ada/app/CLAUDE.md, ") +
                                         QString::fromUtf8(largest) +
                                         QStringLiteral(" estimated tokens · 100.0% of total.");
        };
        row("en_US", "1,235,569", "1,234,566");
        row("C", "1,235,569", "1,234,566");
        row("de_DE", "1.235.569", "1.234.566");
        row("hi_IN", "12,35,569", "12,34,566");
    }

    void summarizesTheSizesForAScreenReader()
    {
        InstructionFilesPresenter files(localeNamed(QTest::currentDataTag()), "/home/ada");
        files.show(shared(reportOf(threeTiers())));
        QVERIFY(files.hasSizes());
        QTEST(files.sizeSummary(), "summary");
    }

    void saysOneFileInTheSingular()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf({.repositoryFiles = {file("/home/ada/app/CLAUDE.md", 400)},
                                    .inheritedFiles = {},
                                    .personalFiles = {},
                                    .unreadablePaths = {}})));
        QVERIFY(files.sizeSummary().startsWith(
            QStringLiteral("Relative size of 1 instruction file, 100 estimated tokens")));
    }

    void hasNoSizesWithoutTokens()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOf({})));
        QVERIFY(!files.hasSizes());
        QCOMPARE(files.sizeSummary(), QString());
        files.show(shared(reportOf({.repositoryFiles = {file("/home/ada/app/CLAUDE.md", 0)},
                                    .inheritedFiles = {},
                                    .personalFiles = {},
                                    .unreadablePaths = {}})));
        QVERIFY(!files.hasSizes());
        QCOMPARE(files.repositoryRows()->count(), 1);
    }

    void showsTheFiveLargestWithTheLargestFirst()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOfTokens({10, 700, 30, 4'000, 50, 60, 20'000})));
        QCOMPARE(textsOf(files.largestRows(), "path"), words("/r/6 /r/3 /r/1 /r/5 /r/4"));
        QCOMPARE(textsOf(files.largestRows(), "tokens"), words("20,000 4,000 700 60 50"));
        QCOMPARE(textsOf(files.largestRows(), "share"),
                 QStringList({QStringLiteral("100.0% of total"), QStringLiteral("40.0% of total"),
                              QStringLiteral("7.0% of total"), QStringLiteral("0.6% of total"),
                              QStringLiteral("0.5% of total")}));
    }

    void filesOfEqualTokensKeepTheirListingOrder()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOfTokens({5, 7, 5, 7, 5, 5, 5})));
        QCOMPARE(textsOf(files.largestRows(), "path"), words("/r/1 /r/3 /r/0 /r/2 /r/4"));
    }

    void equalFilesOfAllTiersKeepTheOrderOfTheTiers()
    {
        ScanReport report = reportOfTokens({5});
        report.fileSet.personalFiles = {InstructionFileEstimate::fromPath("/p", 20)};
        report.fileSet.inheritedFiles = {InstructionFileEstimate::fromPath("/i", 20)};
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(report));
        QCOMPARE(textsOf(files.largestRows(), "path"), words("/r/0 /i /p"));
    }

    void fewerThanFiveFilesShowAllOfThem()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        files.show(shared(reportOfTokens({1, 2, 3})));
        QCOMPARE(files.largestRows()->count(), 3);
    }

    void explainsTheFilesOfASessionWithoutCategories()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        ScanReport report = reportOf(threeTiers());
        report.categoriesSelfReported = false;
        files.show(shared(report));
        QCOMPARE(
            files.note(),
            QStringLiteral("Claude did not self-report categories for this session, so the "
                           "\"Startup context (categories not self-reported)\" row already "
                           "carries the whole measured total. The instruction files below are "
                           "local estimates of what makes up that total, not additional tokens "
                           "on top of it."));
        report.categoriesSelfReported = true;
        files.show(shared(report));
        QCOMPARE(files.note(), QString());
    }

    void hasNoNoteWithoutFiles()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        ScanReport report = reportOf({});
        report.categoriesSelfReported = false;
        files.show(shared(report));
        QCOMPARE(files.note(), QString());
    }

    void showsTheLaterReport()
    {
        InstructionFilesPresenter files({}, "/home/ada");
        const QSignalSpy changes(&files, &InstructionFilesPresenter::changed);
        files.show(shared(reportOf(threeTiers())));
        files.show(shared(reportOf({})));
        QCOMPARE(changes.count(), 2);
        QCOMPARE(files.repositoryRows()->count(), 0);
        QCOMPARE(files.tiles()->count(), 0);
        QCOMPARE(files.largestRows()->count(), 0);
    }

    void tenThousandFilesCostNearlyNothingUpFront()
    {
        const ScanReport report = SampleScans::ofSize(10, 10'000).report();
        InstructionFilesPresenter files({}, "/home/ada");
        const ProcessorTime timer;
        files.show(shared(report));
        // Half a frame; a sanitizer takes a few times as long.
        QVERIFY2(timer.milliseconds() < 50, qPrintable(QString::number(timer.milliseconds())));
        QCOMPARE(files.tiles()->count(), 10'000);
    }
};

const RegisteredTest<InstructionFilesPresenterTest> registered("InstructionFilesPresenter");

} // namespace Loadwick

#include "InstructionFilesPresenterTest.moc"
