#include "overview/InstructionFilesPresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "samples/SampleScans.h"
#include "support/Stopwatch.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

using Role = InstructionFileRows::Role;

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

TextLocale localeNamed(const char *name)
{
    return TextLocale::fromEnvironment({{"LC_ALL", name}});
}

QStringList textsOf(const InstructionFileRows *rows, Role role)
{
    QStringList texts;
    for (int row = 0; row < rows->count(); ++row)
        texts.append(rows->index(row).data(role).toString());
    return texts;
}

} // namespace

class InstructionFilesPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatTheSectionHolds();
    void namesTheTiersInOrder();
    void listsEachTiersFiles();
    void writesFiguresInTheLocale_data();
    void writesFiguresInTheLocale();
    void aFileThatCouldNotBeReadStandsInTheTierOfItsPath();
    void aTierOfUnreadableFilesIsNotCalledEmpty();
    void aPathOfBothListsAppearsOnceWithItsFigures();
    void summarizesTheSizesForAScreenReader_data();
    void summarizesTheSizesForAScreenReader();
    void speaksOfASingleFile();
    void hasNoSizesWithoutTokens();
    void saysWhatTheFilesMeanToASessionThatReportedNoCategories();
    void hasNoNoteWithoutFiles();
    void showsTheLaterReport();
    void tenThousandFilesCostNearlyNothingUpFront();
};

void InstructionFilesPresenterTest::saysWhatTheSectionHolds()
{
    QCOMPARE(InstructionFilesPresenter::title(), QStringLiteral("All instruction files"));
    QCOMPARE(InstructionFilesPresenter::detail(),
             QStringLiteral("Grouped by where Claude Code loads them. Their contents are never "
                            "displayed or persisted."));
    QCOMPARE(InstructionFilesPresenter::sizeTitle(), QStringLiteral("Relative size"));
    QCOMPARE(InstructionFilesPresenter::sizeCaption(),
             QStringLiteral("Tile sizes use estimated token counts."));
    QCOMPARE(InstructionFilesPresenter::sizeHint(),
             QStringLiteral(
                 "Hover a tile, or walk the tiles with the arrow keys, for its path and share."));
    QCOMPARE(InstructionFilesPresenter::noSizesText(),
             QStringLiteral("The instruction files have no estimated tokens to compare."));
    QCOMPARE(InstructionFilesPresenter::emptyTierText(),
             QStringLiteral("No files found in this tier."));
    QCOMPARE(InstructionFilesPresenter::shareCaption(),
             QStringLiteral("Share is calculated against the authoritative total reported by "
                            "Claude."));
}

void InstructionFilesPresenterTest::namesTheTiersInOrder()
{
    QCOMPARE(InstructionFilesPresenter::repositoryTitle(),
             QStringLiteral("Repository instructions"));
    QCOMPARE(InstructionFilesPresenter::inheritedTitle(),
             QStringLiteral("Inherited project instructions"));
    QCOMPARE(InstructionFilesPresenter::personalTitle(), QStringLiteral("Personal instructions"));
}

void InstructionFilesPresenterTest::listsEachTiersFiles()
{
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf(threeTiers()));
    QCOMPARE(textsOf(files.repositoryRows(), Role::Path),
             QStringList({QStringLiteral("/home/ada/app/CLAUDE.md"),
                          QStringLiteral("/home/ada/app/AGENTS.md")}));
    QCOMPARE(files.inheritedRows()->path(0), QStringLiteral("/home/ada/CLAUDE.md"));
    QCOMPARE(files.personalRows()->path(0), QStringLiteral("/home/ada/.claude/CLAUDE.md"));
    QCOMPARE(files.tiles()->count(), 4);
    QCOMPARE(files.tiles()->path(2), QStringLiteral("/home/ada/CLAUDE.md"));
}

void InstructionFilesPresenterTest::writesFiguresInTheLocale_data()
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

void InstructionFilesPresenterTest::writesFiguresInTheLocale()
{
    InstructionFilesPresenter files(localeNamed(QTest::currentDataTag()), "/home/ada");
    files.show(reportOf(threeTiers()));
    const QModelIndex first = files.repositoryRows()->index(0);
    QTEST(first.data(Role::Size).toString(), "size");
    QTEST(first.data(Role::Amount).toString(), "amount");
    QTEST(files.tiles()->figures(0), "figures");
    // Written with a point whatever the locale.
    QCOMPARE(files.inheritedRows()->index(0).data(Role::Share).toString(),
             QStringLiteral("0.1% of total"));
}

void InstructionFilesPresenterTest::aFileThatCouldNotBeReadStandsInTheTierOfItsPath()
{
    InstructionFileSet set = threeTiers();
    set.unreadablePaths = {"/home/ada/.claude/notes.md", "/home/ada/CLAUDE.local.md",
                           "/home/ada/app/docs/a.md"};
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf(set));
    QCOMPARE(files.repositoryRows()->path(2), QStringLiteral("/home/ada/app/docs/a.md"));
    QCOMPARE(files.inheritedRows()->path(1), QStringLiteral("/home/ada/CLAUDE.local.md"));
    QCOMPARE(files.personalRows()->path(1), QStringLiteral("/home/ada/.claude/notes.md"));
    QCOMPARE(textsOf(files.personalRows(), Role::Size).at(1), QStringLiteral("Could not be read"));
    QCOMPARE(files.tiles()->count(), 4);
}

void InstructionFilesPresenterTest::aTierOfUnreadableFilesIsNotCalledEmpty()
{
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf({.repositoryFiles = {},
                         .inheritedFiles = {},
                         .personalFiles = {},
                         .unreadablePaths = {"/home/ada/.claude/CLAUDE.md"}}));
    QCOMPARE(files.personalRows()->count(), 1);
    QCOMPARE(files.repositoryRows()->count(), 0);
    QCOMPARE(files.inheritedRows()->count(), 0);
}

void InstructionFilesPresenterTest::aPathOfBothListsAppearsOnceWithItsFigures()
{
    InstructionFileSet set = threeTiers();
    set.unreadablePaths = {"/home/ada/CLAUDE.md"};
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf(set));
    QCOMPARE(files.inheritedRows()->count(), 1);
    QVERIFY(files.inheritedRows()->index(0).data(Role::IsReadable).toBool());
}

void InstructionFilesPresenterTest::summarizesTheSizesForAScreenReader_data()
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

void InstructionFilesPresenterTest::summarizesTheSizesForAScreenReader()
{
    InstructionFilesPresenter files(localeNamed(QTest::currentDataTag()), "/home/ada");
    files.show(reportOf(threeTiers()));
    QVERIFY(files.hasSizes());
    QTEST(files.sizeSummary(), "summary");
}

void InstructionFilesPresenterTest::speaksOfASingleFile()
{
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf({.repositoryFiles = {file("/home/ada/app/CLAUDE.md", 400)},
                         .inheritedFiles = {},
                         .personalFiles = {},
                         .unreadablePaths = {}}));
    QVERIFY(files.sizeSummary().startsWith(
        QStringLiteral("Relative size of 1 instruction file, 100 estimated tokens")));
}

void InstructionFilesPresenterTest::hasNoSizesWithoutTokens()
{
    InstructionFilesPresenter files({}, "/home/ada");
    files.show(reportOf({}));
    QVERIFY(!files.hasSizes());
    QCOMPARE(files.sizeSummary(), QString());
    files.show(reportOf({.repositoryFiles = {file("/home/ada/app/CLAUDE.md", 0)},
                         .inheritedFiles = {},
                         .personalFiles = {},
                         .unreadablePaths = {}}));
    QVERIFY(!files.hasSizes());
    QCOMPARE(files.repositoryRows()->count(), 1);
}

void InstructionFilesPresenterTest::saysWhatTheFilesMeanToASessionThatReportedNoCategories()
{
    InstructionFilesPresenter files({}, "/home/ada");
    ScanReport report = reportOf(threeTiers());
    report.categoriesSelfReported = false;
    files.show(report);
    QCOMPARE(files.note(),
             QStringLiteral("Claude did not self-report categories for this session, so the "
                            "\"Startup context (categories not self-reported)\" row already "
                            "carries the whole measured total. The instruction files below are "
                            "local estimates of what makes up that total, not additional tokens "
                            "on top of it."));
    report.categoriesSelfReported = true;
    files.show(report);
    QCOMPARE(files.note(), QString());
}

void InstructionFilesPresenterTest::hasNoNoteWithoutFiles()
{
    InstructionFilesPresenter files({}, "/home/ada");
    ScanReport report = reportOf({});
    report.categoriesSelfReported = false;
    files.show(report);
    QCOMPARE(files.note(), QString());
}

void InstructionFilesPresenterTest::showsTheLaterReport()
{
    InstructionFilesPresenter files({}, "/home/ada");
    const QSignalSpy changes(&files, &InstructionFilesPresenter::changed);
    files.show(reportOf(threeTiers()));
    files.show(reportOf({}));
    QCOMPARE(changes.count(), 2);
    QCOMPARE(files.repositoryRows()->count(), 0);
    QCOMPARE(files.tiles()->count(), 0);
}

void InstructionFilesPresenterTest::tenThousandFilesCostNearlyNothingUpFront()
{
    const ScanReport report = SampleScans::ofSize(10, 10'000).report();
    InstructionFilesPresenter files({}, "/home/ada");
    const ProcessorTime timer;
    files.show(report);
    // Half a frame; a sanitizer takes a few times as long.
    QVERIFY2(timer.milliseconds() < 50, qPrintable(QString::number(timer.milliseconds())));
    QCOMPARE(files.tiles()->count(), 10'000);
}

const RegisteredTest<InstructionFilesPresenterTest> registered("InstructionFilesPresenter");

} // namespace Loadwick

#include "InstructionFilesPresenterTest.moc"
