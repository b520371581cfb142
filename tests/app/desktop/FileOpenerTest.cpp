#include "desktop/FileOpener.h"

#include <future>

#include <QSignalSpy>
#include <QTest>

#include "base/QtTaskDispatcher.h"
#include "samples/TemporaryFolder.h"
#include "support/FakeDesktop.h"
#include "support/PrivateBus.h"
#include "support/StandInFileManager.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const auto noProgram = QStringLiteral("The desktop names no program for this file.");

} // namespace

class FileOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_interface = std::make_unique<QObject>();
        m_fake = FakeDesktop();
    }

    void handsOverTheFileWhateverItsName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "CLAUDE.md";
        QTest::newRow("space") << "a b.md";
        QTest::newRow("quotes") << "a'b\"c.md";
        QTest::newRow("line feed") << "a\nb.md";
        QTest::newRow("per cent") << "a%20b.md";
        QTest::newRow("hash and question") << "a#b?c.md";
        QTest::newRow("letters") << "Müller ⟨é⟩.md";
    }

    void handsOverTheFileWhateverItsName()
    {
        QFETCH(const QString, name);
        const QString path = makeFile(name);
        FileOpener opener = makeOpener();
        (void)opener.open(path);
        QTRY_COMPARE(m_fake.opened.size(), 1);
        QCOMPARE(m_fake.opened[0].toLocalFile(), path);
        QVERIFY(!m_fake.opened[0].toEncoded().contains('\n'));
    }

    void aMissingFileIsNotHandedOver_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("words");
        QTest::newRow("gone") << "gone.md" << QStringLiteral("This file is gone.");
        QTest::newRow("not UTF-8")
            << QStringLiteral("caf\uFFFD.md")
            << QStringLiteral("The name of this file is not UTF-8: no program can be given it.");
    }

    void aMissingFileIsNotHandedOver()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, words);
        m_folder.write("caf\xE9.md", "");
        FileOpener opener = makeOpener();
        QSignalSpy failures(&opener, &FileOpener::failed);
        const int requests[] = {opener.open(pathOf(name)), opener.showInFolder(pathOf(name))};
        QTRY_COMPARE(failures.size(), 2);
        for (const QList<QVariant> &failure : failures) {
            QVERIFY(failure[0].toInt() == requests[0] || failure[0].toInt() == requests[1]);
            QCOMPARE(failure[1].toString(), words);
        }
        QCOMPARE(m_fake.opened.size(), 0);
    }

    void aNameWithAReplacementCharacterIsAName()
    {
        const QString path = makeFile(QStringLiteral("caf\uFFFD.md"));
        FileOpener opener = makeOpener();
        (void)opener.open(path);
        QTRY_COMPARE(m_fake.opened.size(), 1);
    }

    void saysThatThereIsNoProgram_data()
    {
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("hasProgram");
        QTest::newRow("nothing to open files with") << false << true;
        QTest::newRow("no program for its kind") << true << false;
    }

    void saysThatThereIsNoProgram()
    {
        QFETCH(const bool, opens);
        QFETCH(const bool, hasProgram);
        m_fake.opens = opens;
        FileOpener::Desktop desktop = makeDesktop();
        desktop.hasProgramFor = [hasProgram](const QString &) { return hasProgram; };
        FileOpener opener(std::make_shared<QtTaskDispatcher>(*m_interface), desktop);
        QSignalSpy failures(&opener, &FileOpener::failed);
        const int request = opener.open(makeFile(QStringLiteral("CLAUDE.md")));
        QCOMPARE(failures.size(), 0);
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(failures[0][0].toInt(), request);
        QCOMPARE(failures[0][1].toString(), noProgram);
        QCOMPARE(m_fake.opened.size(), 1); // asked all the same
    }

    void aDiskThatDoesNotAnswerIsGivenUp()
    {
        std::promise<void> disk;
        FileOpener::Desktop desktop = makeDesktop();
        desktop.patience = std::chrono::milliseconds(50);
        desktop.hasProgramFor = [answer = disk.get_future().share()](const QString &) {
            answer.wait();
            return true;
        };
        FileOpener opener(std::make_shared<QtTaskDispatcher>(*m_interface), desktop);
        QSignalSpy failures(&opener, &FileOpener::failed);
        (void)opener.open(makeFile(QStringLiteral("CLAUDE.md")));
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(failures[0][1].toString(), QStringLiteral("This file cannot be reached."));
        disk.set_value();
        QTest::qWait(50); // for the late answer
        QCOMPARE(m_fake.opened.size(), 0);
        QCOMPARE(failures.size(), 1);
    }

    void theFileManagerSelectsTheFile()
    {
        PrivateBus bus;
        StandInFileManager manager(bus.connection(QStringLiteral("manager")));
        FileOpener opener = makeOpener(bus.connection(QStringLiteral("opener")));
        const QString path = makeFile(QStringLiteral("a b%20'\"#\nc.md"));
        (void)opener.showInFolder(path);
        QTRY_COMPARE(manager.shown.size(), 1);
        QCOMPARE(QUrl::fromEncoded(manager.shown[0].toLatin1(), QUrl::StrictMode).toLocalFile(),
                 path);
        QCOMPARE(m_fake.opened.size(), 0);
    }

    void withoutAFileManagerTheFolderOpens()
    {
        PrivateBus bus;
        FileOpener opener = makeOpener(bus.connection(QStringLiteral("opener")));
        (void)opener.showInFolder(makeFile(QStringLiteral("CLAUDE.md")));
        QTRY_COMPARE(m_fake.opened.size(), 1);
        QCOMPARE(m_fake.opened[0].toLocalFile(), QString::fromStdString(m_folder.path().string()));
    }

    void withoutABusTheFolderOpens()
    {
        FileOpener opener = makeOpener();
        (void)opener.showInFolder(makeFile(QStringLiteral("CLAUDE.md")));
        QTRY_COMPARE(m_fake.opened.size(), 1);
    }

    void saysThatNothingShowsFolders()
    {
        m_fake.opens = false;
        FileOpener opener = makeOpener();
        QSignalSpy failures(&opener, &FileOpener::failed);
        (void)opener.showInFolder(makeFile(QStringLiteral("CLAUDE.md")));
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(failures[0][1].toString(),
                 QStringLiteral("The desktop names no program that shows folders."));
    }

    void canBeDestroyedBeforeTheDiskAnswers()
    {
        std::promise<void> disk;
        FileOpener::Desktop desktop = makeDesktop();
        desktop.hasProgramFor = [answer = disk.get_future().share()](const QString &) {
            answer.wait();
            return true;
        };
        {
            FileOpener opener(std::make_shared<QtTaskDispatcher>(*m_interface), desktop);
            (void)opener.open(makeFile(QStringLiteral("CLAUDE.md")));
        }
        disk.set_value();
        QTest::qWait(50); // for the late answer
        QCOMPARE(m_fake.opened.size(), 0);
    }

private:
    [[nodiscard]] QString pathOf(const QString &name) const
    {
        return QString::fromStdString(m_folder.path().string()) + u'/' + name;
    }

    [[nodiscard]] QString makeFile(const QString &name)
    {
        m_folder.write(name.toStdString(), "");
        return pathOf(name);
    }

    [[nodiscard]] FileOpener::Desktop
    makeDesktop(const QDBusConnection &bus = QDBusConnection(QStringLiteral("none")))
    {
        FileOpener::Desktop desktop = m_fake.asDesktop();
        desktop.connect = [bus] { return bus; };
        return desktop;
    }

    [[nodiscard]] FileOpener
    makeOpener(const QDBusConnection &bus = QDBusConnection(QStringLiteral("none")))
    {
        return FileOpener(std::make_shared<QtTaskDispatcher>(*m_interface), makeDesktop(bus));
    }

    TemporaryFolder m_folder;
    std::unique_ptr<QObject> m_interface;
    FakeDesktop m_fake;
};

const RegisteredTest<FileOpenerTest> registered("FileOpener");

} // namespace Loadwick

#include "FileOpenerTest.moc"
