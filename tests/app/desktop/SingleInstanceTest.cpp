#include "desktop/SingleInstance.h"

#include <atomic>
#include <thread>

#include <sys/socket.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstInstanceListens()
    {
        const SingleInstance first(m_folder.path());
        QVERIFY(first.isListening());
        QVERIFY(!first.isAnswered());
    }

    void theSecondIsAcknowledgedAndTheFirstIsRaised()
    {
        SingleInstance first(m_folder.path());
        QSignalSpy wanted(&first, &SingleInstance::windowWanted);
        QVERIFY(startAnother());
        QTRY_COMPARE(wanted.count(), 1);
        QVERIFY(startAnother());
        QTRY_COMPARE(wanted.count(), 2);
    }

    void forwardsTheActivationToken_data()
    {
        QTest::addColumn<QStringList>("given");
        QTest::newRow("by its name") << QStringList{QStringLiteral("XDG_ACTIVATION_TOKEN=leave-1")};
        QTest::newRow("by its older name")
            << QStringList{QStringLiteral("DESKTOP_STARTUP_ID=leave-1")};
        QTest::newRow("by both") << QStringList{QStringLiteral("XDG_ACTIVATION_TOKEN=leave-1"),
                                                QStringLiteral("DESKTOP_STARTUP_ID=leave-2")};
    }

    void forwardsTheActivationToken()
    {
        QFETCH(const QStringList, given);
        std::vector<std::string> entries;
        for (const QString &entry : given)
            entries.push_back(entry.toStdString());
        const EnvironmentSwap swapped(entries);
        SingleInstance first(m_folder.path());
        QSignalSpy wanted(&first, &SingleInstance::windowWanted);
        QVERIFY(startAnother());
        QTRY_COMPARE(wanted.count(), 1);
        QCOMPARE(wanted.first().first().toByteArray(), QByteArray("leave-1"));
    }

    void dropsAnInvalidActivationToken_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::newRow("two lines") << QByteArray("one\ntwo");
        QTest::newRow("too long") << QByteArray(513, 't');
    }

    void dropsAnInvalidActivationToken()
    {
        QFETCH(const QByteArray, token);
        const EnvironmentSwap given({"XDG_ACTIVATION_TOKEN=" + token.toStdString()});
        SingleInstance first(m_folder.path());
        QSignalSpy wanted(&first, &SingleInstance::windowWanted);
        QVERIFY(startAnother());
        QTRY_COMPARE(wanted.count(), 1);
        QCOMPARE(wanted.first().first().toByteArray(), QByteArray());
    }

    void anotherFolderIsAnotherWindow()
    {
        const SingleInstance first(m_folder.path());
        const SingleInstance second(m_folder.path() / "other");
        QVERIFY(second.isListening());
        QVERIFY(!second.isAnswered());
    }

    void normalizesTheFolder()
    {
        SingleInstance first(m_folder.path());
        QVERIFY(startAnother(m_folder.path() / "x" / ".."));
    }

    void theFirstReleasesTheName()
    {
        {
            const SingleInstance first(m_folder.path());
            QVERIFY(first.isListening());
        }
        const SingleInstance next(m_folder.path());
        QVERIFY(next.isListening());
    }

    // Its event loop does not run here.
    void aHangingInstanceDelaysTheNextByASecond()
    {
        const SingleInstance hanging(m_folder.path());
        QElapsedTimer timer;
        timer.start();
        const SingleInstance next(m_folder.path());
        QVERIFY(!next.isAnswered());
        QVERIFY(timer.elapsed() < 10'000);
    }

    void isANoOpWithoutAFolder()
    {
        const SingleInstance first((std::filesystem::path()));
        const SingleInstance second((std::filesystem::path()));
        QVERIFY(!second.isAnswered());
        QVERIFY(!second.isListening());
    }

    void silentVisitorsAreHarmless()
    {
        SingleInstance first(m_folder.path());
        QSignalSpy wanted(&first, &SingleInstance::windowWanted);
        const LocalAddress address(m_folder.path());
        const FileDescriptor silent(::socket(AF_UNIX, SOCK_STREAM, 0));
        QCOMPARE(::connect(silent.number(), address.address(), address.length()), 0);
        QVERIFY(startAnother());
        QTRY_COMPARE(wanted.count(), 1);
    }

private:
    /// Whether a program started now finds another instance.
    bool startAnother(const std::filesystem::path &folder)
    {
        std::atomic<bool> ended = false;
        bool answered = false;
        std::thread another([&] {
            answered = SingleInstance(folder).isAnswered();
            ended = true;
        });
        while (!ended)
            QTest::qWait(1);
        another.join();
        return answered;
    }
    bool startAnother() { return startAnother(m_folder.path()); }

    TemporaryFolder m_folder;
};

const RegisteredTest<SingleInstanceTest> registered("SingleInstance");

} // namespace Loadwick

#include "SingleInstanceTest.moc"
