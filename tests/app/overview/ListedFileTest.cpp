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

const TierFolders folders("/r", "/h");

} // namespace

class ListedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheFilesOfEachTierInTheirOrder()
    {
        const InstructionFileSet files = sampleFiles();
        const auto tiers = ListedFile::byTier(files, folders);
        QCOMPARE(paths(tiers[InstructionFileTier::repository]), texts({"/r/b.md", "/r/a.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::inherited]), texts({"/CLAUDE.md"}));
        QCOMPARE(paths(tiers[InstructionFileTier::personal]), texts({"/h/.claude/CLAUDE.md"}));
        QCOMPARE(paths(ListedFile::allReadable(files)),
                 texts({"/r/b.md", "/r/a.md", "/CLAUDE.md", "/h/.claude/CLAUDE.md"}));
    }

    void shortensAPathByTheNearestFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shortened");
        QTest::newRow("in the repository") << "/h/r/docs/a.md"
                                           << "docs/a.md";
        QTest::newRow("the repository itself") << "/h/r"
                                               << "~/r";
        QTest::newRow("beside it") << "/h/rs/a.md"
                                   << "~/rs/a.md";
        QTest::newRow("beside the home folder") << "/hs/a.md"
                                                << "/hs/a.md";
        QTest::newRow("the home folder itself") << "/h"
                                                << "~";
        QTest::newRow("the root") << "/"
                                  << "/";
        QTest::newRow("a folder like the sign for home") << "/h/r/~/a.md"
                                                         << "./~/a.md";
    }

    void shortensAPathByTheNearestFolder()
    {
        QFETCH(const QString, path);
        QFETCH(const QString, shortened);
        const TierFolders near("/h/r/", "/h");
        QCOMPARE(QString::fromStdString(near.shortPath(path.toStdString())), shortened);
    }

    void aRepositoryAtTheRootShortensEveryPath()
    {
        const TierFolders near("/", "/h");
        QCOMPARE(near.shortPath("/etc/a.md"), std::string("etc/a.md"));
        QCOMPARE(near.shortPath("/h/a.md"), std::string("h/a.md"));
        QCOMPARE(near.shortPath("/"), std::string("/"));
    }

    void aHomeAtTheRootShortensNoPath()
    {
        const TierFolders near("/r", "/");
        QCOMPARE(near.shortPath("/r/a.md"), std::string("a.md"));
        QCOMPARE(near.shortPath("/etc/a.md"), std::string("/etc/a.md"));
        QCOMPARE(int(near.tierOf("/.claude/CLAUDE.md")), int(InstructionFileTier::personal));
    }

    void withoutAHomeOnlyTheRepositoryShortensAPath()
    {
        const TierFolders near("/r", {});
        QCOMPARE(near.shortPath("/r/a.md"), std::string("a.md"));
        QCOMPARE(near.shortPath("/h/a.md"), std::string("/h/a.md"));
    }

    void listsUnreadableFilesLastInTheirTier()
    {
        InstructionFileSet files = sampleFiles();
        files.unreadablePaths = {"/h/.claude/x.md", "/h/CLAUDE.md", "/r/0.md", "/r/1.md"};
        const auto tiers = ListedFile::byTier(files, folders);
        QCOMPARE(paths(tiers[InstructionFileTier::repository]),
                 texts({"/r/b.md", "/r/a.md", "/r/0.md ?", "/r/1.md ?"}));
        QCOMPARE(paths(tiers[InstructionFileTier::inherited]),
                 texts({"/CLAUDE.md", "/h/CLAUDE.md ?"}));
        QCOMPARE(paths(tiers[InstructionFileTier::personal]),
                 texts({"/h/.claude/CLAUDE.md", "/h/.claude/x.md ?"}));
        QCOMPARE(ListedFile::allReadable(files).size(), std::size_t(4));
    }

    void listsAPathInBothListsOnceWithItsFigures()
    {
        InstructionFileSet files = sampleFiles();
        // Imported by the user's own file, it counts as inherited although it is elsewhere.
        files.inheritedFiles.push_back(
            InstructionFileEstimate::fromPath("/h/.claude/shared.md", 40));
        files.unreadablePaths = {"/h/.claude/shared.md", "/r/a.md"};
        const auto tiers = ListedFile::byTier(files, folders);
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

    void picksAllOfTooFewFiles()
    {
        QCOMPARE(ListedFile::largest(sampleFiles(), 5).size(), std::size_t(4));
        QVERIFY(ListedFile::largest(InstructionFileSet::empty, 5).empty());
    }

    void derivesTheTierFromThePath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("tier");
        const auto row = [](const char *name, const char *path, InstructionFileTier::Value tier) {
            QTest::newRow(name) << QString::fromLatin1(path) << static_cast<int>(tier);
        };
        row("in the repository", "/home/ada/code/app/CLAUDE.md", InstructionFileTier::repository);
        row("deep in it", "/home/ada/code/app/a/b.md", InstructionFileTier::repository);
        row("beside it", "/home/ada/code/app2/CLAUDE.md", InstructionFileTier::inherited);
        row("above it", "/home/ada/code/CLAUDE.md", InstructionFileTier::inherited);
        row("the user's own", "/home/ada/.claude/CLAUDE.md", InstructionFileTier::personal);
        row("deep among the user's own", "/home/ada/.claude/a/b.md", InstructionFileTier::personal);
        row("a name like it", "/home/ada/.claude.md", InstructionFileTier::inherited);
        row("in the home folder", "/home/ada/CLAUDE.md", InstructionFileTier::inherited);
        row("somebody else's own", "/home/eve/.claude/CLAUDE.md", InstructionFileTier::inherited);
        row("anywhere", "/etc/notes.md", InstructionFileTier::inherited);
    }

    void derivesTheTierFromThePath()
    {
        QFETCH(const QString, path);
        const TierFolders folders("/home/ada/code/app", "/home/ada");
        QTEST(static_cast<int>(folders.tierOf(path.toStdString())), "tier");
    }

    void aRepositoryInTheUsersOwnFolderIsRepository()
    {
        const TierFolders folders("/home/ada/.claude", "/home/ada");
        QCOMPARE(int(folders.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::repository));
    }

    void everythingIsInTheRepositoryAtTheRoot()
    {
        const TierFolders folders("/", "/home/ada");
        QCOMPARE(int(folders.tierOf("/etc/notes.md")), int(InstructionFileTier::repository));
    }

    void normalizesFolders()
    {
        const TierFolders folders("/home/ada/x/../app/", "/home/./ada/");
        QCOMPARE(int(folders.tierOf("/home/ada/app/CLAUDE.md")),
                 int(InstructionFileTier::repository));
        QCOMPARE(int(folders.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::personal));
    }

    void nothingIsPersonalWithoutAHome()
    {
        const TierFolders folders("/srv/app", {});
        QCOMPARE(int(folders.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::inherited));
    }
};

const RegisteredTest<ListedFileTest> registered("ListedFile");

} // namespace Loadwick

#include "ListedFileTest.moc"
