#include "overview/InstructionFilePlaces.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class InstructionFilePlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowWhoseAFileIs_data()
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

    void knowWhoseAFileIs()
    {
        QFETCH(const QString, path);
        const InstructionFilePlaces places("/home/ada/code/app", "/home/ada");
        QTEST(static_cast<int>(places.tierOf(path.toStdString())), "tier");
    }

    void countARepositoryThatIsTheUsersOwnFolderAsRepository()
    {
        const InstructionFilePlaces places("/home/ada/.claude", "/home/ada");
        QCOMPARE(int(places.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::repository));
    }

    void countEverythingAsRepositoryWhenItIsTheRoot()
    {
        const InstructionFilePlaces places("/", "/home/ada");
        QCOMPARE(int(places.tierOf("/etc/notes.md")), int(InstructionFileTier::repository));
    }

    void overlookHowAFolderIsSpelled()
    {
        const InstructionFilePlaces places("/home/ada/x/../app/", "/home/./ada/");
        QCOMPARE(int(places.tierOf("/home/ada/app/CLAUDE.md")),
                 int(InstructionFileTier::repository));
        QCOMPARE(int(places.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::personal));
    }

    void knowNobodysOwnWithoutAHome()
    {
        const InstructionFilePlaces places("/srv/app", {});
        QCOMPARE(int(places.tierOf("/home/ada/.claude/CLAUDE.md")),
                 int(InstructionFileTier::inherited));
    }
};

const RegisteredTest<InstructionFilePlacesTest> registered("InstructionFilePlaces");

} // namespace Loadwick

#include "InstructionFilePlacesTest.moc"
