#include "overview/ListedFile.h"

#include <QStringList>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

InstructionFileSet sampleFiles()
{
    return {.repositoryFiles = {InstructionFileEstimate::fromPath("/r/b.md", 400),
                                InstructionFileEstimate::fromPath("/r/a.md", 800)},
            .inheritedFiles = {InstructionFileEstimate::fromPath("/CLAUDE.md", 400)},
            .personalFiles = {InstructionFileEstimate::fromPath("/h/.claude/CLAUDE.md", 4)},
            .unreadablePaths = {}};
}

QStringList paths(const std::vector<ListedFile> &files)
{
    QStringList paths;
    for (const ListedFile &file : files)
        paths.append(QString::fromUtf8(file.path.data(), qsizetype(file.path.size())) +
                     (file.estimate != nullptr ? QString() : QStringLiteral(" ?")));
    return paths;
}

QStringList texts(std::initializer_list<const char *> list)
{
    QStringList texts;
    for (const char *text : list)
        texts.append(QString::fromUtf8(text));
    return texts;
}

const InstructionFilePlaces places("/r", "/h");

} // namespace

class ListedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheFilesOfEachTierInTheirOrder()
    {
        const InstructionFileSet files = sampleFiles();
        const auto tiers = ListedFile::byTier(files, places);
        QCOMPARE(paths(tiers[InstructionFileTier::repository]), texts({"/r/b.md", "/r/a.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::inherited]), texts({"/CLAUDE.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::personal]), texts({"/h/.claude/CLAUDE.md"}));
        QCOMPARE(paths(ListedFile::allReadable(files)),
                 texts({"/r/b.md", "/r/a.md", "/CLAUDE.md", "/h/.claude/CLAUDE.md"}));
    }

    void putsWhatCouldNotBeReadBehindTheFilesOfItsTier()
    {
        InstructionFileSet files = sampleFiles();
        files.unreadablePaths = {"/h/.claude/x.md", "/h/CLAUDE.md", "/r/0.md", "/r/1.md"};
        const auto tiers = ListedFile::byTier(files, places);
        QCOMPARE(paths(tiers[InstructionFileTier::repository]),
                 texts({"/r/b.md", "/r/a.md", "/r/0.md ?", "/r/1.md ?"}));
        QCOMPARE(paths(tiers[InstructionFileTier::inherited]),
                 texts({"/CLAUDE.md", "/h/CLAUDE.md ?"}));
        QCOMPARE(paths(tiers[InstructionFileTier::personal]),
                 texts({"/h/.claude/CLAUDE.md", "/h/.claude/x.md ?"}));
        QCOMPARE(ListedFile::allReadable(files).size(), std::size_t(4));
    }

    void listsAPathOfBothListsOnceWithItsFigures()
    {
        InstructionFileSet files = sampleFiles();
        // Imported by the user's own file, it counts as inherited although it lies elsewhere.
        files.inheritedFiles.push_back(
            InstructionFileEstimate::fromPath("/h/.claude/shared.md", 40));
        files.unreadablePaths = {"/h/.claude/shared.md", "/r/a.md"};
        const auto tiers = ListedFile::byTier(files, places);
        QCOMPARE(paths(tiers[InstructionFileTier::repository]), texts({"/r/b.md", "/r/a.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::inherited]),
                 texts({"/CLAUDE.md", "/h/.claude/shared.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::personal]), texts({"/h/.claude/CLAUDE.md"}));
    }

    void picksTheLargestAndKeepsTheOrderOfEqualOnes()
    {
        InstructionFileSet files = sampleFiles();
        files.personalFiles.push_back(InstructionFileEstimate::fromPath("/h/.claude/z.md", 399));
        QCOMPARE(
            paths(ListedFile::largest(files, 5)),
            texts({"/r/a.md", "/r/b.md", "/CLAUDE.md", "/h/.claude/z.md", "/h/.claude/CLAUDE.md"}));
        QCOMPARE(paths(ListedFile::largest(files, 2)), texts({"/r/a.md", "/r/b.md"}));
    }

    void picksAllOfFewerFilesThanAskedFor()
    {
        QCOMPARE(ListedFile::largest(sampleFiles(), 5).size(), std::size_t(4));
        QVERIFY(ListedFile::largest(InstructionFileSet::empty, 5).empty());
    }
};

const RegisteredTest<ListedFileTest> registered("ListedFile");

} // namespace Loadwick

#include "ListedFileTest.moc"
